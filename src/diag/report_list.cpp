#include "diag/report_list.h"

void wnt::ReportList::add_column(int index, const ReportColumn& column) {
    LVCOLUMNA record = {};
    record.mask = LVCF_TEXT | LVCF_WIDTH | LVCF_FMT | LVCF_SUBITEM;
    record.fmt = column.format;
    record.cx = column.width;
    record.pszText = const_cast<char*>(column.title);
    record.iSubItem = index;
    ::SendMessageA(control_, LVM_INSERTCOLUMNA, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(&record));
}

int wnt::ReportList::add_row(const char* text, int image) {
    LVITEMA record = {};
    record.mask = LVIF_TEXT | LVIF_IMAGE;
    record.iItem = ListView_GetItemCount(control_);
    record.pszText = const_cast<char*>(text);
    record.iImage = image;
    return static_cast<int>(::SendMessageA(control_, LVM_INSERTITEMA, 0, reinterpret_cast<LPARAM>(&record)));
}

void wnt::ReportList::set_cell(int row, int column, const char* text) {
    LVITEMA record = {};
    record.iSubItem = column;
    record.pszText = const_cast<char*>(text);
    ::SendMessageA(control_, LVM_SETITEMTEXTA, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&record));
}

void wnt::ReportList::set_images(HIMAGELIST images) {
    ListView_SetImageList(control_, images, LVSIL_NORMAL);
    ListView_SetImageList(control_, images, LVSIL_SMALL);
}
