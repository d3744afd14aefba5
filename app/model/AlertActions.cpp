#include "app/model/AlertActions.hpp"

#include "app/model/DisplayText.hpp"
#include "core/analysis/AlertDismissal.hpp"

namespace vantello::app {

void dismissSmartAlert(LedgerViewModel& model, const std::string& alertID) {
    model.apply(uiText("Nascondi avviso"), [&](Ledger& ledger) { dismissAlert(ledger, alertID); });
}

}  // namespace vantello::app
