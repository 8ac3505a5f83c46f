#include "printer.h"
#include "afx_app.h"
#include "afx_command_line.h"
#include "afxdlgs.h"

#include <utility>

namespace {

// Global memory, locked as long as the object lives.
template <class Record> class locked {
public:
    explicit locked(HGLOBAL memory)
        : m_memory(memory), m_record(memory != nullptr ? static_cast<Record*>(::GlobalLock(memory)) : nullptr) {}
    ~locked() {
        if (m_record != nullptr)
            ::GlobalUnlock(m_memory);
    }
    locked(const locked&) = delete;
    locked& operator=(const locked&) = delete;
    Record* get() const { return m_record; }

private:
    HGLOBAL m_memory;
    Record* m_record;
};

void release(HGLOBAL& memory) {
    if (HGLOBAL before = std::exchange(memory, nullptr))
        ::GlobalFree(before);
}

} // namespace

HDC create_printer_context(const PRINTDLG& choice) {
    const locked<DEVNAMES> names(choice.hDevNames);
    const locked<DEVMODE> mode(choice.hDevMode);
    if (names.get() == nullptr)
        return nullptr;
    const auto text = [&](WORD offset) { return reinterpret_cast<LPCTSTR>(names.get()) + offset; };
    return ::CreateDC(text(names.get()->wDriverOffset), text(names.get()->wDeviceOffset),
                      text(names.get()->wOutputOffset), mode.get());
}

// The default printer, until another is chosen.
void CWinApp::UpdatePrinterSelection(BOOL bForceDefaults) {
    if (m_hDevNames != nullptr && !bForceDefaults)
        return;
    release(m_hDevNames);
    release(m_hDevMode);
    CPrintDialog dialog(TRUE);
    if (!dialog.GetDefaults())
        return;
    m_hDevMode = dialog.m_pd.hDevMode;
    m_hDevNames = dialog.m_pd.hDevNames;
}

BOOL CWinApp::GetPrinterDeviceDefaults(PRINTDLG* pPrintDlg) {
    UpdatePrinterSelection(FALSE);
    pPrintDlg->hDevNames = m_hDevNames;
    pPrintDlg->hDevMode = m_hDevMode;
    return m_hDevNames != nullptr;
}

BOOL CWinApp::CreatePrinterDC(CDC& dc) {
    PRINTDLG choice{};
    return GetPrinterDeviceDefaults(&choice) && dc.Attach(create_printer_context(choice));
}

void CWinApp::SelectPrinter(HANDLE hDevNames, HANDLE hDevMode, BOOL bFreeOld) {
    if (m_hDevNames != hDevNames) {
        if (bFreeOld)
            release(m_hDevNames);
        m_hDevNames = hDevNames;
    }
    if (m_hDevMode != hDevMode) {
        if (bFreeOld)
            release(m_hDevMode);
        m_hDevMode = hDevMode;
    }
}

// The dialog may free what it was given: what it leaves is the program's choice from now on.
INT_PTR CWinApp::DoPrintDialog(CPrintDialog* pPD) {
    UpdatePrinterSelection(FALSE);
    pPD->m_pd.hDevNames = m_hDevNames;
    pPD->m_pd.hDevMode = m_hDevMode;
    const INT_PTR answer = pPD->DoModal();
    m_hDevNames = pPD->m_pd.hDevNames;
    m_hDevMode = pPD->m_pd.hDevMode;
    return answer;
}

void CWinApp::OnFilePrintSetup() {
    CPrintDialog dialog(TRUE);
    DoPrintDialog(&dialog);
}
