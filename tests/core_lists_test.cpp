#include "controls/wnt_ulist.h"
#include "out/wnt_objlist.h"

#include <gtest/gtest.h>

#include <climits>
#include <cstring>
#include <functional>
#include <sstream>

namespace {

// Lists that free what they hold, as their own destructors do not.
template <class List> struct Held : List {
    ~Held() override { this->destroy(); }
};

// What every list ends with: destroyed twice, and where the call arrives no object at all.
template <class List> void expect_refusals(List& list, auto refuses_all, auto create) {
    for (int i = 0; i < 2; ++i)
        list.destroy();
    EXPECT_TRUE(refuses_all(&list));
#ifdef _WIN32 // elsewhere the sanitizer ends the call before the object is asked
    List* volatile none = nullptr;
    EXPECT_TRUE(refuses_all(none) && create(none) == 0 && none->flush() == 0 && none->seek(1, 0) == 0);
    EXPECT_EQ(none->queryitemno(), -1);
    none->destroy();
#endif
}

// A record of calls made again: a line's words are calls with their answers, behind them stands what they left.
std::string replayed(const std::string& record, const std::function<std::string(const std::string&)>& answer,
                     const std::function<std::string()>& state) {
    std::istringstream lines(record);
    std::string text, line, word;
    while (std::getline(lines, line)) {
        std::istringstream words(line.substr(0, line.find(" | ")));
        while (words >> word) {
            const std::string call = word.substr(0, word.find('>', 1));
            text += call + ">" + answer(call) + " ";
        }
        text += "| " + state() + "\n";
    }
    return text;
}

// Bytes of a list: small numbers as digits, zeroes as dots.
std::string shown(const std::uint8_t* from, const std::uint8_t* to) {
    std::string text;
    for (; from != to; ++from)
        text += *from == 0 ? '.' : *from < ' ' ? static_cast<char>('0' + *from) : static_cast<char>(*from);
    return text;
}

std::string answer_of(CWntObjlist& list, const std::string& call) {
    const std::size_t colon = std::min(call.find(':'), call.size());
    std::string key = call.substr(1, colon - 1), data = call.substr(std::min(colon + 1, call.size()));
    const int length = static_cast<int>(data.size());
    switch (call[0]) {
    case '+':
        return std::to_string(list.additem(key.data(), length, data.data()));
    case 'i':
        return std::to_string(list.insertitem(key.data(), length, data.data()));
    case '-':
        return std::to_string(list.deleteitem());
    case '=':
        return std::to_string(list.updateitem(key.data(), length, data.data()));
    case 'r': {
        const int found = list.readitem(key.data(), length, data.data());
        return std::to_string(found) + data;
    }
    case 's':
        return std::to_string(list.seek(key[0] - '0', 0));
    case 'f':
        return std::to_string(list.flush());
    default:
        const auto* found = static_cast<std::uint8_t*>(list.nextitem(key.data()));
        return found ? "at" + std::to_string(found - list.buffer) : "none";
    }
}

TEST(Objlist, PacksRecordsAndWalksThem) {
    constexpr int size = 40;
    const std::string record =
        R"(+AB:xyz>1 +ABCDE:1>1 +B:77>1 +C:22>0 +C:>0 i:22>-1 +C:1>1 | ^AB..3...xyzABCD1...1B...2...77C...1...1 4
?AB>none ?B>none | AB..3...xyzABCD1...1B...2...77C...1...1^ 4
s1>1 ?AB>at8 ?ABCD>at19 rABCD:___>11__ rABC:___>0___ =ABC:8>0 =ABCD:9>1 =ABCD:88>1 | AB..3...xyz^ABCD1...9B...2...77C...1...1 4
->1 | AB..3...xyz^B...2...77C...1...1 3
i:ab>-1 iE:>0 | AB..3...xyzE.......^B...2...77C...1...1 4
s1>1 ?C>none ->0 s0>1 | AB..3...xyz^E.......B...2...77C...1...1 4
s2>1 ->0 rC:_>0_ ?C>none | AB..3...xyzE.......B...2...77C...1...1^ 4
f>1 +C:a>1 +B:b>1 | ^C...1...aB...1...b 2
s1>1 ?C>at8 ?B>at17 ?C>none | C...1...aB...1...b^ 2
s1>1 ?B>at17 iD:>0 | C...1...aD.......^B...1...b 3
s1>1 ?C>at8 ?B>none ?B>at25 | C...1...aD.......^B...1...b 3
s1>1 ?D>at17 ->0 s2>1 iZ:>0 s1>1 ?Z>none ?Z>at34 rZ:>1 | C...1...aD.......B...1...b^Z....... 4
)";
    Held<CWntObjlist> list;
    list.create(nullptr, size);
    const auto state = [&] {
        EXPECT_EQ(shown(list.end, list.buffer + size).find_first_not_of('.'), std::string::npos)
            << "free bytes are zero";
        return shown(list.buffer, list.cursor) + "^" + shown(list.cursor, list.end) + " " +
               std::to_string(list.queryitemno());
    };
    EXPECT_EQ(replayed(
                  record, [&](const std::string& call) { return answer_of(list, call); }, state),
              record);
}

