#include "out/default_printer.h"

namespace {

constexpr DWORD dialog_flags = PD_NOSELECTION | PD_NOPAGENUMS | PD_USEDEVMODECOPIES | PD_HIDEPRINTTOFILE;

} // namespace

wnt::DefaultPrinter::DefaultPrinter() : dialog_(FALSE, dialog_flags) {
    dialog_.m_pd.Flags |= PD_NOWARNING;
    if (dialog_.GetDefaults() && dialog_.GetPrinterDC())
        page_.Attach(dialog_.GetPrinterDC());
}

wnt::DefaultPrinter::~DefaultPrinter() {
    ::GlobalFree(dialog_.m_pd.hDevMode);
    ::GlobalFree(dialog_.m_pd.hDevNames);
}

bool wnt::DefaultPrinter::begin(const char* document) {
    DOCINFOA description = {};
    description.cbSize = sizeof description;
    description.lpszDocName = document;
    if (!page_.m_hDC || page_.StartDoc(&description) <= 0)
        return false;
    if (page_.StartPage() > 0)
        return true;
    page_.AbortDoc();
    return false;
}

void wnt::DefaultPrinter::end() {
    page_.EndPage();
    page_.EndDoc();
}
