#pragma once

#include "front_end_settings.h"
#include "plant_station.h"

/// What all pages work with; the program's, and longer there than they are.
struct FrontEnd {
    PlantStation& station;
    FrontEndSettings& settings;
    CString folder;  // of the program and its scripts
    CString profile; // file with settings and layout

    CString Script(const char* name) const { return folder + "\\scripts\\" + name; }
};

/// So many pixels at 96 dots an inch, on this screen.
int Scaled(int pixels);

/// A page of the front end, or another of its windows that shows the plant: a bare window that fills itself.
class CFrontPage : public CWnd {
public:
    explicit CFrontPage(FrontEnd& front_end) : front_end_(front_end) {}
    bool Open(CWnd* parent, UINT id);

    /// There is a new record, or another state of the link.
    virtual void ShowReadings() {}
    /// The settings were changed; also called once at the start.
    virtual void ShowSettings() {}
    virtual void RestoreLayout() {}
    virtual void StoreLayout() const {}

protected:
    virtual bool CreateContents() = 0;
    virtual void Arrange(int width, int height) = 0;

    FrontEnd& front_end_;

    afx_msg int OnCreate(LPCREATESTRUCT create);
    afx_msg void OnSize(UINT type, int width, int height);
    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    DECLARE_MESSAGE_MAP()
};
