#include "controls/profile_section.h"
#include "controls/sash_model.h"
#include "controls/wnt_sash.h"

// What of a sash is stored: lengths in pixels, the share in millionths.

namespace {

constexpr int whole_share = 1'000'000;

} // namespace

int CWntSash::StoreState(const char* profile, const char* name) const {
    const wnt::ProfileSection to = {profile, name};
    if (!this || !to.named())
        return 0;
    return to.write("First", model_->wished_position()) && to.write("Second", model_->wished_second()) &&
           to.write("Share", static_cast<int>(model_->share() * whole_share)) && to.write("Folded", GetFolded());
}

int CWntSash::RestoreState(const char* profile, const char* name) {
    const wnt::ProfileSection from = {profile, name};
    if (!this || !from.named())
        return 0;
    int share = 0, first = 0, second = 0, folded = 0;
    if (!from.read("Share", share) || !from.read("First", first) || !from.read("Second", second))
        return 0;
    switch (model_->keeps()) {
    case wnt::SashModel::Keeps::first:
        model_->set_position(first);
        break;
    case wnt::SashModel::Keeps::second:
        model_->set_second(second);
        break;
    default:
        model_->set_share(static_cast<double>(share) / whole_share);
    }
    if (from.read("Folded", folded) && folded != 0 && folded == fold_pane_)
        model_->fold(folded);
    place_panes();
    return 1;
}
