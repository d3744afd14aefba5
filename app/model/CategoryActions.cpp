#include "app/model/CategoryActions.hpp"

#include "app/model/DisplayText.hpp"

namespace vantello::app {

using Route = LedgerViewModel::ErrorRoute;

std::variant<std::string, QString> addCustomCategory(LedgerViewModel& model, const QString& name,
                                                     const std::string& symbol, TransactionKind kind) {
    std::string added;
    const std::optional<QString> error = model.apply(
        uiText("Aggiungi categoria"),
        [&](Ledger& ledger) { added = ledger.addCategory(name.toStdString(), symbol, kind).id; }, Route::caller);
    if (error) return *error;
    return added;
}

std::optional<QString> changeCategory(LedgerViewModel& model, const std::string& categoryID, const QString& name,
                                      const std::string& symbol) {
    return model.apply(
        uiText("Modifica categoria"),
        [&](Ledger& ledger) { ledger.renameCategory(categoryID, name.toStdString(), symbol); }, Route::caller);
}

std::optional<QString> removeCategory(LedgerViewModel& model, const std::string& categoryID) {
    return model.apply(
        uiText("Elimina categoria"), [&](Ledger& ledger) { ledger.deleteCategory(categoryID); }, Route::caller);
}

}  // namespace vantello::app
