#include "app/notifications/NotificationService.hpp"

#include "core/base/Localization.hpp"

#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QStringList>
#include <QVariantMap>

namespace vantello::app {

namespace {

const QString serviceName = QStringLiteral("org.freedesktop.Notifications");
const QString objectPath = QStringLiteral("/org/freedesktop/Notifications");
const QString interfaceName = serviceName;

constexpr uchar normalUrgency = 1;
constexpr int serverDefaultTimeout = -1;

QDBusMessage call(const QString& method, const QVariantList& arguments) {
    QDBusMessage message = QDBusMessage::createMethodCall(serviceName, objectPath, interfaceName, method);
    message.setArguments(arguments);
    return message;
}

}  // namespace

NotificationService::NotificationService(const QDBusConnection& bus, QObject* parent) : QObject(parent), bus_(bus) {}

QDBusPendingReply<uint> NotificationService::notify(const Notification& notification) {
    const QVariantMap hints{
        {QStringLiteral("desktop-entry"), QStringLiteral("vantello")},
        {QStringLiteral("urgency"), QVariant::fromValue(normalUrgency)},
    };
    return bus_.asyncCall(call(QStringLiteral("Notify"),
                               {QStringLiteral("Vantello"), uint{0}, notification.icon,
                                notification.summary, notification.body, QStringList(), hints,
                                serverDefaultTimeout}));
}

void NotificationService::close(uint id) { bus_.asyncCall(call(QStringLiteral("CloseNotification"), {id})); }

bool NotificationService::isDenied() const {
    const QDBusConnectionInterface* daemon = bus_.isConnected() ? bus_.interface() : nullptr;
    if (daemon == nullptr) return true;
    if (daemon->isServiceRegistered(serviceName).value()) return false;
    // A server the bus starts on the first call counts as there.
    const QDBusReply<QStringList> startable = daemon->activatableServiceNames();
    return !startable.isValid() || !startable.value().contains(serviceName);
}

std::optional<QString> NotificationService::deniedMessage() const {
    if (!isDenied()) return std::nullopt;
    return deniedText();
}

QString NotificationService::deniedText() {
    return QString::fromStdString(L10n::tr("Le notifiche di Vantello sono disattivate: resterà solo l'avviso nell'app."));
}

}  // namespace vantello::app
