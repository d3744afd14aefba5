#include "app/model/SearchForm.hpp"

#include "app/model/DisplayText.hpp"
#include "core/ledger/AmountParser.hpp"

#include <QLocale>

namespace vantello::app {

namespace {

// Absent text is no bound; text that is not an amount is refused rather than ignored, so that
// the results never silently disagree with what the field shows.
std::optional<std::optional<Decimal>> bound(const QString& typed) {
    const QString trimmed = typed.trimmed();
    if (trimmed.isEmpty()) return std::optional<Decimal>{};
    auto amount = AmountParser::parse(trimmed.toStdString());
    if (!amount) return std::nullopt;
    return amount;
}

QString typedAmount(const std::optional<Decimal>& amount) {
    if (!amount) return {};
    const QString separator = QLocale().decimalPoint();
    return QString::fromStdString(amount->toFixed(2, separator == QStringLiteral(",") ? ',' : '.'));
}

}  // namespace

std::variant<TransactionFilter, SearchFormProblem> searchFilter(const SearchForm& form, const Calendar& calendar) {
    using Field = SearchFormProblem::Field;
    TransactionFilter filter;
    filter.text = form.text.trimmed().toStdString();
    filter.period = form.period;
    filter.kind = form.kind;
    filter.categoryIDs = form.categoryIDs;
    filter.onlyWithAttachments = form.onlyWithAttachments;
    filter.accountID = form.accountID;

    const auto minimum = bound(form.minimum);
    if (!minimum) return SearchFormProblem{Field::minimum, uiText("L'importo minimo non è un importo valido.")};
    const auto maximum = bound(form.maximum);
    if (!maximum) return SearchFormProblem{Field::maximum, uiText("L'importo massimo non è un importo valido.")};
    if (*minimum && *maximum && **minimum > **maximum)
        return SearchFormProblem{Field::maximum, uiText("L'importo minimo supera quello massimo.")};
    filter.minAmount = *minimum;
    filter.maxAmount = *maximum;

    if (form.period == TransactionFilter::Period::custom) {
        if (form.from) filter.customStart = calendar.date(*form.from);
        if (form.to) filter.customEnd = calendar.date(*form.to);
        if (filter.customStart && filter.customEnd && *filter.customStart > *filter.customEnd)
            return SearchFormProblem{Field::dates, uiText("La data iniziale viene dopo quella finale.")};
    }
    return filter;
}

SearchForm searchForm(const TransactionFilter& filter, const Calendar& calendar) {
    SearchForm form;
    form.text = QString::fromStdString(filter.text);
    form.period = filter.period;
    if (filter.customStart) form.from = calendar.civilDate(*filter.customStart);
    if (filter.customEnd) form.to = calendar.civilDate(*filter.customEnd);
    form.kind = filter.kind;
    form.categoryIDs = filter.categoryIDs;
    form.minimum = typedAmount(filter.minAmount);
    form.maximum = typedAmount(filter.maxAmount);
    form.onlyWithAttachments = filter.onlyWithAttachments;
    form.accountID = filter.accountID;
    return form;
}

}  // namespace vantello::app
