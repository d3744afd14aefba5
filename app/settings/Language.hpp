#pragma once
// The interface language: the preference "language" (absent = follow the system, "it", "en")
// decides which texts the application and the core speak. Italian texts are the keys.

#include <QString>

class QCoreApplication;

namespace vantello::app {

enum class InterfaceLanguage { italian, english };

// The language for a preference value and the system's locale name ("en_GB", "it_IT", "C").
// Italian unless English is asked for, or the system speaks English and nothing is asked.
[[nodiscard]] InterfaceLanguage languageFor(const QString& preference, const QString& systemLocaleName);

// Reads the preference, installs the Qt translator for the application and routes the core's
// texts through it. Returns the language installed.
InterfaceLanguage installInterfaceLanguage(QCoreApplication& application);

}  // namespace vantello::app
