#include "app/settings/AppLanguage.hpp"

#include "core/base/Localization.hpp"

#include <QStringList>

#include <string_view>

namespace vantello::app {

namespace {

const QString languageKey = QStringLiteral("language");

// The interface-language text of an Italian key.
QString text(std::string_view italianKey) { return QString::fromStdString(L10n::tr(italianKey)); }

}  // namespace

AppLanguage appLanguageFor(const QVariant& stored) {
    const QString first = stored.toStringList().value(0);
    if (first.startsWith(QLatin1String("en"))) return AppLanguage::english;
    if (first.startsWith(QLatin1String("it"))) return AppLanguage::italian;
    return AppLanguage::system;
}

AppLanguage storedAppLanguage(const Preferences& preferences) {
    return appLanguageFor(preferences.value(languageKey));
}

void storeAppLanguage(Preferences& preferences, AppLanguage language) {
    switch (language) {
        case AppLanguage::system: preferences.remove(languageKey); return;
        case AppLanguage::italian: preferences.setValue(languageKey, QStringLiteral("it")); return;
        case AppLanguage::english: preferences.setValue(languageKey, QStringLiteral("en")); return;
    }
}

QString label(AppLanguage language) {
    switch (language) {
        case AppLanguage::system: return text("Automatico (lingua del sistema)");
        case AppLanguage::italian: return text("Italiano");
        case AppLanguage::english: return text("English");
    }
    return {};
}

QString languageHeading() { return text("Lingua dell'app"); }

QString languageRestartMessage() { return text("La nuova lingua si applica al riavvio di Vantello."); }

QString restartButtonLabel() { return text("Riavvia ora"); }

}  // namespace vantello::app
