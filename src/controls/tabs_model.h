#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "controls/frame_model.h"

namespace wnt {

inline constexpr std::string_view tabs_side_words[] = {"TOP", "BOTTOM", "LEFT", "RIGHT"};
enum class TabsSide { top, bottom, left, right }; // their positions
inline constexpr std::string_view tabs_overflow_words[] = {"SCROLL", "MENU"};
enum class TabsOverflow { scroll, menu }; // their positions

inline constexpr std::string_view tabs_keys[] = {"MSG",      "ID",     "TAB",      "TIP",     "CLOSE",
                                                 "DISABLED", "SIDE",   "OVERFLOW", "MOVABLE", "CLRTEXT",
                                                 "CLRBACK",  "CLRSUN", "CLRSHADOW"};

/// A tab. `page` and `icon` are what the window keeps for it; the model only carries them along.
struct Tab {
    std::string text; ///< an `&` before a character makes that its access key, two stand for one
    std::string tip;
    bool enabled = true;
    bool closable = false;
    void* page = nullptr;
    void* icon = nullptr;
    int id = 0; ///< given by the model, another one for each tab
};

/// The tabs of a strip, their order, which one is selected, and what a script line does to them. The selected tab is
/// an enabled one; there is none when no tab is enabled.
class TabsModel {
public:
    static constexpr int most_tabs = 1000;
    static constexpr std::size_t longest_text = 99;
    static constexpr std::size_t longest_tip = 255;

    int count() const { return static_cast<int>(tabs_.size()); }
    bool has(int tab) const { return tab >= 0 && tab < count(); }
    const Tab& at(int tab) const { return tabs_[static_cast<std::size_t>(tab)]; }
    Tab& at(int tab) { return tabs_[static_cast<std::size_t>(tab)]; }
    /// Of the tab with this id; -1: it is gone.
    int position_of(int id) const;
    /// -1: none.
    int selected() const { return selected_; }

    /// Before the tab that is there; at the end where that is beyond it. False when it is full or `at` is negative.
    bool insert(int at, Tab tab);
    bool remove(int tab);
    /// The tab gets position `to`.
    bool move(int from, int to);
    /// False for one that is disabled or not there.
    bool select(int tab);
    bool enable(int tab, bool enabled);
    bool set_text(int tab, std::string_view text);
    bool set_tip(int tab, std::string_view tip);

    /// The nearest enabled tab from there on, forwards or backwards, round the end where asked to; -1: none.
    int enabled_from(int tab, bool forwards, bool round = false) const;
    /// The next enabled one behind the selected one, round the end, with this access key; -1: none.
    int with_access_key(char key) const;

    /// True when it changed something that is seen. Unknown keys, words and colours change nothing. Within a script
    /// tabs are named anew, from the first one on, and keep their pages and icons; outside of one they are added.
    bool load_line(std::string_view line);
    void begin_script();
    /// Removes the tabs that the script did not name, when it named some.
    void end_script();

    TabsSide side = TabsSide::top;
    TabsOverflow overflow = TabsOverflow::scroll;
    bool movable = false;
    int text_colour = system_colour; ///< indexes of the colour table, or the system's colour for it
    int background = system_colour;
    int sun = system_colour;
    int shadow = system_colour;

private:
    bool name_tab(std::string_view text);
    bool load_tab(int key, std::string_view value);
    bool load_strip(int key, std::string_view value);

    std::vector<Tab> tabs_;
    int selected_ = -1;
    int last_id_ = 0;
    bool in_script_ = false;
    int named_ = 0;    // tabs, by this script
    int current_ = -1; // the one that lines describe
};

/// A text without the `&` that mark; `mark` is the position of its access key, or -1.
std::string plain_text(std::string_view text, int& mark);

/// The access key of a text in lower case; 0: none.
char access_key(std::string_view text);

} // namespace wnt
