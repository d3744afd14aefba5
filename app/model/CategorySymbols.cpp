#include "app/model/CategorySymbols.hpp"

#include "core/base/Localization.hpp"

namespace vantello::app {

const std::vector<SymbolChoice>& categorySymbolChoices() {
    static const std::vector<SymbolChoice> choices{
        {"tag", L10n::key("Etichetta")},
        {"cart", L10n::key("Carrello")},
        {"house", L10n::key("Casa")},
        {"bolt", L10n::key("Energia")},
        {"car", L10n::key("Auto")},
        {"fuelpump", L10n::key("Carburante")},
        {"bus", L10n::key("Autobus")},
        {"bicycle", L10n::key("Bicicletta")},
        {"airplane", L10n::key("Aereo")},
        {"fork.knife", L10n::key("Posate")},
        {"theatermasks", L10n::key("Teatro")},
        {"music.note", L10n::key("Musica")},
        {"tv", L10n::key("Televisione")},
        {"gamecontroller", L10n::key("Videogiochi")},
        {"book", L10n::key("Libro")},
        {"graduationcap", L10n::key("Scuola")},
        {"cross.case", L10n::key("Kit medico")},
        {"pills", L10n::key("Medicine")},
        {"tshirt", L10n::key("Maglietta")},
        {"gift", L10n::key("Regalo")},
        {"heart", L10n::key("Cuore")},
        {"pawprint", L10n::key("Zampa")},
        {"phone", L10n::key("Telefono")},
        {"wifi", L10n::key("Internet")},
        {"briefcase", L10n::key("Valigetta")},
        {"banknote", L10n::key("Banconota")},
        {"eurosign.circle", L10n::key("Euro")},
        {"ellipsis.circle", L10n::key("Altro")},
    };
    return choices;
}

const std::vector<SymbolChoice>& accountSymbolChoices() {
    static const std::vector<SymbolChoice> choices{
        {"building.columns", L10n::key("Banca")},
        {"creditcard", L10n::key("Carta")},
        {"banknote", L10n::key("Contanti")},
        {"wallet.pass", L10n::key("Portafoglio")},
        {"eurosign.circle", L10n::key("Euro")},
        {"briefcase", L10n::key("Valigetta")},
        {"house", L10n::key("Casa")},
        {"car", L10n::key("Auto")},
    };
    return choices;
}

}  // namespace vantello::app
