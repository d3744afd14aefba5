#include "core/statements/CSVRowMarks.hpp"

#include "core/base/Text.hpp"

#include <algorithm>
#include <array>
#include <string>

namespace vantello::CSVRowMarks {
namespace {

// The words below are ASCII, so lowering ASCII letters is all the comparison needs, and it
// costs far less than folding every row.
std::string asciiLowered(std::string_view text) {
    std::string lowered(Text::trimmedView(text));
    for (char& c : lowered) {
        if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
    }
    return lowered;
}

// Every description is checked, so without a copy.
bool startsWithIgnoringAsciiCase(std::string_view text, std::string_view lowered) {
    if (text.size() < lowered.size()) return false;
    for (std::size_t index = 0; index < lowered.size(); ++index) {
        char c = text[index];
        if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
        if (c != lowered[index]) return false;
    }
    return true;
}

constexpr std::array<std::string_view, 21> notBookedWords{
    "sospeso",    "non contabilizzat", "in attesa",  "rifiutat", "negat",     "annullat", "stornat",
    "pending",    "not approved",      "declined",   "reverted", "denied",    "cancel",   "failed",
    "vorgemerkt", "abgelehnt",         "en attente", "refuse",   "pendiente", "rechazad", "geweigerd"};

constexpr std::array<std::string_view, 13> balanceOpenings{
    "saldo iniziale", "saldo finale",    "saldo contabile", "saldo disponibile", "saldo precedente",
    "saldo al ",      "opening balance", "closing balance", "anfangssaldo",      "endsaldo",
    "solde initial",  "solde final",     "beginsaldo"};

constexpr std::array<std::string_view, 8> moneyOutMarks{"s", "af", "d", "dr", "debit", "dare", "-", "soll"};
constexpr std::array<std::string_view, 8> moneyInMarks{"h", "bij", "c", "cr", "credit", "avere", "+", "haben"};

}  // namespace

bool isNotBooked(std::string_view statusCell) {
    const std::string status = asciiLowered(statusCell);
    return std::any_of(notBookedWords.begin(), notBookedWords.end(),
                       [&](std::string_view word) { return status.find(word) != std::string::npos; });
}

bool isBalanceLine(std::string_view description) {
    const std::string_view text = Text::trimmedView(description);
    // The openings start with one of these letters; most descriptions stop here.
    if (text.empty() || std::string_view("SsOoCcAaEeBb").find(text.front()) == std::string_view::npos) return false;
    return std::any_of(balanceOpenings.begin(), balanceOpenings.end(),
                       [&](std::string_view opening) { return startsWithIgnoringAsciiCase(text, opening); });
}

std::optional<Side> sideOf(std::string_view signCell) {
    const std::string mark = asciiLowered(signCell);
    if (std::find(moneyOutMarks.begin(), moneyOutMarks.end(), mark) != moneyOutMarks.end()) return Side::moneyOut;
    if (std::find(moneyInMarks.begin(), moneyInMarks.end(), mark) != moneyInMarks.end()) return Side::moneyIn;
    return std::nullopt;
}

}  // namespace vantello::CSVRowMarks
