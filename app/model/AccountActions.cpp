#include "app/model/AccountActions.hpp"

#include "app/model/DisplayText.hpp"
#include "core/base/UserError.hpp"
#include "core/ledger/AmountParser.hpp"
#include "core/ledger/LedgerAccounts.hpp"

#include <algorithm>

namespace vantello::app {

namespace {

using Route = LedgerViewModel::ErrorRoute;

int transferCount(const Ledger& ledger) {
    const auto& movements = ledger.transactions();
    return int(std::count_if(movements.begin(), movements.end(),
                             [](const Transaction& movement) { return movement.isTransfer(); }));
}

// The typed amount, nothing for an empty field when `optional`, or the message `invalid`.
// The parser takes no sign, so a leading minus (ASCII or U+2212) is read here when allowed.
std::variant<std::optional<Decimal>, QString> typedAmount(const QString& typed, bool optional, bool signAllowed,
                                                          const QString& invalid) {
    QString text = typed.trimmed();
    if (text.isEmpty()) {
        if (optional) return std::optional<Decimal>();
        return std::optional<Decimal>(Decimal());
    }
    bool negative = false;
    if (signAllowed && (text.startsWith(QLatin1Char('-')) || text.startsWith(QChar(0x2212)))) {
        negative = true;
        text = text.mid(1).trimmed();
    }
    std::optional<Decimal> amount = AmountParser::parse(text.toStdString());
    if (!amount) return invalid;
    return std::optional<Decimal>(negative ? -*amount : *amount);
}

}  // namespace

AccountDeletion accountDeletionPreview(const Ledger& ledger, std::string_view accountID) {
    Ledger copy = ledger;  // shares the movements until the deletion touches them
    try {
        const int moved = deleteAccount(copy, accountID);
        return {moved, transferCount(ledger) - transferCount(copy)};
    } catch (const UserError&) {
        return {};
    }
}

QString editableAmountText(const std::optional<Decimal>& amount) {
    if (!amount) return {};
    return typedAmountText(*amount);
}

std::variant<std::string, QString> addAccountFromForm(LedgerViewModel& model, const AccountForm& form) {
    auto opening = typedAmount(form.openingBalance, false, true, uiText("Il saldo iniziale non è un importo valido."));
    if (auto* message = std::get_if<QString>(&opening)) return *message;
    auto threshold = typedAmount(form.lowBalanceThreshold, true, false,
                                 uiText("La soglia di saldo basso non è un importo valido."));
    if (auto* message = std::get_if<QString>(&threshold)) return *message;

    std::string added;
    const std::optional<QString> error = model.apply(
        uiText("Aggiungi conto"),
        [&](Ledger& ledger) {
            added = addAccount(ledger, form.name.toStdString(), form.symbol,
                               *std::get<std::optional<Decimal>>(opening), std::get<std::optional<Decimal>>(threshold))
                        .id;
        },
        Route::caller);
    if (error) return *error;
    return added;
}

std::optional<QString> changeAccount(LedgerViewModel& model, const std::string& accountID, const AccountForm& form) {
    auto threshold = typedAmount(form.lowBalanceThreshold, true, false,
                                 uiText("La soglia di saldo basso non è un importo valido."));
    if (auto* message = std::get_if<QString>(&threshold)) return *message;
    return model.apply(
        uiText("Modifica conto"),
        [&](Ledger& ledger) {
            const Account* existing = ledger.account(accountID);
            Account changed = existing ? *existing : Account{accountID, {}, {}, {}, {}};
            changed.name = form.name.toStdString();
            if (!form.symbol.empty()) changed.symbol = form.symbol;
            changed.lowBalanceThreshold = std::get<std::optional<Decimal>>(threshold);
            updateAccount(ledger, std::move(changed));  // an unknown id is the core's to refuse
        },
        Route::caller);
}

std::variant<int, QString> removeAccount(LedgerViewModel& model, const std::string& accountID) {
    int moved = 0;
    const std::optional<QString> error = model.apply(
        uiText("Elimina conto"), [&](Ledger& ledger) { moved = deleteAccount(ledger, accountID); }, Route::caller);
    if (error) return *error;
    return moved;
}

}  // namespace vantello::app
