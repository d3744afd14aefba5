// Desktop notifications on a private session bus of the test's own, with a notification server
// that records what it is sent: the salary reminder and the smart-alert notifications.

#include "app/notifications/AlertNotifier.hpp"
#include "app/notifications/NotificationService.hpp"
#include "app/notifications/SalaryNotifier.hpp"
#include "core/base/Iso8601.hpp"

#include <QDBusConnection>
#include <QProcess>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

#include <chrono>
#include <utility>

using namespace vantello;
using namespace vantello::app;

namespace {

struct Posted {
    QString summary;
    QString body;
};

// Records every notification it is sent; answers like a desktop's server.
class RecordingServer : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Notifications")
public:
    QList<Posted> posted;
    QList<uint> closed;
public Q_SLOTS:
    uint Notify(const QString&, uint, const QString&, const QString& summary, const QString& body,
                const QStringList&, const QVariantMap&, int) {
        posted.append({summary, body});
        return static_cast<uint>(posted.size());
    }
    void CloseNotification(uint id) { closed.append(id); }
};

SmartAlert alert(const char* id, const char* title, const char* message = "") {
    return {id, SmartAlert::Kind::lowBalance, title, message, {}};
}

Instant inSeconds(int seconds) { return clockNow() + std::chrono::seconds(seconds); }

}  // namespace

class NotificationsTest : public QObject {
    Q_OBJECT

    QTemporaryDir folder_;
    QProcess bus_;
    RecordingServer server_;
    std::unique_ptr<Preferences> preferences_;
    std::unique_ptr<NotificationService> service_;

