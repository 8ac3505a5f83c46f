#pragma once

#include <afxwin.h>
#include <afxcmn.h>

#include <cstddef>

namespace wnt {

struct ReportColumn {
    const char* title;
    int width;
    int format = LVCFMT_LEFT;
};

/// The columns, rows and pictures of a list in report view; refers to the control and owns nothing.
class ReportList {
public:
    explicit ReportList(HWND control) : control_(control) {}

    template <std::size_t count> void add_columns(const ReportColumn (&columns)[count]) {
        for (int i = 0; i < static_cast<int>(count); ++i)
            add_column(i, columns[i]);
    }
    /// Behind the last row; answers its index.
    int add_row(const char* text, int image);
    void set_cell(int row, int column, const char* text);
    /// As normal and as small images; a report shows the small ones.
    void set_images(HIMAGELIST images);

private:
    void add_column(int index, const ReportColumn& column);

    HWND control_;
};

} // namespace wnt
