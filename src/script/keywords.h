#pragma once

#include <cstdint>
#include <span>
#include <string_view>

namespace wnt {

/// A keyword table: upper-case words, each one's position being the code that a widget stores. The codes are stable,
/// since scripts and stored settings use them. All words are literals, so that a word's data is zero-terminated.
using KeywordTable = std::span<const std::string_view>;

inline constexpr std::string_view border_type_words[] = {"NOBORDER", "FLAT", "3DUP", "3DDOWN"};
enum BorderType { border_none, border_flat, border_raised, border_sunk }; // their positions

inline constexpr std::string_view title_style_words[] = {"PLAIN", "INSET", "OUTSET", "BOLD"};

inline constexpr std::string_view look_words[] = {"MOTIF", "MSWIN", "MAC"};

inline constexpr std::string_view gauge_type_words[] = {"PERCENTBAR", "THERMOMETER", "ANALOG",
                                                        "DIGITAL",    "PEAKLINE",    "TURNKNOB"};

/// Code = vertical group * 4 + horizontal position; the fillers keep that arithmetic whole.
inline constexpr std::string_view alignment_words[] = {
    "BOTTOMLEFT", "BOTTOMRIGHT", "BOTTOMCENTER", "---", //
    "TOPLEFT",    "TOPRIGHT",    "TOPCENTER",    "---", //
    "CENTERLEFT", "CENTERRIGHT", "CENTERCENTER",
};

inline constexpr std::string_view line_style_words[] = {"SOLID",   "ALTERNATE", "DOT",      "SHORTDASH",
                                                        "DASHDOT", "DOUBLEDOT", "LONGDASH", "DASHDOUBLEDOT"};

/// A line style's code is its position times 256.
inline constexpr int line_style_codes[] = {0, 256, 512, 768, 1024, 1280, 1536, 1792};

inline constexpr std::string_view marker_shape_words[] = {"CIRCLE", "TRIANGLE", "RECTANGLE", "SEXAGON", "OCTAGON"};

/// Sides by position; the bits of a border's side set come in another order (see SideBit).
inline constexpr std::string_view side_words[] = {"TOP", "LEFT", "BOTTOM", "RIGHT"};

/// Words that are kept for the language but that no lookup accepts.
inline constexpr std::string_view reserved_words[] = {"UPDATE", "REFRESH"};

/// Bits of a border's side set.
enum SideBit { side_left = 1, side_right = 2, side_top = 4, side_bottom = 8 };

inline constexpr std::string_view button_keys[] = {
    "MSG",    "TYPE",       "ID",          "TITLE",        "ALIGN",    "VISIBLE", "FIXED",
    "DEPTH",  "BORDERTYPE", "BORDERSTYLE", "BORDERHEIGHT", "CLRTEXT",  "CLRBACK", "CLRBORDER",
    "CLRSUN", "CLRSHADOW",  "FRAME",       "TITLESTYLE",   "WORDWRAP",
};

inline constexpr std::string_view gauge_keys[] = {
    "MSG",     "TYPE",       "ID",        "TITLE",      "UNITTITLE",   "MINVAL",       "MAXVAL",    "CURVAL",
    "SETMARK", "CLEARMARKS", "SCALES",    "BORDERTYPE", "BORDERSTYLE", "BORDERHEIGHT", "CLRBORDER", "CLRTEXT",
    "CLRBACK", "CLRSUN",     "CLRSHADOW", "NOTITLE",    "BARTITLE",    "DEMO",
};

/// What an unknown colour name is stored as.
inline constexpr std::uint8_t unknown_colour = 255;

/// A view of a C string; a null pointer reads as the empty text.
constexpr std::string_view text_of(const char* text) {
    return text ? std::string_view(text) : std::string_view();
}

/// Exact, case-sensitive match of the whole word against the first `count` entries: the position, or -1. A word
/// longer than 15 characters is never found.
int keyword_lookup(KeywordTable table, std::string_view word, int count);

/// First entry that begins with the word: the position, or -1. The empty word matches the first entry.
int keyword_prefix_lookup(KeywordTable table, std::string_view word);

/// Compares only the leading part of the line, up to its first blank, "=" or end, as a prefix against the first
/// `count` entries: the position, or -1.
int leading_key_lookup(KeywordTable table, std::string_view line, int count);

/// Colour index of a colour name, or 255 (`unknown_colour`).
std::uint8_t colour_lookup(std::string_view word);

/// True when the text, after leading blanks, begins with X, Y, x, y or 1.
bool flag_lookup(std::string_view text);

/// The zero-terminated word of a code, or null when the table has no such code.
const char* keyword_at(KeywordTable table, int code);

/// The word of a line-style code, or null. Codes above 7 are refused before the table of codes is searched, so that
/// only code 0 has a word; this is intended.
const char* line_style_word(int code);

/// Decimal number of the text's first 19 characters; `fallback` when both bounds are non-zero and the number lies
/// outside them. A bound of 0 switches the check off.
std::int32_t number_in_range(std::string_view text, std::int32_t low, std::int32_t high, std::int32_t fallback);

} // namespace wnt
