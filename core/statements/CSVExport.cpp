#include "core/statements/CSVExport.hpp"

#include "core/base/DecimalFormat.hpp"
#include "core/base/Iso8601.hpp"
#include "core/base/Localization.hpp"
#include "core/statements/CSV.hpp"

#include <algorithm>
#include <functional>
#include <string_view>
#include <unordered_map>

namespace vantello::CSVExport {

namespace {

std::string dayText(const Calendar& calendar, Instant date) { return Iso8601::day(calendar.civilDate(date)); }

}  // namespace

std::string text(const std::vector<Transaction>& transactions, const std::vector<TransactionCategory>& categories,
                 const Calendar& calendar, std::string_view localeName, Order order) {
    const std::string separator = decimalSeparator(localeName);
    const char fieldSeparator = separator == "," ? ';' : ',';

    std::unordered_map<std::string_view, std::string_view> names;
    for (const TransactionCategory& category : categories) names.try_emplace(category.id, category.name);
    names.insert_or_assign(transferCategoryID, transferCategory().name);

    std::vector<const Transaction*> rows;
    rows.reserve(transactions.size());
    for (const Transaction& transaction : transactions) rows.push_back(&transaction);
    if (order == Order::byDate) {
        std::stable_sort(rows.begin(), rows.end(),
                         [](const Transaction* a, const Transaction* b) { return a->date < b->date; });
    }

    const std::string income = L10n::tr("Entrata");
    const std::string expense = L10n::tr("Uscita");
    std::string result = CSV::line({L10n::tr("Data"), L10n::tr("Tipo"), L10n::tr("Categoria"),
                                    L10n::tr("Importo"), L10n::tr("Nota")},
                                   fieldSeparator);
    for (const Transaction* transaction : rows) {
        const auto name = names.find(transaction->categoryID);
        result.append("\r\n");
        result.append(CSV::line({dayText(calendar, transaction->date),
                                 transaction->kind == TransactionKind::income ? income : expense,
                                 name != names.end() ? std::string(name->second) : transaction->categoryID,
                                 plainAmountText(transaction->amount, separator), transaction->note},
                                fieldSeparator));
    }
    return result;
}

}  // namespace vantello::CSVExport