    // Everything posted before has reached the server once this marker has.
    QList<Posted> postedUntilNow() {
        const QString marker = QStringLiteral("marker");
        service_->notify({marker, {}, {}});
        const bool arrived = QTest::qWaitFor(
            [&] { return !server_.posted.isEmpty() && server_.posted.last().summary == marker; }, 5'000);
        if (!arrived) qFatal("The notification server does not answer.");
        QList<Posted> posted = std::exchange(server_.posted, {});
        posted.removeLast();
        return posted;
    }

private Q_SLOTS:
    // A bus daemon without service folders, so that nothing of the machine is started on it.
    void initTestCase() {
        QFile config(folder_.filePath(QStringLiteral("bus.conf")));
        QVERIFY(config.open(QIODevice::WriteOnly));
        config.write(QStringLiteral("<busconfig><type>session</type><listen>unix:dir=%1</listen><auth>EXTERNAL</auth>"
                                    "<policy context=\"default\"><allow send_destination=\"*\"/>"
                                    "<allow receive_sender=\"*\"/><allow own=\"*\"/></policy></busconfig>")
                         .arg(folder_.path())
                         .toUtf8());
        config.close();
        bus_.start(QStringLiteral("dbus-daemon"),
                   {QStringLiteral("--config-file=") + config.fileName(), QStringLiteral("--print-address"),
                    QStringLiteral("--nofork")});
        QVERIFY(bus_.waitForReadyRead(10'000));
        const QByteArray address = bus_.readLine().trimmed();
        qputenv("DBUS_SESSION_BUS_ADDRESS", address);

        QDBusConnection serverSide = QDBusConnection::connectToBus(QString::fromUtf8(address), QStringLiteral("server"));
        QVERIFY(serverSide.registerObject(QStringLiteral("/org/freedesktop/Notifications"), &server_,
                                          QDBusConnection::ExportAllSlots));
        QVERIFY(serverSide.registerService(QStringLiteral("org.freedesktop.Notifications")));
        service_ = std::make_unique<NotificationService>();
    }

    void init() {
        preferences_ = std::make_unique<Preferences>(folder_.filePath(QStringLiteral("Vantello.conf")));
        preferences_->setAlertNotifications(true);
        preferences_->setNotifiedAlerts({});
    }

    void newAlertsAreNotifiedOnceTogether() {
        AlertNotifier notifier(*service_, *preferences_);
        const std::vector<SmartAlert> two{alert("a", "Saldo basso: Conto"), alert("b", "Possibile addebito doppio")};
        notifier.postAlerts(two);
        notifier.postAlerts(two);
        auto posted = postedUntilNow();
        QCOMPARE(posted.size(), 1);
        QCOMPARE(posted[0].summary, QStringLiteral("Vantello: 2 nuovi avvisi"));
        QCOMPARE(posted[0].body, QStringLiteral("Saldo basso: Conto · Possibile addebito doppio"));

        // Among the alerts already notified, the one new alert comes with its own texts.
        notifier.postAlerts({two[0], alert("c", "Previsione di fine mese negativa", "Al ritmo attuale…"), two[1]});
        posted = postedUntilNow();
        QCOMPARE(posted.size(), 1);
        QCOMPARE(posted[0].summary, QStringLiteral("Previsione di fine mese negativa"));
        QCOMPARE(posted[0].body, QStringLiteral("Al ritmo attuale…"));
    }

    void alertNotificationsOffPostNothing() {
        preferences_->setAlertNotifications(false);
        AlertNotifier(*service_, *preferences_).postAlerts({alert("a", "Saldo basso: Conto")});
        QVERIFY(postedUntilNow().isEmpty());
        QVERIFY(preferences_->notifiedAlerts().empty());
    }

    void oneSalaryReminderIsPendingAndShownWhenDue() {
        SalaryNotifier notifier(*service_, *preferences_);
        notifier.schedule(inSeconds(3600));
        notifier.schedule(inSeconds(7200));
        QCOMPARE(notifier.pending(), inSeconds(7200));
        QCOMPARE(notifier.findChildren<QTimer*>().size(), 1);

        notifier.schedule(std::nullopt);
        QVERIFY(!notifier.pending());
        for (const QTimer* timer : notifier.findChildren<QTimer*>()) QVERIFY(!timer->isActive());

        QSignalSpy reminded(&notifier, &SalaryNotifier::reminded);
        notifier.schedule(inSeconds(1));
        QVERIFY(reminded.wait(5'000));
        const auto posted = postedUntilNow();
        QCOMPARE(posted.size(), 1);
        QCOMPARE(posted[0].summary, QStringLiteral("È il giorno dello stipendio"));
        QVERIFY(!notifier.pending());
    }

    void reminderMissedWhileClosedIsShownOnceAtStart() {
        const Calendar rome("Europe/Rome");
        const Instant missed = *rome.date({2024, 3, 27}, 9);
        const auto missedWhileClosed = [&] {
            preferences_->setValue(QStringLiteral("salaryReminderPending"), QString::fromStdString(Iso8601::format(missed)));
        };
        missedWhileClosed();
        for (int start = 0; start < 2; ++start) SalaryNotifier(*service_, *preferences_).showMissed({}, rome);
        QCOMPARE(postedUntilNow().size(), 1);

        // Not when the salary of that month has been recorded since.
        missedWhileClosed();
        Transaction salary;
        salary.kind = TransactionKind::income;
        salary.categoryID = "stipendio";
        salary.date = *rome.date({2024, 3, 28}, 12);
        SalaryNotifier notifier(*service_, *preferences_);
        notifier.showMissed(SharedList<Transaction>{salary}, rome);
        QVERIFY(postedUntilNow().isEmpty());
        QVERIFY(!notifier.pending());
    }

    void withoutServerNotificationsAreDenied() {
        QVERIFY(!service_->deniedMessage());
        service_->close(7);
        postedUntilNow();
        QCOMPARE(server_.closed, QList<uint>{7});

        QDBusConnection serverSide(QStringLiteral("server"));
        QVERIFY(serverSide.unregisterService(QStringLiteral("org.freedesktop.Notifications")));
        QCOMPARE(service_->deniedMessage(),
                 QStringLiteral("Le notifiche di Vantello sono disattivate: resterà solo l'avviso nell'app."));
        service_->notify({QStringLiteral("nessuno"), {}, {}});  // goes nowhere, harmlessly
        QVERIFY(NotificationService(QDBusConnection(QStringLiteral("not connected"))).isDenied());
    }

    void cleanupTestCase() {
        service_.reset();
        bus_.kill();
        bus_.waitForFinished();
    }
};

QTEST_GUILESS_MAIN(NotificationsTest)
#include "NotificationsTest.moc"
