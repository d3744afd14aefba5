#include "core/statements/CSV.hpp"

#include <unicode/uchar.h>
#include <unicode/utf8.h>

#include <algorithm>
#include <array>
#include <cstdint>

namespace vantello::CSV {
namespace {

constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";

std::uint8_t byteAt(std::string_view text, std::size_t position) {
    return static_cast<std::uint8_t>(text[position]);
}

bool isAsciiControl(std::uint8_t byte) { return byte < 0x20 || byte == 0x7F; }

// One code point outside ASCII, decoded; ill-formed bytes come back as one text character.
struct Decoded {
    UChar32 codePoint;  // negative when ill-formed
    std::size_t length;
};

Decoded decodeAt(std::string_view text, std::size_t position) {
    const auto* bytes = reinterpret_cast<const std::uint8_t*>(text.data());
    auto offset = static_cast<std::int64_t>(position);
    UChar32 codePoint = 0;
    U8_NEXT(bytes, offset, static_cast<std::int64_t>(text.size()), codePoint);
    return {codePoint, static_cast<std::size_t>(offset) - position};
}

std::int32_t clusterBreak(UChar32 codePoint) {
    return codePoint < 0 ? U_GCB_OTHER : u_getIntPropertyValue(codePoint, UCHAR_GRAPHEME_CLUSTER_BREAK);
}

bool isOtherLineBreak(UChar32 codePoint) {
    return codePoint == 0x85 || codePoint == 0x2028 || codePoint == 0x2029;
}

// Whether the character at `position` joins the one before it into a single user-perceived
// character: combining marks, spacing marks and the zero-width joiner do, unless the one
// before is a control. Only a byte outside ASCII can start such a character.
bool extendsPrevious(std::string_view text, std::size_t position) {
    if (position >= text.size() || byteAt(text, position) < 0x80) return false;
    const auto kind = clusterBreak(decodeAt(text, position).codePoint);
    return kind == U_GCB_EXTEND || kind == U_GCB_ZWJ || kind == U_GCB_SPACING_MARK;
}

// Length of the line break at `position` (a carriage return and line feed count as one), or 0.
std::size_t asciiLineBreakLength(std::string_view text, std::size_t position) {
    switch (byteAt(text, position)) {
        case '\n':
        case '\v':
        case '\f': return 1;
        case '\r': return position + 1 < text.size() && text[position + 1] == '\n' ? 2 : 1;
        default: return 0;
    }
}

enum class Kind { text, separator, quote, lineBreak };

struct Character {
    Kind kind;
    std::size_t length;
    bool prepends;  // a prepending character glues the next one to itself
};

// Walks the text one user-perceived character at a time as far as the tokenizer cares: only
// separators, quotes and line breaks need telling apart, and an ASCII separator or quote
// stops being one when a neighbour glues it into a longer character.
class Characters {
public:
    explicit Characters(char separator) {
        special_.fill(false);
        for (int byte = 0x80; byte < 0x100; ++byte) special_[static_cast<std::size_t>(byte)] = true;
        for (const char byte : {'\n', '\v', '\f', '\r', '"', separator}) {
            special_[static_cast<std::uint8_t>(byte)] = true;
        }
        separator_ = static_cast<std::uint8_t>(separator);
    }

    // Bytes from `position` on that stand for themselves, so that they can be copied at once.
    [[nodiscard]] std::size_t plainRun(std::string_view text, std::size_t position) const {
        std::size_t end = position;
        while (end < text.size() && !special_[byteAt(text, end)]) ++end;
        return end - position;
    }

