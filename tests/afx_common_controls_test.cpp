// The common controls through their classes, and lists of pictures.
#include "afx_test_app.h"

#include <afxcmn.h>
#include <afxext.h>

#include <gmock/gmock.h>

namespace {

class AfxCommonControls : public testing::Test {
protected:
    AfxCommonControls() { EXPECT_TRUE(create_visible_popup(parent)); }
    ~AfxCommonControls() override { parent.DestroyWindow(); }
    static constexpr DWORD shown = WS_CHILD | WS_VISIBLE;
    const CRect place{0, 0, 100, 60};

    CWnd parent;
};

TEST_F(AfxCommonControls, NumbersStayInTheirRanges) {
    CSliderCtrl slider;
    CSpinButtonCtrl spin;
    CProgressCtrl progress;
    CEdit buddy;
    ASSERT_TRUE(slider.Create(shown | TBS_AUTOTICKS | TBS_ENABLESELRANGE, place, &parent, 1));
    ASSERT_TRUE(buddy.Create(shown, CRect(0, 0, 50, 20), &parent, 2));
    ASSERT_TRUE(spin.Create(shown | UDS_SETBUDDYINT | UDS_NOTHOUSANDS, CRect(50, 0, 60, 20), &parent, 3));
    ASSERT_TRUE(progress.Create(shown, place, &parent, 4));
    slider.SetRange(-20, 20);
    slider.SetPos(30);
    slider.SetTicFreq(10);
    slider.SetSelection(-5, 5);
    int least = 0, most = 0;
    slider.GetSelection(least, most);
    EXPECT_TRUE(slider.GetPos() == 20 && least == -5 && most == 5);
    EXPECT_EQ(slider.GetNumTics(), 5u);
    spin.SetBuddy(&buddy);
    spin.SetRange32(-100000, 100000);
    spin.SetPos32(70000); // more than 16 bits
    CString text;
    buddy.GetWindowText(text);
    EXPECT_EQ(text, "70000");
    spin.GetRange32(least, most);
    EXPECT_TRUE(least == -100000 && most == 100000 && spin.GetPos32() == 70000);
    BOOL wrong = FALSE;
    buddy.SetWindowText("no number");
    spin.GetPos32(&wrong);
    EXPECT_TRUE(wrong);
    spin.SetRange(5, -5); // downwards, as a spin button likes it
    spin.GetRange(least, most);
    EXPECT_TRUE(least == 5 && most == -5);
    progress.SetRange32(0, 70000);
    EXPECT_EQ(progress.SetPos(69999), 0);
    progress.SetStep(10);
    progress.StepIt();
    EXPECT_LE(progress.GetPos(), 70000);
}

TEST_F(AfxCommonControls, AHotKeyHasANameWithItsModifiers) {
    CHotKeyCtrl key;
    ASSERT_TRUE(key.Create(shown, place, &parent, 1));
    EXPECT_TRUE(key.GetHotKeyName().IsEmpty());
    key.SetHotKey('P', HOTKEYF_CONTROL | HOTKEYF_SHIFT);
    WORD code = 0, held = 0;
    key.GetHotKey(code, held);
    EXPECT_TRUE(code == 'P' && held == (HOTKEYF_CONTROL | HOTKEYF_SHIFT));
    const CString name = key.GetHotKeyName();
    EXPECT_EQ(name, CHotKeyCtrl::GetKeyName(VK_CONTROL, FALSE) + " + " + CHotKeyCtrl::GetKeyName(VK_SHIFT, FALSE) +
                        " + " + CHotKeyCtrl::GetKeyName('P', FALSE));
}

TEST_F(AfxCommonControls, AHeaderKeepsItsItemsAndTheirOrder) {
    CHeaderCtrl header;
    ASSERT_TRUE(header.Create(shown | HDS_DRAGDROP, place, &parent, 1));
    for (int i = 0; i < 3; ++i) {
        const CString name('a' + static_cast<char>(i), 1);
        HDITEM item{};
        item.mask = HDI_TEXT | HDI_WIDTH;
        item.pszText = const_cast<LPTSTR>(name.GetString());
        item.cxy = 10 * (i + 1);
        EXPECT_EQ(header.InsertItem(99, &item), i);
    }
    int order[3] = {2, 0, 1}, found[3] = {};
    ASSERT_TRUE(header.SetOrderArray(3, order) && header.GetOrderArray(found));
    EXPECT_THAT(found, testing::ElementsAre(2, 0, 1));
    EXPECT_EQ(header.OrderToIndex(0), 2);
    CRect third;
    EXPECT_TRUE(header.GetItemRect(2, third));
    EXPECT_EQ(third.Width(), 30);
    HDHITTESTINFO hit{};
    hit.pt = CPoint(35, 5);
    EXPECT_EQ(header.HitTest(&hit), 0) << "behind the third, which comes first";
    EXPECT_TRUE(header.DeleteItem(0) && header.GetItemCount() == 2);
    EXPECT_FALSE(header.DeleteItem(7));
}

TEST_F(AfxCommonControls, AFilmIsPlayedFromTheResources) {
    CAnimateCtrl film;
    ASSERT_TRUE(film.Create(shown | ACS_TRANSPARENT, place, &parent, 1));
    EXPECT_FALSE(film.Open(9999)) << "there is none";
    ASSERT_TRUE(film.Open(IDR_FILM));
    EXPECT_TRUE(film.Seek(3) && film.Play(0, UINT(-1), UINT(-1)));
    EXPECT_TRUE(film.Stop());
    EXPECT_TRUE(film.Close());
}

TEST_F(AfxCommonControls, AStatusBarKeepsTheTextsOfItsParts) {
    CStatusBarCtrl bar;
    ASSERT_TRUE(bar.Create(shown, place, &parent, 1));
    int ends[3] = {30, 60, -1}, found[3] = {};
    ASSERT_TRUE(bar.SetParts(3, ends));
    EXPECT_EQ(bar.GetParts(3, found), 3);
    EXPECT_THAT(found, testing::ElementsAre(30, 60, -1));
    const CString longest('w', 300);
    bar.SetText("one", 0, 0);
    bar.SetText(longest, 1, SBT_POPOUT);
    int type = 0;
    EXPECT_EQ(bar.GetText(1, &type), longest);
    EXPECT_EQ(type, SBT_POPOUT);
    EXPECT_EQ(bar.GetTextLength(0), 3);
    EXPECT_EQ(bar.GetText(2), "");
    int horizontal = -1, vertical = -1, between = -1;
    EXPECT_TRUE(bar.GetBorders(horizontal, vertical, between) && horizontal >= 0 && vertical >= 0 && between >= 0);
    bar.SetSimple();
    EXPECT_TRUE(bar.IsSimple());
}

TEST_F(AfxCommonControls, AToolbarKeepsItsButtonsAndTheirStates) {
    CToolBarCtrl bar;
    ASSERT_TRUE(bar.Create(shown, place, &parent, 1));
    EXPECT_EQ(bar.AddBitmap(4, IDR_FRAME), 0);
    const int first = bar.AddStrings("First\0Second\0"), loaded = bar.AddString(IDS_CAPTION);
    EXPECT_TRUE(first == 0 && loaded >= 1);
    EXPECT_EQ(bar.AddString(9999), -1);
    TBBUTTON buttons[3]{};
    for (int i = 0; i < 3; ++i) {
        buttons[i].idCommand = 100 + i;
        buttons[i].iBitmap = i;
        buttons[i].iString = first;
        buttons[i].fsState = TBSTATE_ENABLED;
        buttons[i].fsStyle = TBSTYLE_CHECK;
    }
    ASSERT_TRUE(bar.AddButtons(3, buttons));
    EXPECT_TRUE(bar.CheckButton(101) && bar.IsButtonChecked(101) && !bar.IsButtonChecked(100));
    EXPECT_TRUE(bar.EnableButton(102, FALSE) && !bar.IsButtonEnabled(102));
    EXPECT_TRUE(bar.HideButton(100) && bar.IsButtonHidden(100));
    EXPECT_EQ(bar.CommandToIndex(102), 2u);
    CString text;
    EXPECT_TRUE(bar.GetString(first, text) == 5 && text == "First");
    EXPECT_LT(bar.GetString(77, text), 0);
    EXPECT_TRUE(bar.SetCmdID(0, 200) && bar.CommandToIndex(200) == 0u);
    EXPECT_TRUE(bar.ChangeBitmap(200, 3) && bar.GetBitmap(200) == 3);
    EXPECT_TRUE(bar.DeleteButton(0) && bar.GetButtonCount() == 2);
    EXPECT_FALSE(bar.DeleteButton(5));
}

// -- Items that are dragged -------------------------------------------------------------------------------------------

TEST_F(AfxCommonControls, ADraggedItemGoesWhereItIsDropped) {
    class open_list : public CDragListBox {
    public:
        using CDragListBox::OnChildNotify;
    } list;
    ASSERT_TRUE(list.Create(shown | LBS_NOTIFY, CRect(0, 0, 80, 60), &parent, 1));
    const auto reset = [&] {
        list.ResetContent();
        for (int i = 0; i < 3; ++i)
            list.SetItemData(list.AddString(CString('a' + static_cast<char>(i), 1)), static_cast<DWORD_PTR>(i));
    };
    const auto row = [&](int item) {
        CRect place;
        list.GetItemRect(item, place);
        CPoint middle = place.CenterPoint();
        list.ClientToScreen(&middle);
        return middle;
    };
    const auto order = [&] {
        std::string found;
        for (int i = 0; i < list.GetCount(); ++i) {
            CString text;
            list.GetText(i, text);
            EXPECT_EQ(text[0] - 'a', static_cast<int>(list.GetItemData(i))) << "the data go along";
            found += text;
        }
        return found;
    };
    // As the control tells of it.
    const auto tell = [&](UINT what, CPoint at) {
        DRAGLISTINFO drag{what, list.m_hWnd, at};
        LRESULT result = 0;
        EXPECT_TRUE(list.OnChildNotify(::RegisterWindowMessage(DRAGLISTMSGSTRING), 1, afx_param(&drag), &result));
        return result;
    };
    const struct {
        int from, before;
        const char* order;
    } cases[] = {{2, 0, "cab"}, {0, 2, "bac"}, {0, 0, "abc"}, {0, 1, "abc"}, {1, 0, "bac"}};
    for (const auto& one : cases) {
        reset();
        list.SetCurSel(one.from);
        EXPECT_NE(tell(DL_BEGINDRAG, row(one.from)), 0);
        EXPECT_EQ(tell(DL_DRAGGING, row(one.before)), DL_MOVECURSOR);
        tell(DL_DROPPED, row(one.before));
        EXPECT_EQ(order(), one.order) << one.from << " before " << one.before;
    }
    reset();
    list.SetCurSel(1);
    EXPECT_EQ(tell(DL_DRAGGING, CPoint(-500, -500)), DL_STOPCURSOR);
    tell(DL_DROPPED, CPoint(-500, -500));
    tell(DL_CANCELDRAG, row(0));
    EXPECT_EQ(order(), "abc");
}

// -- Lists of pictures ------------------------------------------------------------------------------------------------

class AfxImageList : public AfxCommonControls {
protected:
    AfxImageList() {
        CClientDC screen(&parent);
        EXPECT_TRUE(dc.CreateCompatibleDC(&screen) && bitmap.CreateCompatibleBitmap(&screen, 32, 16));
        before = dc.SelectObject(&bitmap);
        EXPECT_TRUE(list.Create(16, 16, ILC_COLOR24 | ILC_MASK, 0, 4));
        for (const COLORREF colour : {red, green}) { // one after the other, each with a magenta hole
            CBitmap image;
            image.CreateCompatibleBitmap(&screen, 16, 16);
            CBitmap* other = dc.SelectObject(&image);
            dc.FillSolidRect(0, 0, 16, 16, colour);
            dc.FillSolidRect(4, 4, 4, 4, hole);
            dc.SelectObject(other);
            list.Add(&image, hole);
        }
    }
    ~AfxImageList() override { dc.SelectObject(before); }
    // What is drawn over blue, at a corner and in the hole.
    std::pair<COLORREF, COLORREF> drawn(CImageList& from, int image) {
        dc.FillSolidRect(0, 0, 32, 16, blue);
        EXPECT_TRUE(from.Draw(&dc, image, CPoint(0, 0), ILD_NORMAL));
        return {dc.GetPixel(0, 0), dc.GetPixel(5, 5)};
    }

