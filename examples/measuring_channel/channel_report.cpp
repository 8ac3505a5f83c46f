#include "channel_report.h"

#include "afxres.h"
#include "resource.h"

namespace {

constexpr const char* parts[] = {"Value", "Change", "Zone", "Time"};

struct Ink {
    const char* name;
    COLORREF colour;
};
constexpr Ink inks[] = {
    {"Black", RGB(0, 0, 0)}, {"Red", RGB(192, 0, 0)}, {"Green", RGB(0, 128, 0)}, {"Blue", RGB(0, 0, 192)}};
constexpr int picture_size = 12;

} // namespace

void ChannelReport::Join(CDataExchange* exchange) {
    const struct {
        int id;
        CWnd* control;
    } controls[] = {{IDC_REPORT_PAGE, &rebar_}, {IDC_EDITING, &editing_},      {IDC_INK, &ink_},
                    {IDC_REPORT, &text_},       {IDC_REPORT_HEADER, &header_}, {IDC_ORDER, &order_}};
    for (const auto& [id, control] : controls)
        DDX_Control(exchange, id, *control);
}

// The list shows the parts in their order; dragging changes it.
void ChannelReport::ExchangeOrder(CDataExchange* exchange, CString& order) {
    if (!exchange->m_bSaveAndValidate) {
        order_.ResetContent();
        for (int i = 0; i < order.GetLength(); ++i)
            order_.SetItemData(order_.AddString(""), static_cast<DWORD_PTR>(order[i] - '0'));
        ShowParts();
        return;
    }
    order.Empty();
    for (int i = 0; i < order_.GetCount(); ++i)
        order += static_cast<char>('0' + order_.GetItemData(i));
}

void ChannelReport::Build(CWnd& dialog) {
    struct {
        int picture;
        UINT command;
    } const commands[] = {
        {STD_CUT, ID_EDIT_CUT}, {STD_COPY, ID_EDIT_COPY}, {STD_PASTE, ID_EDIT_PASTE}, {STD_UNDO, ID_EDIT_UNDO}};
    editing_.SetButtonStructSize(sizeof(TBBUTTON)); // which Create would have done
    editing_.LoadImages(IDB_STD_SMALL_COLOR, HINST_COMMCTRL);
    for (const auto& [picture, command] : commands) {
        TBBUTTON button{};
        button.iBitmap = picture;
        button.idCommand = static_cast<int>(command);
        button.fsState = TBSTATE_ENABLED;
        editing_.AddButtons(1, &button);
    }
    editing_.SetOwner(&dialog); // the rebar will be its parent
    CSize size;
    editing_.GetMaxSize(&size);
    FillInks();
    AddBand(editing_, size.cx + 8);
    AddBand(ink_, 0);
    int column = 0;
    for (const char* title : {"Part", "Now"}) {
        CRect room;
        header_.GetClientRect(room);
        HDITEM item{};
        item.mask = HDI_TEXT | HDI_WIDTH;
        item.pszText = const_cast<char*>(title);
        item.cxy = column == 0 ? room.Width() / 3 : room.Width() - room.Width() / 3;
        header_.InsertItem(column++, &item);
    }
    FollowHeader();
}

void ChannelReport::AddBand(CWnd& child, int width) {
    CRect place;
    child.GetWindowRect(place);
    REBARBANDINFO band{};
    band.cbSize = REBARBANDINFOA_V6_SIZE;
    band.fMask = RBBIM_CHILD | RBBIM_CHILDSIZE | RBBIM_SIZE | RBBIM_STYLE;
    band.fStyle = RBBS_CHILDEDGE | RBBS_GRIPPERALWAYS;
    band.hwndChild = child.m_hWnd;
    band.cxMinChild = static_cast<UINT>(width != 0 ? width : place.Width());
    band.cyMinChild = static_cast<UINT>(place.Height());
    band.cx = band.cxMinChild + 16;
    rebar_.InsertBand(static_cast<UINT>(-1), &band);
}

