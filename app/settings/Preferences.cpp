#include "app/settings/Preferences.hpp"

#include "core/base/Iso8601.hpp"

namespace vantello::app {

namespace {

const QString currentProfileKey = QStringLiteral("currentProfile");
const QString salaryReminderKey = QStringLiteral("salaryReminder");
const QString dismissedDayKey = QStringLiteral("salaryReminderDismissedDay");
const QString backupFolderKey = QStringLiteral("backupFolderBookmark");
const QString alertSettingsKey = QStringLiteral("alertSettings");
const QString alertNotificationsKey = QStringLiteral("alertNotifications");
const QString notifiedAlertsKey = QStringLiteral("notifiedAlerts");

}  // namespace

Preferences::Preferences() : settings_(std::make_unique<QSettings>()) {}

Preferences::Preferences(const QString& file) : settings_(std::make_unique<QSettings>(file, QSettings::IniFormat)) {}

std::optional<Json> Preferences::json(const QString& key) const {
    const QString text = settings_->value(key).toString();
    if (text.isEmpty()) return std::nullopt;
    try {
        return JsonCoding::parse(text.toStdString());
    } catch (const DecodingError&) {
        return std::nullopt;
    }
}

void Preferences::setJson(const QString& key, const Json& value) {
    settings_->setValue(key, QString::fromStdString(value.dump()));
}

std::optional<Uuid> Preferences::currentProfile() const {
    return Uuid::parse(settings_->value(currentProfileKey).toString().toStdString());
}

void Preferences::setCurrentProfile(const std::optional<Uuid>& profile) {
    if (profile) {
        settings_->setValue(currentProfileKey, QString::fromStdString(profile->text()));
    } else {
        settings_->remove(currentProfileKey);
    }
}

SalaryReminder Preferences::salaryReminder() const {
    const std::optional<Json> stored = json(salaryReminderKey);
    if (!stored) return {};
    try {
        return stored->get<SalaryReminder>();
    } catch (const std::exception&) {
        return {};
    }
}

void Preferences::setSalaryReminder(const SalaryReminder& reminder) { setJson(salaryReminderKey, Json(reminder)); }

std::optional<Instant> Preferences::salaryReminderDismissedDay() const {
    return Iso8601::parse(settings_->value(dismissedDayKey).toString().toStdString());
}

void Preferences::setSalaryReminderDismissedDay(const std::optional<Instant>& day) {
    if (day) {
        settings_->setValue(dismissedDayKey, QString::fromStdString(Iso8601::format(*day)));
    } else {
        settings_->remove(dismissedDayKey);
    }
}

std::optional<std::filesystem::path> Preferences::backupFolder() const {
    const QString folder = settings_->value(backupFolderKey).toString();
    if (folder.isEmpty()) return std::nullopt;
    return std::filesystem::path(folder.toStdString());
}

void Preferences::setBackupFolder(const std::optional<std::filesystem::path>& folder) {
    if (folder) {
        settings_->setValue(backupFolderKey, QString::fromStdString(folder->string()));
    } else {
        settings_->remove(backupFolderKey);
    }
}

AlertSettings Preferences::alertSettings() const {
    const std::optional<Json> stored = json(alertSettingsKey);
    if (!stored) return {};
    try {
        return stored->get<AlertSettings>();
    } catch (const std::exception&) {
        return {};
    }
}

void Preferences::setAlertSettings(const AlertSettings& settings) { setJson(alertSettingsKey, Json(settings)); }

bool Preferences::alertNotifications() const { return settings_->value(alertNotificationsKey, false).toBool(); }

void Preferences::setAlertNotifications(bool enabled) { settings_->setValue(alertNotificationsKey, enabled); }

std::set<std::string> Preferences::notifiedAlerts() const {
    const std::optional<Json> stored = json(notifiedAlertsKey);
    if (!stored || !stored->is_array()) return {};
    std::set<std::string> ids;
    for (const Json& id : *stored) {
        if (id.is_string()) ids.insert(id.get<std::string>());
    }
    return ids;
}

void Preferences::setNotifiedAlerts(const std::set<std::string>& ids) { setJson(notifiedAlertsKey, Json(ids)); }

QVariant Preferences::value(const QString& key, const QVariant& fallback) const {
    return settings_->value(key, fallback);
}

void Preferences::setValue(const QString& key, const QVariant& value) { settings_->setValue(key, value); }

void Preferences::remove(const QString& key) { settings_->remove(key); }

void Preferences::sync() { settings_->sync(); }

}  // namespace vantello::app
