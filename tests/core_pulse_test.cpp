#include "own_folder.h"
#include "pulse/wnt_pulse_file.h"

#include <fstream>
#include <iterator>

using namespace wnt;
namespace fs = std::filesystem;

namespace {

struct PulseFile : OwnFolder {
    // The bytes of a text file; lines end as the platform ends them.
    static std::string text_of(const char* name) {
        std::ifstream file(name);
        return {std::istreambuf_iterator<char>(file), {}};
    }
    static void write_text(const char* name, const std::string& text) { std::ofstream(name) << text; }
};

TEST_F(PulseFile, WritesTheHeaderOnceAndASampleALine) {
    for (int run = 0; run < 2; ++run) {
        CWntPulseFile file(CWntPulseFile::append);
        file.SetLineCount(2);
        file.SetLineTitle(0, "Pressure left");
        file.SetLineTitle(1, "ABCDEFGHIJKLMNOPQRSTUVWXYZ");
        ASSERT_EQ(file.Open("a.txt"), 0);
        EXPECT_EQ(file.Put(2, 17.499F, afternoon), 29);
        EXPECT_NE(text_of("a.txt").find("2;17.50;"), std::string::npos); // on the disk at once
        EXPECT_EQ(file.Put(-3, -0.5F, 0), 30);
        EXPECT_EQ(file.Open("a.txt"), 8);
        EXPECT_EQ(file.Put(1, 1, 1), 0);
        EXPECT_EQ(file.GetError(), 9);
    }
    const std::string samples = "2;17.50;14:03:59;16/11/2026;\n-3;-0.50;00:00:00;01/01/1970;\n";
    const std::string header = "2\nPressure left ;\nABCDEFGHIJKLMNOPQRSTUVWX ;\n";
    EXPECT_EQ(text_of("a.txt"), header + samples + samples);
#ifdef _WIN32
    EXPECT_EQ(fs::file_size("a.txt"), header.size() + 2 * samples.size() + 7);
#endif
    CWntPulseFile emptied(CWntPulseFile::write, "a.txt");
    EXPECT_EQ(text_of("a.txt"), "0\n");
}

TEST_F(PulseFile, ReadsWithAProtocol) {
    write_text("a.txt", "2\nPressure  left ;\nabc; ;x\n2;17.50;14:03:59;16/11/2026;\n");
    CWntPulseFile file(CWntPulseFile::read, "a.txt");
    EXPECT_STREQ(file.GetLineTitle(1), "abc; ");
    EXPECT_EQ(text_of("ReadHeader.out"), "Start\nerror: 0\n\nLineCount: 2\n"
                                         "LineTitle[0]: Pressure  str: Pressure :8\n"
                                         "LineTitle[0]: Pressure left  str: left :4\n"
                                         "LineTitle[0]: Pressure left  str: ; :0\n"
                                         "LineTitle[0]: Pressure left \n"
                                         "LineTitle[1]: abc;  str: abc; :3\n"
                                         "LineTitle[1]: abc;  str: ;x :0\n"
                                         "LineTitle[1]: abc; \n");
    int curve = 0;
    float value = 0;
    std::int64_t time = 0;
    EXPECT_EQ(file.Get(&curve, &value, &time), 0);
    EXPECT_TRUE(curve == 2 && value == 17.5F && time == afternoon) << curve << ' ' << value << ' ' << time;
    EXPECT_EQ(file.Get(&curve, &value, &time), 6);
    EXPECT_EQ(file.Get(nullptr, nullptr, nullptr), 6);
    EXPECT_EQ(text_of("Get.out"), "Startd\nerror: 0\ni:3\ny:2026 m:11 d:16  h:14 m:3 s:59\n"
                                  "Startd\nerror: 0\nStartd\nerror: 6\n");
}

TEST_F(PulseFile, BoundsEveryHeader) {
    const std::string word(24, 'w');
    const std::tuple<std::string, int, int, std::string> cases[] = {
        {"", 6, 0, ""},
        {"99999999999\n", 6, 0, ""},
        {"-1\nA ;\n", 7, 0, ""},
        {"1\n", 6, 1, ""},
        {"10\nA ;\nB ;\nC ;\nD ;\nE ;\nF ;\nG ;\nH ;\nI ;\nJ ;\n", 0, 10, "A "},
        {"11\nA ;\nB ;\nC ;\nD ;\nE ;\nF ;\nG ;\nH ;\nI ;\nJ ;\nK ;\n", 7, 0, ""},
        {"1\nFlow left", 6, 1, "Flow left "},
        {"1 Flow\n;", 0, 1, "Flow "},
        {"1\n" + word + " ;\n", 0, 1, word},
        {"1\n" + word + "xyz ;\n", 0, 1, word},                                   // no blank fits
        {"1\n" + word.substr(4) + " a b c d ;\n", 0, 1, word.substr(4) + " a b"}, // more words than fit
        {"1\n" + std::string(100'000, 'w') + " ;\n", 0, 1, word}};
    for (const auto& [text, error, count, title] : cases) {
        write_text("a.txt", text);
        const CWntPulseFile file(CWntPulseFile::read, "a.txt");
        EXPECT_TRUE(file.GetError() == error && file.GetLineCount() == count) << text.substr(0, 40);
        EXPECT_EQ(file.GetLineTitle(0), title);
    }
}

TEST_F(PulseFile, RefusesFaultySamples) {
    const std::pair<std::int32_t, std::vector<std::string>> cases[] = {
        // Any separator will do, and 30 February is 1 March.
        {0, {"+2; \n1e1;1:2:3;4/5/2006", "1;1;01-02+03;04.05x2006;tail", "1;1;10:00:00;30/02/2024;"}},
        {invalid_argument, {"1;1;10:00:00;1/1/2147483647;"}},
        {general_failure,
         {"1;1;10:00:00;1/1/1969;", "1;1;10:00:00;32/1/2024;", "1;1;24:00:00;1/1/2024;", "1;1;10:00:-1;1/1/2024;",
          "1;1;10:00:00;1/1;2024", "1;1;100000000000000000000000000;"}},
        {6, {"1;1;", "1;1 ;1:2:3;4/5/2006", "99999999999;1;1:2:3;4/5/2006", "1;1x;1:2:3;4/5/2006"}}};
    for (const auto& [outcome, texts] : cases)
        for (const std::string& text : texts) {
            write_text("a.txt", "0\n" + text);
            CWntPulseFile file(CWntPulseFile::read, "a.txt");
            int curve = -5;
            std::int64_t time = -5;
            const std::int32_t raised = code_of([&] { file.Get(&curve, nullptr, &time); });
            EXPECT_EQ(raised ? raised : file.GetError(), outcome) << text;
            EXPECT_EQ(curve != -5 && time != -5, outcome == 0) << text;
        }
    EXPECT_TRUE(fs::remove("Get.out")); // would not go, were it still open somewhere
}

TEST_F(PulseFile, KeepsTheFirstError) {
    CWntPulseFile closed(CWntPulseFile::read);
    EXPECT_TRUE(closed.Get(nullptr, nullptr, nullptr) == 5 && closed.Open("a.txt") == 5 &&
                closed.SetLineCount(11) == 5);
    EXPECT_TRUE(closed.Put(1, 1, 1) == 0 && closed.GetError() == 9);
    EXPECT_EQ(CWntPulseFile(CWntPulseFile::write).WriteHeader(), 5);
    EXPECT_EQ(CWntPulseFile(4, "a.txt").GetError(), 4);
    const std::string long_name(256, 'n');
    for (int mode : {1, 2, 3})
        for (const char* name : {"none/a.txt", long_name.c_str(), static_cast<const char*>(nullptr)})
            EXPECT_EQ(CWntPulseFile(mode, name).GetError(), 1);

    const int titles[][3] = {{3, 3, 0}, {3, 4, 7}, {3, -1, 7}, {10, 9, 0}, {10, 10, 7}, {11, 0, 7}};
    for (const auto& [count, index, error] : titles) {
        CWntPulseFile file(CWntPulseFile::write);
        file.SetLineCount(count);
        EXPECT_EQ(file.SetLineTitle(index, "title"), error) << count << ' ' << index;
    }
    std::string texts;
    for (int error = 1; error <= 10; ++error)
        texts.append(CWntPulseFile::ErrorText(error)).append(";");
    EXPECT_EQ(texts, "undifined error;wrong use of get;wrong use of put;wrong open mode;file not open;"
                     "error while reading data;out of range;file already open;errpr while writing data;"
                     "undifined error;");

    CWntPulseFile file(CWntPulseFile::write, "a.txt");
    EXPECT_EQ(code_of([&] { file.Put(1, 1, -1); }), invalid_argument);
    EXPECT_EQ(file.GetError(), 0);
#ifdef __linux__
    CWntPulseFile full(CWntPulseFile::write, "/dev/full");
    for (int i = 0; i < 300; ++i) // until the stream's buffer can take no more
        EXPECT_NE(full.Put(1, 1, 1), 0);
    EXPECT_EQ(full.GetError(), 0);
#endif
}

} // namespace
