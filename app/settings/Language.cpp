#include "app/settings/Language.hpp"

#include "core/base/Localization.hpp"

#include <QCoreApplication>
#include <QLocale>
#include <QSettings>
#include <QTranslator>

namespace vantello::app {

namespace {
// Every text of the core and of the screens sits in one translation context.
constexpr const char* translationContext = "Vantello";
}  // namespace

InterfaceLanguage languageFor(const QString& preference, const QString& systemLocaleName) {
    if (preference == QLatin1String("en")) return InterfaceLanguage::english;
    if (preference == QLatin1String("it")) return InterfaceLanguage::italian;
    return systemLocaleName.startsWith(QLatin1String("en")) ? InterfaceLanguage::english
                                                            : InterfaceLanguage::italian;
}

InterfaceLanguage installInterfaceLanguage(QCoreApplication& application) {
    const QString preference = QSettings().value(QStringLiteral("language")).toString();
    const InterfaceLanguage language = languageFor(preference, QLocale::system().name());
    if (language == InterfaceLanguage::english) {
        auto* translator = new QTranslator(&application);
        if (translator->load(QStringLiteral(":/i18n/vantello_en.qm"))) {
            QCoreApplication::installTranslator(translator);
        }
    }
    L10n::install([](std::string_view key) {
        const std::string text(key);
        return QCoreApplication::translate(translationContext, text.c_str()).toStdString();
    });
    return language;
}

}  // namespace vantello::app
