#include "core/statements/StatementRecord.hpp"

#include "core/base/Localization.hpp"
#include "core/base/Text.hpp"
#include "core/ledger/TransactionCategory.hpp"
#include "core/statements/NameBasedUuid.hpp"

#include <utility>

namespace vantello {

namespace {

CSVImportRow problemRow(int line, std::string problem) { return {line, std::nullopt, std::move(problem)}; }

std::string collapsedSpaces(std::string_view text) {
    std::string result;
    bool pendingSpace = false;
    for (const char c : Text::trimmedView(text)) {
        if (c == ' ' || c == '\t' || c == '\n' || c == '\r') {
            pendingSpace = true;
            continue;
        }
        if (pendingSpace) result.push_back(' ');
        pendingSpace = false;
        result.push_back(c);
    }
    return result;
}

bool isEuro(std::string_view currency) { return currency.empty() || currency == "EUR"; }

}  // namespace

CSVImportRow statementRow(const StatementRecord& record, const StatementSource& source, const Calendar& calendar) {
    if (record.problem) return problemRow(record.line, *record.problem);
    const std::optional<Instant> date = record.day ? calendar.date(*record.day, 12) : std::nullopt;
    if (!date) return problemRow(record.line, L10n::tr("Data non leggibile: «{text}»", {{"text", record.dateText}}));
    if (!record.amount && !Text::trimmedView(record.amountText).empty()) {
        return problemRow(record.line, L10n::tr("Importo non leggibile: «{text}»", {{"text", record.amountText}}));
    }
    if (!record.amount || record.amount->isZero()) {
        return problemRow(record.line, L10n::tr("Importo assente o uguale a zero."));
    }
    if (!isEuro(record.currency)) {
        return problemRow(record.line, L10n::tr("Importo in {currency}, non in euro: il movimento non viene importato.",
                                                {{"currency", record.currency}}));
    }

    Transaction transaction;
    transaction.id = record.bankID.empty()
                         ? Uuid::random()
                         : nameBasedUuid(std::string(source.format) + '\n' + source.account + '\n' + record.bankID);
    transaction.kind = record.amount->sign() < 0 ? TransactionKind::expense : TransactionKind::income;
    transaction.amount = record.amount->magnitude();
    transaction.date = *date;
    transaction.categoryID = std::string(fallbackCategoryID(transaction.kind));
    transaction.note = collapsedSpaces(record.note);
    if (record.originalCurrency && record.originalAmount && !isEuro(*record.originalCurrency)) {
        transaction.currency = record.originalCurrency;
        transaction.originalAmount = record.originalAmount->magnitude();
    }
    return {record.line, std::move(transaction), std::nullopt};
}

std::optional<Decimal> plainAmount(std::string_view text) {
    std::string_view rest = Text::trimmedView(text);
    if (rest.starts_with('+')) rest.remove_prefix(1);
    std::string canonical;
    canonical.reserve(rest.size() + 2);
    if (rest.starts_with('-')) {
        canonical.push_back('-');
        rest.remove_prefix(1);
    }
    if (rest.starts_with('.') || rest.starts_with(',')) canonical.push_back('0');
    for (const char c : rest) canonical.push_back(c == ',' ? '.' : c);
    if (canonical.ends_with('.')) canonical.pop_back();
    return Decimal::fromCanonicalAmount(canonical);
}

}  // namespace vantello
