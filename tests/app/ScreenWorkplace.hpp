#pragma once
// What the screen tests share: the Italian interface, Rome's calendar, noon of a day, and a
// model on a temporary data folder with its own preferences and a clock frozen at noon of
// 18 March 2026.

#include "app/model/LedgerViewModel.hpp"
#include "app/settings/Language.hpp"

#include <QCoreApplication>
#include <QSettings>

#include <QTemporaryDir>

#include <filesystem>
#include <memory>

namespace vantello::app::testing {

inline const Calendar rome("Europe/Rome");

inline Instant noon(int year, int month, int day) { return *rome.date({year, month, day}, 12); }

// The application's names for its settings, and the Italian interface whatever the machine's.
inline void useItalianInterface() {
    QCoreApplication::setOrganizationName(QStringLiteral("Vantello"));
    QCoreApplication::setApplicationName(QStringLiteral("Vantello"));
    QSettings().remove(QStringLiteral("language"));
    installInterfaceLanguage(*QCoreApplication::instance());
}

struct Workplace {
    QTemporaryDir home;
    std::filesystem::path folder = std::filesystem::path(home.path().toStdString()) / "Vantello";
    Preferences preferences{home.path() + QStringLiteral("/Vantello.conf")};

    std::unique_ptr<LedgerViewModel> model() {
        return std::make_unique<LedgerViewModel>(LedgerViewModel::Setup{
            folder, std::nullopt, rome, [] { return noon(2026, 3, 18); }, &preferences, folder / "Backup"});
    }
};

}  // namespace vantello::app::testing
