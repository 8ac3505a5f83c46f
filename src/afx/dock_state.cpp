#include "afx_dock_state.h"
#include "afx_app.h"

#include <algorithm>

IMPLEMENT_SERIAL(CDockState, CObject, 2)

namespace {

constexpr UINT most_bars = 256, most_rows = 64;

CString section_of(LPCTSTR profile, INT_PTR index) {
    CString section;
    section.Format("%s-Bar%d", profile, static_cast<int>(index));
    return section;
}

// Every number of a record under its name: one list for reading and for writing.
template <class Visitor> void visit(CControlBarInfo& info, Visitor&& number) {
    const auto each = [&](LPCTSTR name, auto& member) {
        int value = static_cast<int>(member);
        number(name, value);
        member = static_cast<std::remove_reference_t<decltype(member)>>(value);
    };
    each("BarID", info.m_nBarID);
    each("Visible", info.m_bVisible);
    each("Horz", info.m_bHorz);
    each("Floating", info.m_bFloating);
    each("DockID", info.m_nDockBarID);
    each("Row", info.m_nRow);
    each("At", info.m_at);
    each("XPos", info.m_pointPos.x);
    each("YPos", info.m_pointPos.y);
    each("MRUWidth", info.m_nMRUWidth);
    info.m_nRow = std::clamp(info.m_nRow, 0, static_cast<int>(most_rows));
}

} // namespace

CDockState::CDockState() = default;

CDockState::~CDockState() {
    Clear();
}

void CDockState::Clear() {
    for (INT_PTR i = 0; i < m_arrBarInfo.GetSize(); ++i)
        delete static_cast<CControlBarInfo*>(m_arrBarInfo[i]);
    m_arrBarInfo.RemoveAll();
}

void CDockState::LoadState(LPCTSTR lpszProfileName) {
    CWinApp* app = AfxGetApp();
    const UINT count = app->GetProfileInt(CString(lpszProfileName) + "-Summary", "Bars", 0);
    Clear();
    for (UINT i = 0; i < std::min(count, most_bars); ++i) {
        const CString section = section_of(lpszProfileName, static_cast<INT_PTR>(i));
        auto* info = new CControlBarInfo;
        m_arrBarInfo.Add(info);
        visit(*info,
              [&](LPCTSTR name, int& value) { value = static_cast<int>(app->GetProfileInt(section, name, value)); });
    }
}

void CDockState::SaveState(LPCTSTR lpszProfileName) {
    CWinApp* app = AfxGetApp();
    for (INT_PTR i = 0; i < m_arrBarInfo.GetSize(); ++i) {
        const CString section = section_of(lpszProfileName, i);
        visit(*static_cast<CControlBarInfo*>(m_arrBarInfo[i]),
              [&](LPCTSTR name, int& value) { app->WriteProfileInt(section, name, value); });
    }
    app->WriteProfileInt(CString(lpszProfileName) + "-Summary", "Bars", static_cast<int>(m_arrBarInfo.GetSize()));
}

void CDockState::Serialize(CArchive& ar) {
    CObject::Serialize(ar);
    WORD count = static_cast<WORD>(std::min<INT_PTR>(m_arrBarInfo.GetSize(), most_bars));
    if (ar.IsStoring()) {
        ar << count;
        for (WORD i = 0; i < count; ++i)
            visit(*static_cast<CControlBarInfo*>(m_arrBarInfo[i]), [&](LPCTSTR, int& value) { ar << value; });
        return;
    }
    Clear();
    ar >> count;
    if (count > most_bars)
        AfxThrowArchiveException(CArchiveException::badIndex);
    for (WORD i = 0; i < count; ++i) {
        auto* info = new CControlBarInfo;
        m_arrBarInfo.Add(info);
        visit(*info, [&](LPCTSTR, int& value) { ar >> value; });
    }
}
