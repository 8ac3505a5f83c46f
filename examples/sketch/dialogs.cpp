#include "dialogs.h"

#include "drawing.h"
#include "resource.h"

CTextDialog::CTextDialog(const CString& text, int height) : CDialog(IDD_TEXT), text_(text), millimetres_(height / 10) {}

void CTextDialog::DoDataExchange(CDataExchange* exchange) {
    CDialog::DoDataExchange(exchange);
    DDX_Text(exchange, IDC_TEXT, text_);
    DDV_MaxChars(exchange, text_, CTextFigure::longest);
    DDX_Text(exchange, IDC_HEIGHT, millimetres_);
    DDV_MinMaxInt(exchange, millimetres_, CTextFigure::lowest / 10, CTextFigure::highest / 10);
}

CSheetDialog::CSheetDialog(CSize sheet) : CDialog(IDD_SHEET), width_(sheet.cx / 10), height_(sheet.cy / 10) {}

void CSheetDialog::DoDataExchange(CDataExchange* exchange) {
    CDialog::DoDataExchange(exchange);
    DDX_Text(exchange, IDC_WIDTH, width_);
    DDV_MinMaxInt(exchange, width_, Drawing::smallest_side / 10, Drawing::largest_side / 10);
    DDX_Text(exchange, IDC_HEIGHT, height_);
    DDV_MinMaxInt(exchange, height_, Drawing::smallest_side / 10, Drawing::largest_side / 10);
}
