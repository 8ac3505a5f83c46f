#pragma once

#include <zopwnt.h>

/// What is written, and how high its letters are.
class CTextDialog : public CDialog {
public:
    CTextDialog(const CString& text, int height);
    const CString& GetText() const { return text_; }
    int Height() const { return 10 * millimetres_; }

protected:
    void DoDataExchange(CDataExchange* exchange) override;

private:
    CString text_;
    int millimetres_;
};

/// The size of the sheet.
class CSheetDialog : public CDialog {
public:
    explicit CSheetDialog(CSize sheet);
    CSize Sheet() const { return CSize(10 * width_, 10 * height_); }

protected:
    void DoDataExchange(CDataExchange* exchange) override;

private:
    int width_, height_; // millimetres
};