    [[nodiscard]] Character at(std::string_view text, std::size_t position, bool afterPrepend) const {
        const std::uint8_t byte = byteAt(text, position);
        if (byte < 0x80) {
            if (const auto length = asciiLineBreakLength(text, position)) return {Kind::lineBreak, length, false};
            const bool marked = byte == '"' || byte == separator_;
            if (!marked) return {Kind::text, 1, false};
            const bool glued =
                !isAsciiControl(byte) && (afterPrepend || extendsPrevious(text, position + 1));
            if (glued) return {Kind::text, 1, false};
            return {byte == '"' ? Kind::quote : Kind::separator, 1, false};
        }
        const Decoded decoded = decodeAt(text, position);
        if (isOtherLineBreak(decoded.codePoint)) return {Kind::lineBreak, decoded.length, false};
        return {Kind::text, decoded.length, clusterBreak(decoded.codePoint) == U_GCB_PREPEND};
    }

private:
    std::array<bool, 256> special_{};
    std::uint8_t separator_ = ',';
};

bool isLineBreakAt(std::string_view text, std::size_t position) {
    if (position >= text.size()) return false;
    if (byteAt(text, position) < 0x80) return asciiLineBreakLength(text, position) > 0;
    return isOtherLineBreak(decodeAt(text, position).codePoint);
}

// The quote at `position` ends its line: nothing but a line break or the end of the text follows.
bool quoteStandsAlone(std::string_view text, std::size_t position) {
    return position + 1 == text.size() || isLineBreakAt(text, position + 1);
}

bool isBlank(const Row& row) {
    for (const auto& cell : row) {
        if (cell.find_first_not_of(" \t") != std::string::npos) return false;
    }
    return true;
}

class Tokenizer {
public:
    Tokenizer(std::string_view text, char separator) : text_(text), characters_(separator) {}

    Table run() {
        std::size_t position = 0;
        bool inQuotes = false;
        bool afterPrepend = false;
        while (position < text_.size()) {
            if (const auto run = characters_.plainRun(text_, position)) {
                cell_.append(text_.substr(position, run));
                position += run;
                afterPrepend = false;
                continue;
            }
            const Character character = characters_.at(text_, position, afterPrepend);
            afterPrepend = character.prepends;
            if (inQuotes) {
                if (character.kind != Kind::quote) {
                    cell_.append(text_.substr(position, character.length));
                    position += character.length;
                } else if (position + 1 < text_.size() &&
                           characters_.at(text_, position + 1, false).kind == Kind::quote) {
                    cell_.push_back('"');
                    position += 2;
                } else {
                    // The closing quote; what follows it is read by the rules outside quotes.
                    inQuotes = false;
                    position += 1;
                }
                continue;
            }
            switch (character.kind) {
                case Kind::quote:
                    if (cell_.empty() && row_.empty() && quoteStandsAlone(text_, position)) {
                        // A line of one quote, left above the table by some exports, opens
                        // no cell: read as an opening quote it would swallow the table.
                    } else if (cell_.empty()) {
                        inQuotes = true;
                    } else {
                        cell_.push_back('"');
                    }
                    break;
                case Kind::separator: finishCell(); break;
                case Kind::lineBreak:
                    finishCell();
                    finishRow();
                    break;
                case Kind::text: cell_.append(text_.substr(position, character.length)); break;
            }
            position += character.length;
        }
        finishCell();
        finishRow();
        return std::move(table_);
    }

private:
    void finishCell() {
        // A copy keeps the cell buffer's capacity for the cells still to come.
        row_.emplace_back(cell_);
        cell_.clear();
    }

    void finishRow() {
        if (!isBlank(row_)) {
            const auto width = row_.size();
            table_.push_back(std::move(row_));
            row_ = Row();
            row_.reserve(width);
        } else {
            row_.clear();
        }
    }

