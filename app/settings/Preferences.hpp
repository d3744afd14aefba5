#pragma once
// The application's preferences under their keys in QSettings (~/.config/Vantello/Vantello.conf
// unless the caller gives another file). Record-valued keys hold JSON text; a value that cannot
// be read gives the default, so a damaged preference never stops the application.

#include "core/analysis/AlertSettings.hpp"
#include "core/base/Instant.hpp"
#include "core/base/Uuid.hpp"
#include "core/planning/SalaryReminder.hpp"

#include <QSettings>
#include <QString>

#include <filesystem>
#include <memory>
#include <optional>
#include <set>
#include <string>

namespace vantello::app {

class Preferences {
public:
    // The application's own settings file.
    Preferences();
    // Settings kept in the given file (tests, other profiles of the desktop).
    explicit Preferences(const QString& file);

    // "currentProfile": the managed profile in use; absent for the user's own data.
    [[nodiscard]] std::optional<Uuid> currentProfile() const;
    void setCurrentProfile(const std::optional<Uuid>& profile);

    // "salaryReminder" and "salaryReminderDismissedDay".
    [[nodiscard]] SalaryReminder salaryReminder() const;
    void setSalaryReminder(const SalaryReminder& reminder);
    [[nodiscard]] std::optional<Instant> salaryReminderDismissedDay() const;
    void setSalaryReminderDismissedDay(const std::optional<Instant>& day);

    // "backupFolderBookmark": the backup folder the user chose; absent for the default one.
    [[nodiscard]] std::optional<std::filesystem::path> backupFolder() const;
    void setBackupFolder(const std::optional<std::filesystem::path>& folder);

    // "alertSettings", "alertNotifications" (off unless turned on) and "notifiedAlerts".
    [[nodiscard]] AlertSettings alertSettings() const;
    void setAlertSettings(const AlertSettings& settings);
    [[nodiscard]] bool alertNotifications() const;
    void setAlertNotifications(bool enabled);
    [[nodiscard]] std::set<std::string> notifiedAlerts() const;
    void setNotifiedAlerts(const std::set<std::string>& ids);

    // Plain values of the appearance and the windows: "appTheme", "language",
    // "showsMenuBarExtra", "settingsTab" and the like. An absent key gives `fallback`.
    [[nodiscard]] QVariant value(const QString& key, const QVariant& fallback = {}) const;
    void setValue(const QString& key, const QVariant& value);
    void remove(const QString& key);

    // Writes what was changed to the file now.
    void sync();

private:
    [[nodiscard]] std::optional<Json> json(const QString& key) const;
    void setJson(const QString& key, const Json& value);

    std::unique_ptr<QSettings> settings_;
};

}  // namespace vantello::app
