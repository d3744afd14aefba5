#include "app/settings/Language.hpp"

#include "app/settings/AppLanguage.hpp"
#include "app/settings/Preferences.hpp"
#include "core/base/Localization.hpp"
#include "core/base/PeopleFormat.hpp"

#include <QCoreApplication>
#include <QLocale>
#include <QTranslator>

namespace vantello::app {

namespace {
// Every text of the core and of the screens sits in one translation context.
constexpr const char* translationContext = "Vantello";

InterfaceLanguage languageFor(AppLanguage chosen, const QString& systemLocaleName) {
    switch (chosen) {
        case AppLanguage::english: return InterfaceLanguage::english;
        case AppLanguage::italian: return InterfaceLanguage::italian;
        case AppLanguage::system: break;
    }
    return systemLocaleName.startsWith(QLatin1String("en")) ? InterfaceLanguage::english
                                                            : InterfaceLanguage::italian;
}

InterfaceLanguage installedLanguage = InterfaceLanguage::italian;

}  // namespace

InterfaceLanguage currentInterfaceLanguage() { return installedLanguage; }

std::string interfaceLocaleName() { return installedLanguage == InterfaceLanguage::english ? "en_US" : "it_IT"; }

InterfaceLanguage languageFor(const QVariant& preference, const QString& systemLocaleName) {
    return languageFor(appLanguageFor(preference), systemLocaleName);
}

InterfaceLanguage installInterfaceLanguage(QCoreApplication& application, std::optional<InterfaceLanguage> forced) {
    const InterfaceLanguage language =
        forced.value_or(languageFor(storedAppLanguage(Preferences()), QLocale::system().name()));
    if (language == InterfaceLanguage::english) {
        auto* translator = new QTranslator(&application);
        if (translator->load(QStringLiteral(":/i18n/vantello_en.qm"))) {
            QCoreApplication::installTranslator(translator);
        }
    }
    installedLanguage = language;
    QLocale::setDefault(QLocale(QString::fromStdString(interfaceLocaleName())));
    PeopleFormat::setDefaultLocale(interfaceLocaleName());
    L10n::install([](std::string_view key) {
        const std::string text(key);
        return QCoreApplication::translate(translationContext, text.c_str()).toStdString();
    });
    return language;
}

}  // namespace vantello::app
