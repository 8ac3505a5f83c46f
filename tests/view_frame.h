// A frame around a view or a splitter, without a document.
#pragma once

#include <functional>
#include <utility>

#include <gtest/gtest.h>

#include <afxwin.h>

struct view_frame : CFrameWnd {
    std::function<BOOL(CCreateContext&)> make;

    bool open(std::function<BOOL(CCreateContext&)> client) {
        make = std::move(client);
        return Create(nullptr, "views", WS_OVERLAPPEDWINDOW, CRect(0, 0, 420, 320)) &&
               ShowWindow(SW_SHOWNOACTIVATE) == 0;
    }
    // Around one view of a class.
    template <class View> View& open() {
        EXPECT_TRUE(open([this](CCreateContext& context) {
            context.m_pNewViewClass = RUNTIME_CLASS(View);
            return CreateView(&context) != nullptr;
        }));
        return *static_cast<View*>(GetDescendantWindow(AFX_IDW_PANE_FIRST));
    }
    BOOL OnCreateClient(LPCREATESTRUCT, CCreateContext*) override {
        CCreateContext context;
        return make(context);
    }
    void PostNcDestroy() override {}
};