TEST(Objlist, RefusesMisuse) {
    char key[] = "A", data[16] = {};
    Held<CWntObjlist> list;
    const auto refuses_all = [&](CWntObjlist* each) {
        return each->additem(key, 4, data) == 0 && each->insertitem(key, 4, data) == -1 && each->deleteitem() == 0 &&
               !each->nextitem(key) && each->readitem(key, 4, data) == 0 && each->updateitem(key, 4, data) == 0;
    };
    EXPECT_EQ(list.create(nullptr, -1), 0);
    EXPECT_TRUE(refuses_all(&list));
    const auto create = [](CWntObjlist* each) { return each->create(nullptr, 100); };
    ASSERT_TRUE(create(&list) == 1 && create(&list) == 1); // the second frees what the first made
    ASSERT_TRUE(list.additem(key, 4, data) == 1 && !list.previousitem(key));
    list.seek(1, 0);
    ASSERT_EQ(create(&list), 1);
    EXPECT_EQ(list.queryitemno() + list.atstart, 0);
    ASSERT_EQ(list.additem(key, 4, data), 1);
    for (int length : {-1, INT_MIN, INT_MAX})
        EXPECT_TRUE(list.additem(key, length, data) == 0 && list.insertitem(key, length, data) == -1) << length;
    EXPECT_TRUE(list.additem(nullptr, 4, data) == 0 && list.insertitem(key, 4, nullptr) == -1);
    EXPECT_TRUE(list.readitem(key, -1, data) == 0 && list.readitem(key, 4, nullptr) == 0 && !list.nextitem(nullptr));

    // Lengths that lead out of the list, and cursors that stand outside.
    for (std::uint32_t length : {5u, 0x7FFFFFFFu, 0xFFFFFFFFu}) {
        std::memcpy(list.buffer + 4, &length, sizeof length);
        list.seek(1, 0);
        EXPECT_TRUE(!list.nextitem(key) && list.deleteitem() == 0 && list.readitem(key, 4, data) == 0) << length;
    }
    list.flush();
    auto* const foreign = reinterpret_cast<std::uint8_t*>(data);
    for (std::uint8_t* cursor : {static_cast<std::uint8_t*>(nullptr), list.buffer + 1, foreign, list.buffer + 100}) {
        list.cursor = cursor;
        EXPECT_TRUE(list.insertitem(key, 4, data) == -1 && list.deleteitem() == 0 && !list.nextitem(key));
    }
    expect_refusals(list, refuses_all, create);
}

