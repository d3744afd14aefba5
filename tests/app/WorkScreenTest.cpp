// The work screen: a period without work added through its editor (with the core's refusal of
// an overlap shown inside), "Ho ripreso a lavorare" closing it today, the salary lines, and the
// salary reminder's settings going to the model.

// Qt's headers come first: moc cannot read the standard library's <concepts> before them.
#include <QApplication>
#include <QCheckBox>
#include <QDateEdit>
#include <QJsonObject>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMessageBox>
#include <QPushButton>
#include <QSettings>
#include <QSpinBox>
#include <QTemporaryDir>
#include <QtTest>

#include "app/model/DisplayText.hpp"
#include "app/model/LedgerViewModel.hpp"
#include "app/model/WorkPeriodsModel.hpp"
#include "app/screens/WorkPeriodEditor.hpp"
#include "app/screens/WorkScreen.hpp"
#include "app/settings/Language.hpp"
#include "core/planning/WorkStatus.hpp"
#include "tests/app/ScreenWorkplace.hpp"

using namespace vantello;
using namespace vantello::app;
using namespace vantello::app::testing;

namespace {

template <typename Widget>
Widget* part(const QObject& screen, const char* name) {
    auto* found = screen.findChild<Widget*>(QString::fromLatin1(name));
    if (!found) qFatal("no widget named %s", name);
    return found;
}

}  // namespace

namespace {

WorkPeriodEditor* addPeriod(WorkScreen& screen, QDate start, std::optional<QDate> end) {
    screen.addPeriod();
    const auto editors = screen.findChildren<WorkPeriodEditor*>();
    WorkPeriodEditor* editor = editors.isEmpty() ? nullptr : editors.last();
    if (!editor) return nullptr;
    part<QDateEdit>(*editor, "startEdit")->setDate(start);
    part<QCheckBox>(*editor, "hasEndCheck")->setChecked(end.has_value());
    if (end) part<QDateEdit>(*editor, "endEdit")->setDate(*end);
    editor->save();
    return editor;
}

}  // namespace

class WorkScreenTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() {
        useItalianInterface();
    }

    void anOngoingPeriodIsShownAndEndsTodayWhenWorkResumes() {
        Workplace place;
        auto model = place.model();
        WorkScreen screen(*model);
        auto* resume = part<QPushButton>(screen, "resumeWorkButton");
        QVERIFY(resume->isHidden());
        QVERIFY(part<QWidget>(screen, "periodsEmpty")->isVisibleTo(&screen));

        auto* editor = addPeriod(screen, QDate(2026, 3, 2), std::nullopt);
        QVERIFY(editor && editor->errorText().isEmpty());
        QVERIFY(!editor->isVisible());
        QCOMPARE(part<QLabel>(screen, "ongoingLabel")->text(),
                 uiText("In disoccupazione dal {data}", {{"data", dayText(noon(2026, 3, 2), rome).toStdString()}}));
        QVERIFY(!resume->isHidden());
        QCOMPARE(screen.listModel().rowCount(), 1);
        QVERIFY(screen.listModel().index(0).data(WorkPeriodsModel::OngoingRole).toBool());

        // A second period reaching into the first is the core's refusal, shown in the sheet.
        auto* overlapping = addPeriod(screen, QDate(2026, 2, 20), QDate(2026, 3, 5));
        QVERIFY(overlapping && !overlapping->errorText().isEmpty());
        QVERIFY(overlapping->isVisible());
        QCOMPARE(model->ledger().unemploymentPeriods().size(), std::size_t(1));
        overlapping->reject();

        resume->click();
        const auto& periods = model->ledger().unemploymentPeriods();
        QCOMPARE(periods.size(), std::size_t(1));
        QVERIFY(periods[0].end);
        QCOMPARE(rome.civilDate(*periods[0].end), (CivilDate{2026, 3, 18}));
        QVERIFY(resume->isHidden());
        QVERIFY(!screen.listModel().index(0).data(WorkPeriodsModel::OngoingRole).toBool());
    }

    void periodsAreEditedAndDeletedAfterAQuestion() {
        Workplace place;
        auto model = place.model();
        WorkScreen screen(*model);
        addPeriod(screen, QDate(2025, 6, 1), QDate(2025, 6, 30));
        addPeriod(screen, QDate(2026, 1, 1), QDate(2026, 1, 31));
        QCOMPARE(screen.listModel().rowCount(), 2);
        // Newest first.
        QVERIFY(screen.listModel().index(0).data().toString().contains(dayText(noon(2026, 1, 1), rome)));

        auto* list = part<QListView>(screen, "periodsList");
        list->setCurrentIndex(screen.listModel().index(1));
        screen.editSelected();
        auto* editor = screen.findChild<WorkPeriodEditor*>();
        QVERIFY(editor);
        QCOMPARE(part<QDateEdit>(*editor, "startEdit")->date(), QDate(2025, 6, 1));
        part<QLineEdit>(*editor, "noteEdit")->setText(QStringLiteral("  Cambio di lavoro "));
        editor->save();
        QCOMPARE(model->ledger().unemploymentPeriods().size(), std::size_t(2));
        QVERIFY(screen.listModel().index(1).data().toString().endsWith(QStringLiteral("Cambio di lavoro")));

        list->setCurrentIndex(screen.listModel().index(1));
        screen.deleteSelected();
        auto* question = screen.findChild<QMessageBox*>(QStringLiteral("deletePeriodConfirmation"));
        QVERIFY(question);
        part<QPushButton>(*question, "confirmDeleteButton")->click();
        QCOMPARE(model->ledger().unemploymentPeriods().size(), std::size_t(1));
        QCOMPARE(screen.listModel().rowCount(), 1);
    }

    void theSalaryLinesAndTheReminderFollowTheModel() {
        Workplace place;
        auto model = place.model();
        model->enterDemo();
        WorkScreen screen(*model);
        const auto salary = lastSalary(model->ledger().transactions());
        QVERIFY(salary);
        QVERIFY(part<QLabel>(screen, "lastSalaryLabel")->text().contains(euroText(salary->amount)));
        QCOMPARE(part<QLabel>(screen, "thisMonthSalaryLabel")->text(),
                 salaryRecordedInMonth(model->ledger().transactions(), model->now(), rome)
                     ? uiText("Lo stipendio di questo mese è registrato.")
                     : uiText("Lo stipendio di questo mese non è ancora registrato."));

        auto* check = part<QCheckBox>(screen, "reminderCheck");
        auto* day = part<QSpinBox>(screen, "reminderDaySpin");
        auto* hour = part<QSpinBox>(screen, "reminderHourSpin");
        check->setChecked(false);
        QVERIFY(!day->isEnabled());
        check->setChecked(true);
        day->setValue(5);
        hour->setValue(18);
        QCOMPARE(model->salaryReminder(), (SalaryReminder{true, 5, 18}));
        auto* next = part<QLabel>(screen, "nextReminderLabel");
        QVERIFY(!next->isHidden());
        QVERIFY(next->text().contains(QStringLiteral("18:00")));

        // A change made elsewhere shows here.
        model->setSalaryReminder(SalaryReminder{false, 12, 9});
        QVERIFY(!check->isChecked());
        QCOMPARE(day->value(), 12);
        QVERIFY(next->isHidden());
    }

    void theNotificationStateLineShowsOnlyWhileNotificationsAreOff() {
        Workplace place;
        auto model = place.model();
        WorkScreen screen(*model);
        auto* line = part<QLabel>(screen, "notificationStateLabel");
        QVERIFY(line->isHidden());
        model->setNotificationsDenied(true);
        QVERIFY(!line->isHidden());
        QCOMPARE(line->text(), uiText("Le notifiche di Vantello sono disattivate: resterà solo l'avviso nell'app."));
        model->setNotificationsDenied(false);
        QVERIFY(line->isHidden());
    }
};

QTEST_MAIN(WorkScreenTest)
#include "WorkScreenTest.moc"
