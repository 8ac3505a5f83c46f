#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "controls/tool_bar_layout.h"

namespace wnt {

inline constexpr std::string_view tool_bar_keys[] = {
    "ITEM", "CHECK", "RADIO", "DROPDOWN", "SPLIT", "SEPARATOR", "LABEL",    "STRETCH",       "WINDOW", // as ToolKind
    "MENU", "TEXT",  "WRAP",  "UPRIGHT",  "DRAG",  "PICTURES",  "DISABLED", "LARGEPICTURES", "CHECKED"};

inline constexpr std::string_view tool_text_words[] = {"NONE", "BESIDE", "BELOW"}; // as ToolText

inline constexpr int most_tools = 1000;
inline constexpr int highest_command = 0xFFFE; // the system's separators have the one behind
inline constexpr int longest_tool_text = 100;

enum ToolCheck { unchecked, checked, undecided };

/// An entry of an item's own menu; without a command it is a separator.
struct ToolMenuEntry {
    int id = 0;
    std::string text;
};

struct ToolItem {
    ToolKind kind = ToolKind::push;
    int id = 0;       ///< the command; of an embedded window its identifier
    int picture = -1; ///< its number in the bar's strip
    std::string text;
    std::string tip;
    int group = 0; ///< of those of which one is checked
    bool enabled = true;
    int check = unchecked;
    std::vector<ToolMenuEntry> menu;

    // Handles of the host's, which the model only keeps.
    void* icons[2] = {};
    void* host_menu = nullptr;
    void* window = nullptr;

    int text_width = 0; ///< measured by who draws it
    int added = 0;      ///< counts up: the order before the user changed it
};

/// The items of a toolbar and what a script line does to them.
class ToolBarModel {
public:
    /// True when it changed something that is seen. Unknown keys and bad numbers change nothing.
    bool load_line(std::string_view line);

    const std::vector<ToolItem>& items() const { return items_; }
    ToolItem& item(int index) { return items_[static_cast<std::size_t>(index)]; }
    const ToolItem& item(int index) const { return items_[static_cast<std::size_t>(index)]; }
    int count() const { return static_cast<int>(items_.size()); }
    bool has(int index) const { return index >= 0 && index < count(); }
    /// There is room for one more, and this is a place for it.
    bool takes(int index) const { return index >= 0 && index <= count() && count() < most_tools; }
    /// False where it does not.
    bool insert(int index, ToolItem item);
    bool remove(int index);
    void clear() { items_.clear(); }
    /// The item takes the place before the one that is now at `to`; their number: behind all. False when that leaves
    /// it where it is.
    bool move(int from, int to);
    /// The first item with this command, or -1.
    int find(int id) const;
    /// Of a group no other item stays checked.
    bool set_check(int index, int check);
    /// Where the item is that was added as this one, or -1.
    int position_of(int added) const;
    /// What a press does to the item by itself: checks, picks.
    void press(int index);

    /// The order as a text, and back: items that it does not name stay behind the one that they stood behind.
    std::string order() const;
    bool set_order(std::string_view names);

    ToolText text = ToolText::none;
    bool wraps = false;
    bool upright = false;
    bool movable = false;    ///< items, by the user
    std::string pictures[2]; ///< files of the small and the large strip that a script named

private:
    bool add_described(ToolKind kind, std::string_view value);
    bool add_menu_entry(std::string_view value);
    std::vector<std::string> names() const;

    std::vector<ToolItem> items_;
    int added_ = 0;
    bool in_group_ = false; // the last line of the script was one of a group
    int group_ = 0x10000;   // of the script's last one; hosts' own are smaller
};

} // namespace wnt
