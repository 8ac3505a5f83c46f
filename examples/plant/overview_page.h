#pragma once

#include "command_button.h"
#include "front_page.h"

/// The plant at a glance, and its set points: panels with gauges of all views, between sashes.
class COverviewPage : public CFrontPage {
public:
    using CFrontPage::CFrontPage;
    void ShowReadings() override;
    /// The newest one stands first.
    void AddEvent(const CString& text);
    void ShowSettings() override;
    void RestoreLayout() override;
    void StoreLayout() const override;

protected:
    bool CreateContents() override;
    void Arrange(int width, int height) override;
    afx_msg void OnHScroll(UINT code, UINT position, CScrollBar* bar);
    DECLARE_MESSAGE_MAP()

private:
    enum Panel { boiler, feed, furnace, operation, panels };

    bool CreateSashes();
    bool CreatePanels();
    bool CreateGauges();
    bool CreateOperation();
    void PlaceOperation();
    void AddRow(CWnd& child, double left, double right, int top, int height);
    void ShowZones(CWntGauge& gauge, std::size_t channel) const;
    void ShowSetPoints();

    CWntSash across_, right_, lower_; // windows that hold others come before those: so that they go last
    CWntFrame panels_[panels];
    CWntGauge gauges_[plant_channels], knob_;
    CFont font_, small_font_;
    CStatic furnace_text_, steam_text_, in_force_;
    CWntScrollBar furnace_target_, steam_valve_;
    CCommandButton pump_, burner_;
    CListBox events_;
    std::uint32_t refused_ = 0;
};
