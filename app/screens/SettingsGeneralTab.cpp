#include "app/screens/SettingsGeneralTab.hpp"

#include "app/model/DisplayText.hpp"
#include "app/settings/AppLanguage.hpp"
#include "app/settings/Language.hpp"
#include "app/settings/QuickAddSetting.hpp"
#include "app/settings/Restart.hpp"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QVBoxLayout>

#include <iterator>

namespace vantello::app {

namespace {

// A secondary line under a control: smaller, wrapped.
QLabel* explanationLabel(const QString& text, QWidget* parent) {
    auto* label = new QLabel(text, parent);
    label->setWordWrap(true);
    QFont font = label->font();
    font.setPointSizeF(font.pointSizeF() * 0.9);
    label->setFont(font);
    label->setForegroundRole(QPalette::PlaceholderText);
    return label;
}

}  // namespace

SettingsGeneralTab::SettingsGeneralTab(ProfilesController& profiles, Preferences& preferences, QWidget* parent)
    : QWidget(parent), profiles_(profiles), preferences_(preferences) {
    auto* layout = new QVBoxLayout(this);

    // ---- language
    auto* languageBox = new QGroupBox(languageHeading(), this);
    auto* languageLayout = new QVBoxLayout(languageBox);
    language_ = new QComboBox(languageBox);
    language_->setObjectName(QStringLiteral("languageChoice"));
    language_->setAccessibleName(languageHeading());
    for (const AppLanguage choice : allLanguages) language_->addItem(label(choice));
    const auto stored = std::ranges::find(allLanguages, storedAppLanguage(preferences_));
    language_->setCurrentIndex(static_cast<int>(std::distance(allLanguages.begin(), stored)));
    languageLayout->addWidget(language_, 0, Qt::AlignLeft);

    restartRow_ = new QWidget(languageBox);
    restartRow_->setObjectName(QStringLiteral("restartRow"));
    auto* restartLayout = new QHBoxLayout(restartRow_);
    restartLayout->setContentsMargins(0, 0, 0, 0);
    auto* restartMessage = new QLabel(languageRestartMessage(), restartRow_);
    restartMessage->setWordWrap(true);
    auto* restart = new QPushButton(restartButtonLabel(), restartRow_);
    restart->setObjectName(QStringLiteral("restartButton"));
    restart->setAccessibleName(restartButtonLabel());
    restartLayout->addWidget(restartMessage, 1);
    restartLayout->addWidget(restart);
    languageLayout->addWidget(restartRow_);
    restartProblem_ = new QLabel(uiText("Non riesco a riavviare Vantello: chiudilo e aprilo di nuovo."), languageBox);
    restartProblem_->setWordWrap(true);
    restartProblem_->hide();
    languageLayout->addWidget(restartProblem_);
    layout->addWidget(languageBox);
    connect(language_, &QComboBox::currentIndexChanged, this, &SettingsGeneralTab::chooseLanguage);
    connect(restart, &QPushButton::clicked, this, [this] { restartProblem_->setVisible(!restartApplication()); });
    restartRow_->setVisible(false);

    // ---- quick add
    auto* quickAddBox = new QGroupBox(uiText("Aggiunta rapida"), this);
    auto* quickAddLayout = new QVBoxLayout(quickAddBox);
    quickAdd_ = new QCheckBox(quickAddSwitchLabel(), quickAddBox);
    quickAdd_->setObjectName(QStringLiteral("quickAddSwitch"));
    quickAdd_->setAccessibleName(quickAddSwitchLabel());
    quickAdd_->setAccessibleDescription(quickAddExplanation());
    quickAdd_->setChecked(showsQuickAddIcon(preferences_));
    quickAddLayout->addWidget(quickAdd_);
    quickAddLayout->addWidget(explanationLabel(quickAddExplanation(), quickAddBox));
    layout->addWidget(quickAddBox);
    connect(quickAdd_, &QCheckBox::toggled, this, [this](bool shows) {
        setShowsQuickAddIcon(preferences_, shows);
        Q_EMIT quickAddPreferenceChanged();
    });

    // ---- salary reminder of the data in use
    auto* reminderBox = new QGroupBox(uiText("Promemoria dello stipendio"), this);
    auto* reminderLayout = new QFormLayout(reminderBox);
    reminderLayout->setFieldGrowthPolicy(QFormLayout::FieldsStayAtSizeHint);
    reminderOn_ = new QCheckBox(uiText("Ricordami di registrare lo stipendio"), reminderBox);
    reminderOn_->setObjectName(QStringLiteral("salaryReminderSwitch"));
    reminderOn_->setAccessibleName(reminderOn_->text());
    reminderLayout->addRow(reminderOn_);
    reminderDay_ = new QSpinBox(reminderBox);
    reminderDay_->setObjectName(QStringLiteral("salaryReminderDay"));
    reminderDay_->setRange(1, 31);
    reminderDay_->setAccessibleName(uiText("Giorno del mese"));
    reminderLayout->addRow(uiText("Giorno del mese"), reminderDay_);
    reminderHour_ = new QSpinBox(reminderBox);
    reminderHour_->setObjectName(QStringLiteral("salaryReminderHour"));
    reminderHour_->setRange(0, 23);
    reminderHour_->setSuffix(QStringLiteral(":00"));
    reminderHour_->setAccessibleName(uiText("Ora"));
    reminderLayout->addRow(uiText("Ora"), reminderHour_);
    reminderLayout->addRow(explanationLabel(
        uiText("Tace nei mesi in cui lo stipendio è già registrato e nei periodi senza lavoro."), reminderBox));
    layout->addWidget(reminderBox);
    layout->addStretch(1);

    connect(reminderOn_, &QCheckBox::toggled, this, &SettingsGeneralTab::storeReminder);
    connect(reminderDay_, &QSpinBox::valueChanged, this, &SettingsGeneralTab::storeReminder);
    connect(reminderHour_, &QSpinBox::valueChanged, this, &SettingsGeneralTab::storeReminder);
    connect(&profiles_, &ProfilesController::modelChanged, this, &SettingsGeneralTab::followModel);
    followModel();
}

void SettingsGeneralTab::chooseLanguage(int index) {
    if (index < 0 || index >= static_cast<int>(allLanguages.size())) return;
    storeAppLanguage(preferences_, allLanguages[static_cast<std::size_t>(index)]);
    // Only a choice that changes the language in effect needs a restart.
    const InterfaceLanguage chosen = languageFor(preferences_.value(QStringLiteral("language")), QLocale::system().name());
    restartRow_->setVisible(chosen != currentInterfaceLanguage());
    restartProblem_->hide();
}

void SettingsGeneralTab::followModel() {
    disconnect(reminderConnection_);
    reminderConnection_ = connect(&profiles_.model(), &LedgerViewModel::salaryReminderChanged, this,
                                  &SettingsGeneralTab::showReminder);
    showReminder();
}

void SettingsGeneralTab::showReminder() {
    const SalaryReminder& reminder = profiles_.model().salaryReminder();
    const QSignalBlocker blockOn(reminderOn_);
    const QSignalBlocker blockDay(reminderDay_);
    const QSignalBlocker blockHour(reminderHour_);
    reminderOn_->setChecked(reminder.isEnabled);
    reminderDay_->setValue(reminder.day);
    reminderHour_->setValue(reminder.hour);
    reminderDay_->setEnabled(reminder.isEnabled);
    reminderHour_->setEnabled(reminder.isEnabled);
}

void SettingsGeneralTab::storeReminder() {
    profiles_.model().setSalaryReminder(
        SalaryReminder{reminderOn_->isChecked(), reminderDay_->value(), reminderHour_->value()});
    showReminder();
}

}  // namespace vantello::app
