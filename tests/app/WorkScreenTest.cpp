// The work screen: a period without work added through its editor (with the core's refusal of
// an overlap shown inside), "Ho ripreso a lavorare" closing it today, the salary lines, and the
// salary reminder's settings going to the model.

// Qt's headers come first: moc cannot read the standard library's <concepts> before them.
#include <QApplication>
#include <QCheckBox>
#include <QDateEdit>
#include <QFile>
#include <QJsonObject>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMessageBox>
#include <QPushButton>
#include <QSettings>
#include <QSpinBox>
#include <QTemporaryDir>
#include <QTranslator>
#include <QtTest>

#include "app/model/DisplayText.hpp"
#include "app/model/LedgerViewModel.hpp"
#include "app/model/WorkPeriodsModel.hpp"
#include "app/screens/WorkPeriodEditor.hpp"
#include "app/screens/WorkScreen.hpp"
#include "app/settings/AppTheme.hpp"
#include "app/settings/Language.hpp"
#include "app/settings/ThemeApplication.hpp"
#include "core/planning/WorkStatus.hpp"

using namespace vantello;
using namespace vantello::app;

namespace {

const Calendar rome("Europe/Rome");

Instant noon(int year, int month, int day) { return *rome.date({year, month, day}, 12); }

struct Workplace {
    QTemporaryDir home;
    std::filesystem::path folder = std::filesystem::path(home.path().toStdString()) / "Vantello";
    Preferences preferences{home.path() + QStringLiteral("/Vantello.conf")};

    std::unique_ptr<LedgerViewModel> model() {
        return std::make_unique<LedgerViewModel>(LedgerViewModel::Setup{
            folder, std::nullopt, rome, [] { return noon(2026, 3, 18); }, &preferences, folder / "Backup"});
    }
};

template <typename Widget>
Widget* part(const QObject& screen, const char* name) {
    auto* found = screen.findChild<Widget*>(QString::fromLatin1(name));
    if (!found) qFatal("no widget named %s", name);
    return found;
}

// The Italian texts of the screen in another language, read from "italian<TAB>translation" lines,
// for looking at a rendering before the catalogue has them.
class TableTranslator : public QTranslator {
public:
    explicit TableTranslator(const QString& file) {
        QFile table(file);
        if (!table.open(QIODevice::ReadOnly | QIODevice::Text)) return;
        while (!table.atEnd()) {
            const QStringList fields = QString::fromUtf8(table.readLine()).chopped(1).split(QLatin1Char('\t'));
            if (fields.size() == 2) texts_.insert(fields[0], fields[1]);
        }
    }
    [[nodiscard]] QString translate(const char*, const char* source, const char*, int) const override {
        return texts_.value(QString::fromUtf8(source));
    }
    [[nodiscard]] bool isEmpty() const override { return texts_.isEmpty(); }

private:
    QHash<QString, QString> texts_;
};

// Renders `draw` in both languages and a light and a dark theme into VANTELLO_SCREENSHOTS;
// VANTELLO_SCREENSHOT_TEXTS may name a table of English texts the catalogue does not have yet.
template <typename Draw>
void renderEverywhere(Draw draw) {
    const QString folder = qEnvironmentVariable("VANTELLO_SCREENSHOTS");
    if (folder.isEmpty()) QSKIP("no folder for screenshots");
    for (const bool english : {false, true}) {
        QSettings().setValue(QStringLiteral("language"), english ? QStringLiteral("en") : QStringLiteral("it"));
        installInterfaceLanguage(*QCoreApplication::instance());
        TableTranslator extra(qEnvironmentVariable("VANTELLO_SCREENSHOT_TEXTS"));
        if (english) QCoreApplication::installTranslator(&extra);
        for (const AppTheme theme : {AppTheme::light, AppTheme::dark}) {
            applyTheme(theme);
            draw(folder + QLatin1Char('/'),
                 QStringLiteral("%1-%2").arg(english ? QStringLiteral("en") : QStringLiteral("it"),
                                             theme == AppTheme::dark ? QStringLiteral("dark") : QStringLiteral("light")));
        }
        QCoreApplication::removeTranslator(&extra);
    }
    QSettings().remove(QStringLiteral("language"));
    installInterfaceLanguage(*QCoreApplication::instance());
    applyTheme(AppTheme::system);
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
        QApplication::setOrganizationName(QStringLiteral("Vantello"));
        QApplication::setApplicationName(QStringLiteral("Vantello"));
        QSettings().remove(QStringLiteral("language"));
        installInterfaceLanguage(*QCoreApplication::instance());
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
        const QString refused = uiText("Le notifiche di Vantello sono disattivate: resterà solo l'avviso nell'app.");
        screen.setNotificationMessage(refused);
        QVERIFY(!line->isHidden());
        QCOMPARE(line->text(), refused);
        screen.setNotificationMessage(std::nullopt);
        QVERIFY(line->isHidden());
    }

    void rendersForLookingAt() {
        Workplace place;
        renderEverywhere([&](const QString& folder, const QString& suffix) {
            auto model = place.model();
            model->enterDemo();
            WorkScreen screen(*model);
            addPeriod(screen, QDate(2025, 9, 1), QDate(2025, 10, 15));
            addPeriod(screen, QDate(2026, 3, 10), std::nullopt);
            model->setSalaryReminder(SalaryReminder{true, 27, 9});
            screen.setNotificationMessage(
                uiText("Le notifiche di Vantello sono disattivate: resterà solo l'avviso nell'app."));
            screen.resize(900, 760);
            screen.show();
            QVERIFY(QTest::qWaitForWindowExposed(&screen));
            QVERIFY(screen.grab().save(folder + QStringLiteral("work-") + suffix + QStringLiteral(".png")));
            auto* editor = addPeriod(screen, QDate(2026, 3, 1), std::nullopt);
            editor->show();
            QVERIFY(editor->grab().save(folder + QStringLiteral("work-editor-") + suffix + QStringLiteral(".png")));
            editor->reject();
        });
    }
};

QTEST_MAIN(WorkScreenTest)
#include "WorkScreenTest.moc"
