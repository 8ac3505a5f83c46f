#pragma once

#include <afxwin.h>
#include <afxdlgs.h>

namespace wnt {

/// The default printer, without a dialog or a message where there is none, and one document on it.
class DefaultPrinter {
public:
    DefaultPrinter();
    ~DefaultPrinter();
    DefaultPrinter(const DefaultPrinter&) = delete;
    DefaultPrinter& operator=(const DefaultPrinter&) = delete;

    /// Starts a document and its only page. Refused: nothing is printed.
    bool begin(const char* document);
    void end();
    CDC& page() { return page_; }

private:
    CPrintDialog dialog_;
    CDC page_;
};

} // namespace wnt
