#pragma once

#include "command_button.h"
#include "front_page.h"

/// The line below the toolbar: the alarm that matters most, or else how the plant is; and the button that
/// acknowledges.
class CAlarmBanner : public CFrontPage {
public:
    using CFrontPage::CFrontPage;
    void ShowReadings() override;
    const CString& Text() const { return shown_.text; }
    int Height() const { return Scaled(38); }

protected:
    bool CreateContents() override;
    void Arrange(int width, int height) override;
    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC*) { return TRUE; }
    DECLARE_MESSAGE_MAP()

private:
    enum class Tone { calm, notice, seen, alarm };
    struct Message {
        Tone tone = Tone::calm;
        CString text;
        bool operator==(const Message& other) const { return tone == other.tone && text == other.text; }
    };
    Message Present() const;

    Message shown_;
    CFont font_;
    CCommandButton acknowledge_;
};
