#pragma once

#include <afxwin.h>

#include "zopwnt_api.h"

/// A scroll bar that moves its own thumb, so that its owner only has to read the position: the owner hands the scroll
/// messages that it gets on to the bar, or calls SetThumb. Lines step by 1, pages by the page size; the codes for the
/// ends move by one line only.
class ZOPWNT_API CWntScrollBar : public CScrollBar {
public:
    /// Applies a scroll code (SB_LINEUP and so on) to a bar: a thumb's code moves it to `pos`, unclamped here, the end
    /// of scrolling and unknown codes change nothing, and nor does a null bar.
    void SetThumb(UINT code, UINT pos, CScrollBar* bar);

protected:
    afx_msg void OnHScroll(UINT code, UINT pos, CScrollBar* bar);
    afx_msg void OnVScroll(UINT code, UINT pos, CScrollBar* bar);
    DECLARE_MESSAGE_MAP()
};
