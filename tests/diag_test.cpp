// Memory shared with another process, the splash, the error box and the file choice.
#include "modal.h"
#include "quiet_program.h"
#include "pixels.h"
#include "resource_file.h"

#include <numeric>

namespace {

constexpr const char* block_name = "zopwnt test block";
constexpr std::int32_t block_size = 100'003;

Bytes bytes_of(const CWntShMem& block) {
    const auto* first = static_cast<const unsigned char*>(block.GetPtr());
    return Bytes(first, first + block_size);
}

TEST(SharedMemory, IsOneForAllOfItsName) {
    CWntShMem block(block_name, block_size), other(block_name, block_size);
    ASSERT_TRUE(block.GetPtr() && other.GetPtr());
    EXPECT_EQ(bytes_of(block), Bytes(block_size));
    Bytes plain(block_size);
    std::iota(plain.begin(), plain.end(), static_cast<unsigned char>(1));
    std::ranges::copy(plain, static_cast<unsigned char*>(block.GetPtr()));
    EXPECT_EQ(bytes_of(other), plain);
    block.Scramble();
    const Bytes scrambled = bytes_of(other);
    EXPECT_NE(Bytes(scrambled.end() - 9, scrambled.end()), Bytes(plain.end() - 9, plain.end()));
    other.Scramble();
    EXPECT_EQ(bytes_of(block), plain);
}

TEST(SharedMemory, GoesWithItsLastUser) {
    const void* const place = CWntShMem(block_name, block_size).GetPtr();
    MEMORY_BASIC_INFORMATION memory = {};
    ::VirtualQuery(place, &memory, sizeof memory);
    EXPECT_EQ(memory.State, static_cast<DWORD>(MEM_FREE));
    EXPECT_EQ(::OpenFileMappingA(FILE_MAP_READ, FALSE, block_name), nullptr);
}

TEST(SharedMemory, IsNullWhereThereIsNoSuchBlock) {
    for (const std::int32_t size : {0, -1, INT32_MIN}) {
        CWntShMem none("zopwnt test nothing", size);
        EXPECT_EQ(none.GetPtr(), nullptr);
        none.Scramble();
    }
    const CWntShMem small("zopwnt test small", 4000);
    EXPECT_EQ(CWntShMem("zopwnt test small", 40'000).GetPtr(), nullptr);
    EXPECT_EQ(CWntShMem(std::string(5000, 'x').c_str(), 4000).GetPtr(), nullptr);
}

constexpr int picture_width = 60;
constexpr int picture_height = 40;
constexpr COLORREF upper_colour = RGB(200, 40, 30);
constexpr COLORREF lower_colour = RGB(30, 60, 190);

/// Two colours of a table, one above the other, as a bitmap resource.
Bytes picture_resource() {
    const BITMAPINFOHEADER header = {sizeof header, picture_width, picture_height, 1, 8, BI_RGB, 0, 0, 0, 2, 0};
    const RGBQUAD colours[2] = {{190, 60, 30, 0}, {30, 40, 200, 0}};
    Bytes bytes(sizeof header + sizeof colours + picture_width * picture_height);
    std::memcpy(bytes.data(), &header, sizeof header);
    std::memcpy(bytes.data() + sizeof header, colours, sizeof colours);
    std::fill_n(bytes.end() - picture_width * picture_height / 2, picture_width * picture_height / 2, 1);
    return bytes;
}

int splashes = 0; // that live

struct Splash : CWntSplash {
    explicit Splash(UINT time = 60'000, UINT bitmap = 1) : CWntSplash(bitmap, time) { ++splashes; }
    ~Splash() override { --splashes; }
};

void pump() {
    MSG message;
    while (::PeekMessage(&message, nullptr, 0, 0, PM_NOREMOVE))
        AfxPumpMessage();
}

struct SplashTest : testing::Test {
    void SetUp() override {
        ASSERT_TRUE(write_resource_file(file, reinterpret_cast<LPCSTR>(RT_BITMAP), picture_resource()));
        module = ::LoadLibraryExA(file, nullptr, LOAD_LIBRARY_AS_DATAFILE);
        AfxSetResourceHandle(module);
    }
    void TearDown() override {
        AfxSetResourceHandle(nullptr);
        ::FreeLibrary(module);
        ::DeleteFileA(file);
        EXPECT_EQ(splashes, 0);
    }
    static Splash* shown(UINT time = 60'000) {
        auto* splash = new Splash(time);
        EXPECT_TRUE(splash->Create());
        return splash;
    }

    static constexpr const char* file = "splash test.dll";
    HMODULE module = nullptr;
};

} // namespace

TEST_F(SplashTest, StandsInFrontInTheMiddleOfTheScreen) {
    Splash* splash = shown();
    CRect place;
    splash->GetWindowRect(&place);
    EXPECT_EQ(place.Size(), CSize(picture_width, picture_height));
    EXPECT_NEAR(place.CenterPoint().x, ::GetSystemMetrics(SM_CXSCREEN) / 2, 1);
    EXPECT_NEAR(place.CenterPoint().y, ::GetSystemMetrics(SM_CYSCREEN) / 2, 1);
    EXPECT_TRUE(splash->GetExStyle() & WS_EX_TOPMOST);
    Picture picture(picture_width, picture_height);
    picture.capture(splash->m_hWnd);
    EXPECT_EQ(picture.count(upper_colour), picture_width * picture_height / 2);
    EXPECT_EQ(picture.at(5, 5), lower_colour);
    EXPECT_FALSE(splash->Create()); // once is enough
    CBitmap bitmap;
    CPalette palette;
    ASSERT_TRUE(splash->GetBitmapAndPalette(1, bitmap, palette));
    PALETTEENTRY first = {};
    palette.GetPaletteEntries(1, 1, &first);
    EXPECT_EQ(RGB(first.peRed, first.peGreen, first.peBlue), RGB(128, 0, 0)) << "a halftone where colours are many";
    delete splash;
    EXPECT_FALSE(Splash(1000, 148).Create()); // the library's own bitmap is not the host's
}

TEST_F(SplashTest, GoesOnceWhicheverWayItEnds) {
    delete shown(); // some objects stay with the process from the first on
    pump();
    const int objects = live_gdi_objects();
    for (const UINT message : {WM_KEYDOWN, WM_SYSKEYDOWN, WM_LBUTTONDOWN, WM_RBUTTONDOWN, WM_MBUTTONDOWN}) {
        Splash* splash = shown();
        const HWND owner = ::GetWindow(splash->m_hWnd, GW_OWNER);
        splash->PostMessage(WM_MOUSEMOVE);
        splash->PostMessage(WM_TIMER, 77); // another timer's
        pump();
        ASSERT_EQ(splashes, 1) << message;
        for (int i = 0; i < 3; ++i) // only the first finds it
            splash->PostMessage(message, VK_SPACE);
        pump();
        EXPECT_EQ(splashes, 0) << message;
        EXPECT_FALSE(::IsWindow(owner));
    }
    shown()->DestroyWindow();
    shown()->SendMessage(WM_CLOSE);
    ::DestroyWindow(::GetWindow(shown()->m_hWnd, GW_OWNER));
    delete shown();
    EXPECT_EQ(splashes, 0);
    pump();
    EXPECT_EQ(live_gdi_objects(), objects);
}

TEST_F(SplashTest, GoesWhenItsTimeIsUpWhileOthersStay) {
    const DWORD start = ::GetTickCount();
    Splash* late = shown();
    shown(300);
    shown(0);
    while (splashes > 1 && ::GetTickCount() - start < 60'000) {
        late->PostMessage(WM_MOUSEMOVE);
        pump();
    }
    EXPECT_EQ(splashes, 1);
    EXPECT_GE(::GetTickCount() - start, 290u);
    EXPECT_TRUE(::IsWindow(late->m_hWnd));
    late->DestroyWindow();
}

// What the box shows in its controls, an end after each.
std::string shown_by(CWntErrorBox&& box) {
    std::string texts;
    WhileModal modal([&] {
        if (!::IsWindowVisible(box.m_hWnd))
            return false;
        box.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN);
        for (const int id : {1003, 1004, 1005}) {
            CString text;
            box.GetDlgItemText(id, text);
            CRect client;
            box.GetDlgItem(id)->GetClientRect(&client);
            Picture picture(client.right, client.bottom);
            picture.capture(box.GetDlgItem(id)->m_hWnd);
            texts += text + (picture.count(::GetSysColor(COLOR_BTNFACE)) == 0 ? "|" : ".");
        }
        box.PostMessage(WM_COMMAND, IDOK);
        return true;
    });
    EXPECT_EQ(box.DoModal(), IDOK);
    return texts;
}

TEST(ErrorBox, ShowsItsTextsAndBreaksEndlessWords) {
    EXPECT_EQ(shown_by(CWntErrorBox("Title & more", "The message", "Detail 1\r\nDetail 2")),
              "Title & more|The message|Detail 1\r\nDetail 2|");
    const CString endless('x', 200'000); // kept the box from appearing for a minute
    const std::string shown = shown_by(CWntErrorBox(endless, "message", endless));
    EXPECT_EQ(std::count(shown.begin(), shown.end(), 'x'), 400'000);
    EXPECT_EQ(shown.find(std::string(1001, 'x')), std::string::npos);
    EXPECT_EQ(std::count(shown.begin(), shown.end(), '\n'), 2 * 199);
}

TEST(FileSel, OpensInTheMiddleOfItsParent) {
    CWnd host;
    ASSERT_TRUE(host.CreateEx(0, nullptr, "host", WS_POPUP | WS_VISIBLE, CRect(200, 100, 1000, 700), nullptr, 0));
    CWntFileSel choice(TRUE, "dll", "ZOPWNT", OFN_HIDEREADONLY, "Libraries|*.dll||", &host);
    CRect place;
    WhileModal modal([&] {
        if (!choice.m_hWnd || !::IsWindowVisible(::GetParent(choice.m_hWnd)))
            return false;
        ::GetWindowRect(::GetParent(choice.m_hWnd), &place);
        ::PostMessage(::GetParent(choice.m_hWnd), WM_COMMAND, IDOK, 0);
        return true;
    });
    EXPECT_TRUE(choice.DoModal() == IDOK && choice.GetFileName() == "ZOPWNT.dll");
    EXPECT_NEAR(place.CenterPoint().x, 600, 2);
    EXPECT_NEAR(place.CenterPoint().y, 400, 2);
}
