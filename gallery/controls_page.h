#pragma once

#include <list>

#include "page.h"

/// A page of plain controls at fixed places.
class CControlsPage : public CGalleryPage {
protected:
    bool CreateContents() override {
        font_.CreatePointFont(90, "Arial");
        return AddControls();
    }
    virtual bool AddControls() = 0;
    void Arrange(int, int) override {}

    CStatic* AddText(const char* text, CRect place, UINT id = 0xFFFF) {
        return Added(texts_.emplace_back().Create(text, WS_CHILD | WS_VISIBLE | SS_NOPREFIX, place, this, id), texts_);
    }
    CButton* AddButton(const char* text, CRect place, UINT id, DWORD style = BS_PUSHBUTTON) {
        const DWORD all = WS_CHILD | WS_VISIBLE | WS_TABSTOP | style;
        return Added(buttons_.emplace_back().Create(text, all, place, this, id), buttons_);
    }
    CFont font_;

private:
    template <class Control> Control* Added(BOOL created, std::list<Control>& controls) {
        if (!created)
            return nullptr;
        controls.back().SetFont(&font_);
        return &controls.back();
    }

    std::list<CStatic> texts_;
    std::list<CButton> buttons_;
};