// A square of each colour.
void ChannelReport::FillInks() {
    pictures_.Create(picture_size, picture_size, ILC_COLOR24, 0, 4);
    CClientDC screen(&ink_);
    CDC memory;
    memory.CreateCompatibleDC(&screen);
    for (const Ink& ink : inks) {
        CBitmap picture;
        picture.CreateCompatibleBitmap(&screen, picture_size, picture_size);
        CBitmap* before = memory.SelectObject(&picture);
        memory.FillSolidRect(0, 0, picture_size, picture_size, ink.colour);
        memory.SelectObject(before);
        pictures_.Add(&picture, CLR_NONE);
    }
    ink_.SetImageList(&pictures_);
    for (int i = 0; i < pictures_.GetImageCount(); ++i) {
        COMBOBOXEXITEM item{};
        item.mask = CBEIF_TEXT | CBEIF_IMAGE | CBEIF_SELECTEDIMAGE;
        item.iItem = item.iImage = item.iSelectedImage = i;
        item.pszText = const_cast<char*>(inks[i].name);
        ink_.InsertItem(&item);
    }
    ink_.SetCurSel(0);
}

void ChannelReport::Tell(const Reading& reading) {
    latest_ = reading;
    if (CWnd::GetCapture() != &order_) // not while an item is dragged
        ShowParts();
}

CString ChannelReport::PartOf(int part) const {
    CString text;
    switch (part) {
    case 0:
        text.Format("%d %s", latest_.value, latest_.unit.GetString());
        return text;
    case 1:
        text.Format("%+d", latest_.change);
        return text;
    case 2:
        return latest_.zone;
    default:
        return CTime::GetCurrentTime().Format("%H:%M:%S");
    }
}

void ChannelReport::ShowParts() {
    const int selected = order_.GetCurSel();
    order_.SetRedraw(FALSE);
    for (int i = 0; i < order_.GetCount(); ++i) {
        const DWORD_PTR part = order_.GetItemData(i);
        order_.DeleteString(static_cast<UINT>(i));
        order_.InsertString(i, CString(parts[part]) + "\t" + PartOf(static_cast<int>(part)));
        order_.SetItemData(i, part);
    }
    order_.SetCurSel(selected);
    order_.SetRedraw(TRUE);
    order_.Invalidate();
}

void ChannelReport::InsertReading() {
    CString line;
    for (int i = 0; i < order_.GetCount(); ++i)
        line += (i == 0 ? "" : ", ") + PartOf(static_cast<int>(order_.GetItemData(i)));
    text_.SetSel(-1, -1);
    text_.ReplaceSel(line + "\r\n", TRUE);
}

void ChannelReport::Edit(UINT command) {
    switch (command) {
    case ID_EDIT_CUT:
        text_.Cut();
        break;
    case ID_EDIT_COPY:
        text_.Copy();
        break;
    case ID_EDIT_PASTE:
        text_.Paste();
        break;
    default:
        text_.Undo();
    }
    text_.SetFocus();
}

void ChannelReport::UseInk() {
    if (ink_.GetCurSel() < 0)
        return;
    CHARFORMAT format{};
    format.dwMask = CFM_COLOR;
    format.crTextColor = inks[ink_.GetCurSel()].colour;
    text_.SetSelectionCharFormat(format);
    text_.SetFocus();
}

// A tab stop counts in the dialog's units, of which a hundred are so many pixels.
void ChannelReport::FollowHeader() {
    HDITEM first{};
    first.mask = HDI_WIDTH;
    CRect units(0, 0, 100, 0);
    ::MapDialogRect(order_.GetParent()->m_hWnd, units);
    if (header_.GetItem(0, &first) && units.right > 0)
        order_.SetTabStops(first.cxy * 100 / static_cast<int>(units.right));
    order_.Invalidate();
}