    static constexpr COLORREF red = RGB(255, 0, 0), green = RGB(0, 255, 0), blue = RGB(0, 0, 255),
                              hole = RGB(255, 0, 255);
    CDC dc;
    CBitmap bitmap;
    CBitmap* before = nullptr;
    CImageList list;
};

TEST_F(AfxImageList, DrawsCopiesAndReplacesItsPictures) {
    ASSERT_EQ(list.GetImageCount(), 2);
    EXPECT_EQ(drawn(list, 0), std::pair(red, blue));
    EXPECT_EQ(drawn(list, 1), std::pair(green, blue));
    EXPECT_FALSE(list.Create(16, 16, ILC_COLOR, 1, 1)) << "it holds a list already";
    CImageList copy;
    ASSERT_TRUE(copy.Create(&list));
    EXPECT_TRUE(copy.Copy(0, 1, ILCF_SWAP));
    EXPECT_EQ(drawn(copy, 0), std::pair(green, blue));
    EXPECT_TRUE(copy.Remove(0) && copy.GetImageCount() == 1);
    EXPECT_EQ(list.GetImageCount(), 2) << "a copy is one of its own";
    const HICON icon = list.ExtractIcon(1);
    EXPECT_EQ(copy.Add(icon), 1);
    ::DestroyIcon(icon);
    EXPECT_EQ(drawn(copy, 1).first, green);
    CImageList both;
    ASSERT_TRUE(both.Create(list, 0, list, 1, 8, 0));
    EXPECT_EQ(drawn(both, 0).first, red);
    EXPECT_EQ(dc.GetPixel(20, 12), green) << "the second lies eight to the right";
}

TEST_F(AfxImageList, GoesThroughAnArchiveBetweenOtherThings) {
    CMemFile file;
    {
        CArchive ar(&file, CArchive::store, 128);
        ar << 7;
        ASSERT_TRUE(list.Write(&ar));
        ar << CString("behind");
    }
    file.SeekToBegin();
    {
        CArchive ar(&file, CArchive::load, 128);
        int before = 0;
        CString behind;
        CImageList read;
        ar >> before;
        ASSERT_TRUE(read.Read(&ar));
        ar >> behind;
        EXPECT_TRUE(before == 7 && behind == "behind");
        EXPECT_EQ(read.GetImageCount(), 2);
        EXPECT_EQ(drawn(read, 1), std::pair(green, blue));
    }
    for (const int length : {0, 3, 10, 40, 90}) {
        file.SeekToBegin();
        CMemFile cut;
        std::vector<BYTE> bytes(static_cast<std::size_t>(length) + 4);
        file.Read(bytes.data(), static_cast<UINT>(bytes.size()));
        cut.Write(bytes.data() + 4, static_cast<UINT>(length));
        cut.SeekToBegin();
        CArchive ar(&cut, CArchive::load);
        CImageList read;
        EXPECT_FALSE(read.Read(&ar)) << length;
        EXPECT_EQ(read.m_hImageList, nullptr);
    }
}

TEST_F(AfxImageList, DragsOneOfItsPictures) {
    ASSERT_TRUE(list.BeginDrag(0, CPoint(3, 4)));
    EXPECT_TRUE(CImageList::DragEnter(&parent, CPoint(20, 20)));
    EXPECT_TRUE(CImageList::DragMove(CPoint(30, 25)));
    CPoint at, spot;
    EXPECT_NE(CImageList::GetDragImage(&at, &spot), nullptr);
    EXPECT_EQ(at, CPoint(30, 25));
    EXPECT_EQ(spot, CPoint(3, 4));
    EXPECT_TRUE(CImageList::DragLeave(&parent));
    CImageList::EndDrag();
    EXPECT_FALSE(list.BeginDrag(9, CPoint(0, 0)));
}

// -- Buttons of bitmaps -----------------------------------------------------------------------------------------------

class open_bitmap_button : public CBitmapButton {
public:
    using CBitmapButton::DrawItem;
};

TEST_F(AfxCommonControls, BitmapButtonsShowTheBitmapOfTheirState) {
    open_bitmap_button button;
    ASSERT_TRUE(button.Create("Test", shown | BS_OWNERDRAW, CRect(0, 0, 5, 5), &parent, 1));
    EXPECT_FALSE(button.LoadBitmaps("NOSUCHU"));
    ASSERT_TRUE(button.LoadBitmaps(MAKEINTRESOURCE(IDB_UP), MAKEINTRESOURCE(IDB_DOWN)));
    button.SizeToContent();
    CRect size;
    button.GetClientRect(size);
    EXPECT_EQ(size.Size(), CSize(8, 8));
    const auto shows = [&](UINT state) {
        CClientDC dc(&button);
        DRAWITEMSTRUCT item{};
        item.itemState = state;
        item.hDC = dc;
        item.rcItem = size;
        button.DrawItem(&item);
        return dc.GetPixel(4, 4);
    };
    EXPECT_EQ(shows(0), RGB(255, 0, 0));
    EXPECT_EQ(shows(ODS_SELECTED), RGB(0, 0, 255));
    EXPECT_EQ(shows(ODS_DISABLED), RGB(255, 0, 0)) << "without one of its own";
}

} // namespace
