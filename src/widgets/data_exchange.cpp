#include "widgets/data_exchange.h"

#include "widgets/colour_selector/wnt_color_sel.h"
#include "widgets/gauge/wnt_gauge.h"

namespace {

template <class Widget> Widget& joined(const CDataExchange& exchange, int id) {
    const HWND control = ::GetDlgItem(exchange.m_pDlgWnd->GetSafeHwnd(), id);
    auto* widget = dynamic_cast<Widget*>(control ? CWnd::FromHandlePermanent(control) : nullptr);
    if (!widget)
        AfxThrowNotSupportedException();
    return *widget;
}

} // namespace

void AFXAPI DDX_GaugeValue(CDataExchange* exchange, int id, int& value) {
    auto& gauge = joined<CWntGauge>(*exchange, id);
    if (exchange->m_bSaveAndValidate)
        value = gauge.GetCurVal();
    else
        gauge.SetCurVal(value);
}

void AFXAPI DDX_Color(CDataExchange* exchange, int id, int& colour) {
    auto& selector = joined<CWntColorSel>(*exchange, id);
    if (exchange->m_bSaveAndValidate)
        colour = selector.GetSelectedColorID();
    else
        selector.SetSelectedColorID(colour);
}
