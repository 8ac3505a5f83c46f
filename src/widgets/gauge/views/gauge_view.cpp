#include "widgets/gauge/views/gauge_view.h"

#include <iterator>

namespace wnt {

namespace {

constexpr GaugeView views[] = {
    {bar_face, bar_value},                 // PERCENTBAR
    {thermometer_face, thermometer_value}, // THERMOMETER
    {dial_face, dial_value},               // ANALOG
    {digital_face, digital_value},         // DIGITAL
    {peak_face, peak_value},               // PEAKLINE
    {knob_face, knob_value},               // TURNKNOB
};

} // namespace

const GaugeView* gauge_view(int type) {
    return type >= 0 && type < static_cast<int>(std::size(views)) ? &views[type] : nullptr;
}

} // namespace wnt