    std::string_view text_;
    Characters characters_;
    std::string cell_;
    Row row_;
    Table table_;
};

bool canSeparate(char separator) {
    const auto byte = static_cast<std::uint8_t>(separator);
    return byte < 0x80 && byte != '"' && byte != '\n' && byte != '\v' && byte != '\f' && byte != '\r';
}

constexpr std::array<char, 3> separatorCandidates{';', '\t', ','};
using CandidateCounts = std::array<int, 3>;
// Enough lines to pass a preamble and reach a few movements.
constexpr std::size_t separatorSampleLines = 60;

// How often each candidate occurs outside quotes on each of the first lines. A line that holds
// only a quote counts as empty, as the tokenizer reads it.
std::vector<CandidateCounts> candidateCountsByLine(std::string_view text) {
    std::vector<CandidateCounts> lines(1);
    bool inQuotes = false;
    bool lineStart = true;
    for (std::size_t position = 0; position < text.size() && lines.size() <= separatorSampleLines;) {
        const char byte = text[position];
        if (byte == '"') {
            if (!(lineStart && !inQuotes && quoteStandsAlone(text, position))) inQuotes = !inQuotes;
            lineStart = false;
            ++position;
            continue;
        }
        if (!inQuotes && isLineBreakAt(text, position)) {
            position += byteAt(text, position) < 0x80 ? asciiLineBreakLength(text, position)
                                                      : decodeAt(text, position).length;
            lines.emplace_back();
            lineStart = true;
            continue;
        }
        lineStart = false;
        if (!inQuotes) {
            for (std::size_t index = 0; index < separatorCandidates.size(); ++index) {
                if (byte == separatorCandidates[index]) ++lines.back()[index];
            }
        }
        ++position;
    }
    return lines;
}

// The longest run of consecutive lines after the first in which the candidate splits every line
// into the same number of cells, more than one.
std::size_t longestConsistentRun(const std::vector<CandidateCounts>& lines, std::size_t candidate) {
    std::size_t longest = 0;
    std::size_t run = 0;
    for (std::size_t index = 1; index < lines.size(); ++index) {
        const int count = lines[index][candidate];
        if (count == 0) {
            run = 0;
            continue;
        }
        run = run > 0 && lines[index - 1][candidate] == count ? run + 1 : 1;
        longest = std::max(longest, run);
    }
    return longest;
}

}  // namespace

SeparatorGuess guessSeparator(std::string_view text) {
    if (text.starts_with(byteOrderMark)) text.remove_prefix(byteOrderMark.size());
    const auto lines = candidateCountsByLine(text);
    const auto& first = lines.front();
    if (std::any_of(first.begin(), first.end(), [](int count) { return count > 0; })) {
        return {detectSeparator(text), "firstLine"};
    }
    std::size_t best = 0;
    std::array<std::size_t, 3> runs{};
    for (std::size_t index = 0; index < separatorCandidates.size(); ++index) {
        runs[index] = longestConsistentRun(lines, index);
        if (runs[index] > runs[best]) best = index;
    }
    if (runs[best] < 2) return {',', "default"};
    return {separatorCandidates[best], "consistentRows"};
}

Table parse(std::string_view text, std::optional<char> separator) {
    if (text.starts_with(byteOrderMark)) text.remove_prefix(byteOrderMark.size());
    const char chosen = separator && canSeparate(*separator) ? *separator : detectSeparator(text);
    return Tokenizer(text, chosen).run();
}

char detectSeparator(std::string_view text) {
    // Candidates in the order that breaks ties.
    constexpr auto candidates = separatorCandidates;
    CandidateCounts counts{};
    // The quote and line breaks are all the walk needs to tell apart; the candidates are
    // checked for glued neighbours below.
    const Characters characters(';');
    bool inQuotes = false;
    bool afterPrepend = false;
    for (std::size_t position = 0; position < text.size();) {
        const bool prependBefore = afterPrepend;
        const Character character = characters.at(text, position, prependBefore);
        afterPrepend = character.prepends;
        const std::size_t start = position;
        position += character.length;
        if (character.kind == Kind::quote) {
            inQuotes = !inQuotes;
            continue;
        }
        if (inQuotes) continue;
        if (character.kind == Kind::lineBreak) break;
        for (std::size_t index = 0; index < candidates.size(); ++index) {
            if (text[start] != candidates[index]) continue;
            // The tab is a control: nothing glues to it.
            if (index == 1 || !(prependBefore || extendsPrevious(text, start + 1))) ++counts[index];
        }
    }
    std::size_t best = 0;
    for (std::size_t index = 1; index < candidates.size(); ++index) {
        if (counts[index] > counts[best]) best = index;
    }
    return counts[best] > 0 ? candidates[best] : ',';
}

}  // namespace vantello::CSV
