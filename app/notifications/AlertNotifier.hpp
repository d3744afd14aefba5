#pragma once
// One desktop notification for the smart alerts that have not been notified before, when the
// user turned alert notifications on ("alertNotifications"). The ids already notified are kept
// under "notifiedAlerts", so an alert is notified once.

#include "app/notifications/NotificationService.hpp"
#include "app/settings/Preferences.hpp"
#include "core/analysis/SmartAlert.hpp"

#include <vector>

namespace vantello::app {

class AlertNotifier {
public:
    AlertNotifier(NotificationService& service, Preferences& preferences);

    // One alert: its title and message; several: their count and their titles.
    void postAlerts(const std::vector<SmartAlert>& alerts);

private:
    NotificationService& service_;
    Preferences& preferences_;
};

}  // namespace vantello::app
