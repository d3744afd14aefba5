#include "app/settings/QuickAddSetting.hpp"

#include "core/base/Localization.hpp"

#include <string_view>

namespace vantello::app {

namespace {

const QString showsKey = QStringLiteral("showsMenuBarExtra");

// The interface-language text of an Italian key.
QString text(std::string_view italianKey) { return QString::fromStdString(L10n::tr(italianKey)); }

}  // namespace

bool showsQuickAddIcon(const Preferences& preferences) { return preferences.value(showsKey, true).toBool(); }

void setShowsQuickAddIcon(Preferences& preferences, bool shows) { preferences.setValue(showsKey, shows); }

QString quickAddSwitchLabel() { return text("Aggiunta rapida nella barra dei menu"); }

QString quickAddExplanation() {
    return text("Un'icona € in alto a destra per aggiungere un movimento senza aprire la finestra di Vantello.");
}

}  // namespace vantello::app
