#pragma once
// The desktop's notification server (org.freedesktop.Notifications on the session bus): posts
// and closes notifications, and tells whether there is a server at all. Without one the
// application's notifications are off and only the in-app banners remain. Posting never waits
// for the server and its failures are ignored.

#include <QDBusConnection>
#include <QDBusPendingReply>
#include <QObject>
#include <QString>

#include <optional>

namespace vantello::app {

class NotificationService : public QObject {
    Q_OBJECT

public:
    struct Notification {
        QString summary;
        QString body;
        QString icon;  // a name of the desktop's icon theme
    };

    explicit NotificationService(const QDBusConnection& bus = QDBusConnection::sessionBus(),
                                 QObject* parent = nullptr);

    // Hands the notification to the server; the reply carries the id the server gave it.
    QDBusPendingReply<uint> notify(const Notification& notification);
    void close(uint id);

    // True when no notification server is running or can be started on the bus.
    [[nodiscard]] bool isDenied() const;
    // What the work screen says while notifications are denied.
    [[nodiscard]] std::optional<QString> deniedMessage() const;
    [[nodiscard]] static QString deniedText();

private:
    QDBusConnection bus_;
};

}  // namespace vantello::app
