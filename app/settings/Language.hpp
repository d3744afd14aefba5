#pragma once
// The interface language: the preference "language" (absent = follow the system, "it", "en")
// decides which texts the application and the core speak. Italian texts are the keys.

#include <QString>
#include <QVariant>

#include <optional>
#include <string>

class QCoreApplication;

namespace vantello::app {

enum class InterfaceLanguage { italian, english };

// The language for a stored preference value (read as AppLanguage reads it) and the system's
// locale name ("en_GB", "it_IT", "C"). Italian unless English is asked for, or the system
// speaks English and no language is asked for.
[[nodiscard]] InterfaceLanguage languageFor(const QVariant& preference, const QString& systemLocaleName);

// Reads the preference, installs the Qt translator for the application and routes the core's
// texts through it. Returns the language installed.
// `forced`, when given, wins over the preference (screenshots in either language).
InterfaceLanguage installInterfaceLanguage(QCoreApplication& application,
                                           std::optional<InterfaceLanguage> forced = std::nullopt);

// The language installed last (Italian before any), and the ICU/Qt locale name the screens
// format amounts and dates with: "it_IT" or "en_US".
[[nodiscard]] InterfaceLanguage currentInterfaceLanguage();
[[nodiscard]] std::string interfaceLocaleName();

}  // namespace vantello::app