// Items of an odd size, so that slots are not aligned.
std::string answer_of(CWntUlist& list, const std::string& call) {
    std::string item = call.substr(1);
    const auto index = [&](void* at) {
        return at ? std::to_string((static_cast<std::uint8_t*>(at) - list.buffer) / 3.0).substr(0, 3) : "none";
    };
    switch (call[0]) {
    case '+':
        return std::to_string(list.additem(item.data()));
    case 'i':
        return std::to_string(list.insertitem(item.data()));
    case '-':
        return std::to_string(list.deleteitem());
    case '=':
        return std::to_string(list.updateitem(item.data()));
    case 's':
        return std::to_string(list.seek(call[1] - '0', std::stoi(call.substr(2))));
    case 'n':
        return index(list.nextitem());
    case 'p':
        return index(list.previousitem());
    case 'r':
        return index(list.readitem());
    case 'm':
        return index(list.mkptr(std::stoi(item)));
    default:
        std::string out = "___";
        const int found = list.getitem(out.data(), std::stoi(item));
        return std::to_string(found) + out;
    }
}

TEST(Ulist, KeepsItsSlotsAndWalksThem) {
    const std::string record = R"(+abc>0 +def>1 p>none n>0.0 ighi>3 ijkl>-1 | abcghidef...... 3@1
+mno>3 +pqr>-1 =stu>1 r>1.0 m3>3.0 m4>none m-1>none g0>1abc g3>1mno g4>0___ g-1>0___ | abcstudefmno... 4@1
s0+2>1 s0+9>1 s0-4>1 r>3.0 | abcstudefmno... 4@3
s1+4>1 n>none r>none =vwx>0 p>4.0 p>3.0 | abcstudefmno... 4@2
p>2.0 p>1.0 p>none | abcstudefmno... 4@0
s2+0>1 ->1 ->1 | abcstudef...... 2@4
s1-1>1 ->0 n>none | abcstudef...... 2@-1
s1+0>1 ->1 | stustu......... 1@0
s1+4>1 iyz2>-1 s3+1>1 p>4.0 | stustu......... 1@3
+yz0>1 s1+3>1 iyz1>3 | stuyz0...yz1... 3@3
s1+1>1 ->1 | stu............ 2@1
s1+0>1 iyz3>3 | yz3stu......... 3@0
)";
    Held<CWntUlist> list;
    list.create(nullptr, 3, 4);
    const auto state = [&] {
        return shown(list.buffer, list.buffer + 5 * 3) + " " + std::to_string(list.queryitemno()) + "@" +
               std::to_string(list.cursor);
    };
    EXPECT_EQ(replayed(
                  record, [&](const std::string& call) { return answer_of(list, call); }, state),
              record);
}

TEST(Ulist, RefusesMisuse) {
    char item[8] = {};
    Held<CWntUlist> list;
    const auto refuses_all = [&](CWntUlist* each) {
        return each->additem(item) == -1 && each->insertitem(item) == -1 && each->deleteitem() == 0 &&
               each->getitem(item, 0) == 0 && !each->mkptr(0) && !each->readitem() && !each->nextitem() &&
               !each->previousitem() && each->updateitem(item) == 0;
    };
    const int refused[][2] = {{-1, 4}, {4, -1}, {-4, -4}, {65536, 65536}, {INT_MAX, 2}, {INT_MIN, INT_MIN}};
    for (const auto& [size, capacity] : refused)
        EXPECT_TRUE(list.create(nullptr, size, capacity) == 0 && refuses_all(&list)) << size << " x " << capacity;
    const auto create = [](CWntUlist* each) { return each->create(nullptr, 8, 4); };
    ASSERT_TRUE(create(&list) == 1 && create(&list) == 1);
    EXPECT_TRUE(list.additem(nullptr) == -1 && list.insertitem(nullptr) == -1 && list.additem(item) == 0 &&
                list.updateitem(nullptr) == 0 && list.getitem(nullptr, 0) == 0);
    for (int end : {INT_MIN, INT_MAX}) {
        list.seek(1, end);
        list.seek(0, end); // the sum is beyond 32 bits
        EXPECT_TRUE(list.insertitem(item) == -1 && !list.previousitem() && !list.nextitem()) << end;
    }
    list.seek(1, 2);
    EXPECT_TRUE(list.flush() == 1 && list.cursor == 2 && list.queryitemno() == 0);
    expect_refusals(list, refuses_all, create);
}

} // namespace
