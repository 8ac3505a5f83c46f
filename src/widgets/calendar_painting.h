#pragma once

#include "widgets/surface_buffer.h"
#include "widgets/wnt_calendar.h"

/// Opens the calendar's surface for a painter that is called alone, or joins the painting that is going on, and clips
/// to the painter's part. An exception out of a painter leaves the surface open to all painters again.
class CWntCalendar::Painting {
public:
    explicit Painting(CWntCalendar& calendar) : calendar_(calendar), opened_(!calendar.painting_) {
        if (opened_)
            calendar.painting_ = std::make_unique<wnt::SurfaceBuffer>(calendar.out_);
    }
    Painting(CWntCalendar& calendar, const wnt::UpwardRect& part) : Painting(calendar) {
        clipped_ = *calendar.painting_ && !part.empty();
        if (!clipped_)
            return;
        calendar.painting_->show(part);
        calendar.out_.setclip(part.left, part.bottom, part.right, part.top);
    }
    ~Painting() {
        if (clipped_)
            calendar_.out_.resetclip();
        if (opened_)
            calendar_.painting_.reset();
    }
    Painting(const Painting&) = delete;
    Painting& operator=(const Painting&) = delete;

    /// There is something to draw on.
    explicit operator bool() const { return clipped_; }

private:
    CWntCalendar& calendar_;
    bool opened_;
    bool clipped_ = false;
};
