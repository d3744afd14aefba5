// The alerts screen on the demo ledger with a frozen day: today's alerts, a kind switched off,
// a dismissal, the low-balance threshold and the notifications switch.

// Qt's headers come first: moc cannot read the standard library's <concepts> before them.
#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSettings>
#include <QStackedWidget>
#include <QTemporaryDir>
#include <QtTest>

#include "app/model/DisplayText.hpp"
#include "app/model/LedgerViewModel.hpp"
#include "app/screens/AlertsScreen.hpp"
#include "app/settings/Language.hpp"
#include "core/ledger/AccountIDs.hpp"
#include "tests/app/ScreenWorkplace.hpp"

#include <algorithm>

using namespace vantello;
using namespace vantello::app;
using namespace vantello::app::testing;

namespace {

template <typename Widget>
Widget* part(const QWidget& parent, const char* name) {
    auto* found = parent.findChild<Widget*>(QString::fromLatin1(name));
    if (!found) qFatal("no widget named %s", name);
    return found;
}

QStringList shownTitles(const QWidget& screen) {
    QStringList titles;
    for (const QLabel* title : screen.findChildren<QLabel*>(QStringLiteral("alertTitle"))) titles << title->text();
    return titles;
}

QStringList modelTitles(LedgerViewModel& model) {
    QStringList titles;
    for (const SmartAlert& alert : model.alerts()) titles << QString::fromStdString(alert.title);
    return titles;
}

}  // namespace

class AlertsScreenTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() {
        useItalianInterface();
    }

    void kindSwitchedOffLeavesTheList() {
        Workplace place;
        auto model = place.model();
        model->enterDemo();
        AlertsScreen screen(*model);
        QVERIFY(!model->alerts().empty());
        QCOMPARE(shownTitles(screen), modelTitles(*model));
        QCOMPARE(part<QStackedWidget>(screen, "alertsPages")->currentIndex(), 1);

        const SmartAlert::Kind kind = model->alerts().front().kind;
        const auto ofKind = [&] {
            return std::count_if(model->alerts().begin(), model->alerts().end(),
                                 [&](const SmartAlert& alert) { return alert.kind == kind; });
        };
        const auto before = model->alerts().size();
        const auto removed = ofKind();
        QCheckBox* toggle = nullptr;
        for (QCheckBox* box : screen.findChildren<QCheckBox*>()) {
            if (box->text() == alertKindText(kind)) toggle = box;
        }
        QVERIFY(toggle && toggle->isChecked());
        toggle->click();

        QVERIFY(!model->alertSettings().isEnabled(kind));
        QCOMPARE(ofKind(), 0);
        QCOMPARE(model->alerts().size(), before - std::size_t(removed));
        QCOMPARE(shownTitles(screen), modelTitles(*model));

        // Settings changed elsewhere show on the switch.
        model->setAlertSettings(AlertSettings{});
        QVERIFY(toggle->isChecked());
        QCOMPARE(shownTitles(screen), modelTitles(*model));
    }

    void dismissedAlertStaysAway() {
        Workplace place;
        auto model = place.model();
        model->enterDemo();
        AlertsScreen screen(*model);
        const std::string id = model->alerts().front().id;
        const auto before = model->alerts().size();
        part<QPushButton>(screen, "dismissAlertButton")->click();
        QCOMPARE(model->alerts().size(), before - 1);
        QVERIFY(model->ledger().data().dismissedAlerts.contains(id));
        QCOMPARE(shownTitles(screen), modelTitles(*model));
    }

    void thresholdAndNotifications() {
        Workplace place;
        auto model = place.model();
        AlertsScreen screen(*model);
        QCOMPARE(part<QStackedWidget>(screen, "alertsPages")->currentIndex(), 0);

        auto* threshold = part<QLineEdit>(screen, "thresholdEdit");
        auto* error = part<QLabel>(screen, "thresholdError");
        threshold->setText(QStringLiteral("poco"));
        Q_EMIT threshold->editingFinished();
        QVERIFY(error->isVisibleTo(&screen));
        QVERIFY(!model->ledger().account(mainAccountID)->lowBalanceThreshold);

        // An empty ledger is at zero, under a threshold of 100: the alert appears.
        threshold->setText(QStringLiteral("100,00"));
        Q_EMIT threshold->editingFinished();
        QVERIFY(!error->isVisibleTo(&screen));
        QCOMPARE(model->ledger().account(mainAccountID)->lowBalanceThreshold, Decimal::fromCanonical("100"));
        QCOMPARE(shownTitles(screen), modelTitles(*model));
        QVERIFY(!model->alerts().empty());

        threshold->clear();
        Q_EMIT threshold->editingFinished();
        QVERIFY(!model->ledger().account(mainAccountID)->lowBalanceThreshold);

        auto* notify = part<QCheckBox>(screen, "alertNotificationsSwitch");
        QCOMPARE(notify->isChecked(), model->alertNotifications());
        notify->click();
        QCOMPARE(model->alertNotifications(), notify->isChecked());
    }
};

QTEST_MAIN(AlertsScreenTest)
#include "AlertsScreenTest.moc"
