#pragma once

#include <afxwin.h>

#include "zopwnt_api.h"

/// A picture in front of everything that goes by itself: after its time, or when it is clicked or gets a key.
///
///     auto* splash = new CWntSplash(IDB_WELCOME, 2000);
///     if (!splash->Create())
///         delete splash;
///
/// Made with new. Once Create() has answered TRUE the object deletes itself with its window, whichever way that ends.
/// Keys and clicks are seen by way of the host's message loop.
class ZOPWNT_API CWntSplash : public CWnd {
public:
    /// A bitmap of the current resource module, and milliseconds.
    CWntSplash(UINT bitmap, UINT time);
    ~CWntSplash() override;

    /// Shows the picture in the middle of the screen. Refused: 0, and the object stays the caller's.
    BOOL Create();
    /// Loads a bitmap, with its colours as a palette where the screen has 256 or fewer, else with the screen's halftone
    /// palette. 0 where there is no such bitmap.
    BOOL GetBitmapAndPalette(UINT id, CBitmap& bitmap, CPalette& palette);

    /// Ends the splash at a key or click.
    BOOL PreTranslateMessage(MSG* message) override;

protected:
    afx_msg void OnPaint();
    afx_msg void OnTimer(UINT_PTR timer);
    void PostNcDestroy() override;
    DECLARE_MESSAGE_MAP()

private:
    BOOL CreateWindows(CSize size);

    UINT bitmap_id_;
    UINT time_;
    CBitmap bitmap_;
    CPalette palette_;
    CWnd owner_;
    bool ends_itself_ = false;
};
