#include "app/notifications/AlertNotifier.hpp"

#include "core/base/Localization.hpp"

#include <QStringList>

namespace vantello::app {

namespace {

NotificationService::Notification notificationOf(const std::vector<const SmartAlert*>& alerts) {
    const QString icon = QStringLiteral("dialog-warning");
    if (alerts.size() == 1) {
        return {QString::fromStdString(alerts.front()->title), QString::fromStdString(alerts.front()->message), icon};
    }
    QStringList titles;
    for (const SmartAlert* alert : alerts) titles << QString::fromStdString(alert->title);
    return {QString::fromStdString(L10n::tr("Vantello: {count} nuovi avvisi", {{"count", std::to_string(alerts.size())}})),
            titles.join(QStringLiteral(" · ")), icon};
}

}  // namespace

AlertNotifier::AlertNotifier(NotificationService& service, Preferences& preferences)
    : service_(service), preferences_(preferences) {}

void AlertNotifier::postAlerts(const std::vector<SmartAlert>& alerts) {
    if (!preferences_.alertNotifications()) return;
    std::set<std::string> notified = preferences_.notifiedAlerts();
    std::vector<const SmartAlert*> fresh;
    for (const SmartAlert& alert : alerts) {
        if (notified.insert(alert.id).second) fresh.push_back(&alert);
    }
    if (fresh.empty()) return;
    service_.notify(notificationOf(fresh));
    preferences_.setNotifiedAlerts(notified);
}

}  // namespace vantello::app
