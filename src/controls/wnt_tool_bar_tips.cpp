#include <string>
#include <vector>

#include "controls/shortcut_text.h"
#include "controls/tool_bar_drag.h"
#include "controls/tool_bar_model.h"
#include "controls/tool_bar_parts.h"
#include "controls/wnt_tool_bar.h"

// Tips: what an item is, and the keys for it.

// Each item that is shown is a tool of the bar's, numbered from 1.
void CWntToolBar::sync_tips() {
    if (!tips_wanted_ || !tips_->m_hWnd)
        return;
    tips_wanted_ = false;
    for (; tip_count_ > 0; --tip_count_)
        tips_->DelTool(this, static_cast<UINT_PTR>(tip_count_));
    for (int i = 0; i < model_->count(); ++i)
        tips_->AddTool(this, LPSTR_TEXTCALLBACK, place_of(i), static_cast<UINT_PTR>(++tip_count_));
}

CString CWntToolBar::shortcut_of(UINT id) const {
    HACCEL table = keys_;
    if (CFrameWnd* frame = table ? nullptr : GetParentFrame())
        table = frame->GetDefaultAccelerator();
    std::vector<ACCEL> keys(table ? static_cast<std::size_t>(::CopyAcceleratorTable(table, nullptr, 0)) : 0);
    if (!keys.empty())
        ::CopyAcceleratorTable(table, keys.data(), static_cast<int>(keys.size()));
    for (const ACCEL& key : keys)
        if (key.cmd == id)
            return wnt::shortcut_text(key.fVirt & FCONTROL, key.fVirt & FALT, key.fVirt & FSHIFT, key.fVirt & FVIRTKEY,
                                      key.key)
                .c_str();
    return CString();
}

// A text that the item shows itself is said again only as a title.
bool CWntToolBar::fill_tip(const NMHDR& header, WntTip& tip) {
    const int index = static_cast<int>(header.idFrom) - 1;
    if (!model_->has(index) || !wnt::is_button(model_->item(index).kind))
        return false;
    const wnt::ToolItem& item = model_->item(index);
    CString title = item.text.c_str();
    const CString keys = shortcut_of(static_cast<UINT>(item.id));
    if (!keys.IsEmpty())
        title += (title.IsEmpty() ? "" : " ") + ("(" + keys + ")");
    if (item.tip.empty())
        tip.text = keys.IsEmpty() && content_of(index).shows_text(look()) ? CString() : title;
    else
        tip = {title, item.tip.c_str()};
    return true;
}

BOOL CWntToolBar::OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result) {
    const auto* told = reinterpret_cast<const NMHDR*>(lParam);
    if (!told || told->hwndFrom != tips_->GetSafeHwnd())
        return wnt::PaneWindow::OnNotify(wParam, lParam, result);
    if (told->code == WNT_TIP_NEEDED)
        fill_tip(*told, reinterpret_cast<WntTipNotify*>(lParam)->tip);
    return TRUE; // the rest concerns nobody else
}
