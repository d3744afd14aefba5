#include "app/screens/WorkScreen.hpp"

#include "app/model/DisplayText.hpp"
#include "app/model/WorkPeriodsModel.hpp"
#include "app/notifications/NotificationService.hpp"
#include "app/screens/MovementsCard.hpp"
#include "app/screens/ScreenControls.hpp"
#include "app/screens/WorkPeriodEditor.hpp"

#include <QCheckBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QItemSelectionModel>
#include <QLabel>
#include <QListView>
#include <QMessageBox>
#include <QPushButton>
#include <QScrollArea>
#include <QSpinBox>
#include <QStackedWidget>
#include <QVBoxLayout>

namespace vantello::app {

namespace {

QLabel* wrapped(QLabel* label) {
    label->setWordWrap(true);
    return label;
}

}  // namespace

WorkScreen::WorkScreen(LedgerViewModel& model, QWidget* parent)
    : QWidget(parent), model_(model), periods_(new WorkPeriodsModel(model, this)) {
    auto* outer = new QVBoxLayout(this);
    outer->setContentsMargins(0, 0, 0, 0);
    auto* scroll = new QScrollArea;
    scroll->setWidgetResizable(true);
    scroll->setFrameShape(QFrame::NoFrame);
    auto* content = new QWidget;
    auto* layout = new QVBoxLayout(content);
    scroll->setWidget(content);
    outer->addWidget(scroll);

    layout->addWidget(titleLabel(uiText("Lavoro"), 1.5));

    // Where things stand.
    auto* statusCard = new MovementsCard;
    statusCard->setObjectName(QStringLiteral("workStatusCard"));
    auto* statusLayout = new QVBoxLayout(statusCard);
    auto* ongoingRow = new QHBoxLayout;
    ongoingLabel_ = named(wrapped(new QLabel), "ongoingLabel", uiText("Periodo senza lavoro in corso"));
    QFont strong = ongoingLabel_->font();
    strong.setBold(true);
    ongoingLabel_->setFont(strong);
    resumeButton_ = named(new QPushButton(uiText("Ho ripreso a lavorare")), "resumeWorkButton",
                          uiText("Ho ripreso a lavorare"));
    ongoingRow->addWidget(ongoingLabel_, 1);
    ongoingRow->addWidget(resumeButton_);
    statusLayout->addLayout(ongoingRow);
    lastSalaryLabel_ = named(wrapped(new QLabel), "lastSalaryLabel", uiText("Ultimo stipendio"));
    thisMonthLabel_ = named(wrapped(new QLabel), "thisMonthSalaryLabel", uiText("Stipendio di questo mese"));
    statusLayout->addWidget(lastSalaryLabel_);
    statusLayout->addWidget(thisMonthLabel_);
    layout->addWidget(statusCard);

    // The periods without work.
    auto* periodsHeader = new QHBoxLayout;
    periodsHeader->addWidget(titleLabel(uiText("Periodi senza lavoro"), 1.15), 1);
    auto* addButton = named(new QPushButton(uiText("Nuovo periodo…")), "addPeriodButton",
                            uiText("Nuovo periodo senza lavoro"));
    periodsHeader->addWidget(addButton);
    layout->addLayout(periodsHeader);
    periodPages_ = named(new QStackedWidget, "periodPages", uiText("Periodi senza lavoro"));
    auto* empty = new QWidget;
    empty->setObjectName(QStringLiteral("periodsEmpty"));
    auto* emptyLayout = new QVBoxLayout(empty);
    emptyLayout->addWidget(wrapped(new QLabel(uiText("Nessun periodo senza lavoro. Se resti senza lavoro, "
                                                     "segnalalo qui: gli stipendi ricorrenti si fermano."))));
    auto* emptyButton = named(new QPushButton(uiText("Aggiungi un periodo senza lavoro")), "emptyAddButton",
                              uiText("Aggiungi un periodo senza lavoro"));
    emptyLayout->addWidget(emptyButton, 0, Qt::AlignLeft);
    emptyLayout->addStretch();
    periodPages_->addWidget(empty);
    list_ = named(new QListView, "periodsList", uiText("Periodi senza lavoro"));
    list_->setModel(periods_);
    list_->setSelectionMode(QAbstractItemView::SingleSelection);
    list_->setAlternatingRowColors(true);
    list_->setMinimumHeight(110);
    periodPages_->addWidget(list_);
    layout->addWidget(periodPages_);
    auto* periodActions = new QHBoxLayout;
    periodActions->addStretch();
    editButton_ = named(new QPushButton(uiText("Modifica…")), "editPeriodButton", uiText("Modifica"));
    deleteButton_ = named(new QPushButton(uiText("Elimina…")), "deletePeriodButton", uiText("Elimina"));
    periodActions->addWidget(editButton_);
    periodActions->addWidget(deleteButton_);
    layout->addLayout(periodActions);

    // The salary reminder.
    auto* reminderCard = new MovementsCard;
    reminderCard->setObjectName(QStringLiteral("salaryReminderCard"));
    auto* reminderLayout = new QVBoxLayout(reminderCard);
    reminderLayout->addWidget(titleLabel(uiText("Promemoria dello stipendio"), 1.0));
    reminderCheck_ = named(new QCheckBox(uiText("Ricordami di registrare lo stipendio")), "reminderCheck",
                           uiText("Ricordami di registrare lo stipendio"));
    reminderLayout->addWidget(reminderCheck_);
    auto* form = new QFormLayout;
    form->setFieldGrowthPolicy(QFormLayout::FieldsStayAtSizeHint);
    daySpin_ = named(new QSpinBox, "reminderDaySpin", uiText("Giorno del mese"));
    daySpin_->setRange(1, 31);
    hourSpin_ = named(new QSpinBox, "reminderHourSpin", uiText("Ora"));
    hourSpin_->setRange(0, 23);
    hourSpin_->setSuffix(QStringLiteral(":00"));
    form->addRow(uiText("Giorno del mese"), daySpin_);
    form->addRow(uiText("Ora"), hourSpin_);
    reminderLayout->addLayout(form);
    reminderLayout->addWidget(wrapped(new QLabel(uiText("Tace nei mesi in cui lo stipendio è già registrato e nei "
                                                        "periodi senza lavoro."))));
    nextReminderLabel_ = named(wrapped(new QLabel), "nextReminderLabel", uiText("Prossimo promemoria"));
    reminderLayout->addWidget(nextReminderLabel_);
    notificationLabel_ = named(wrapped(new QLabel), "notificationStateLabel", uiText("Stato delle notifiche"));
    reminderLayout->addWidget(notificationLabel_);
    layout->addWidget(reminderCard);
    layout->addStretch();

    connect(resumeButton_, &QPushButton::clicked, this, &WorkScreen::resumeWork);
    connect(addButton, &QPushButton::clicked, this, &WorkScreen::addPeriod);
    connect(emptyButton, &QPushButton::clicked, this, &WorkScreen::addPeriod);
    connect(editButton_, &QPushButton::clicked, this, &WorkScreen::editSelected);
    connect(deleteButton_, &QPushButton::clicked, this, &WorkScreen::deleteSelected);
    connect(list_, &QListView::activated, this, &WorkScreen::editSelected);
    connect(list_->selectionModel(), &QItemSelectionModel::selectionChanged, this, &WorkScreen::showSelection);
    connect(periods_, &QAbstractItemModel::modelReset, this, &WorkScreen::showSelection);
    connect(&model_, &LedgerViewModel::ledgerChanged, this, &WorkScreen::showStatus);
    connect(&model_, &LedgerViewModel::salaryReminderChanged, this, &WorkScreen::showReminder);
    connect(reminderCheck_, &QCheckBox::toggled, this, &WorkScreen::storeReminder);
    connect(daySpin_, &QSpinBox::valueChanged, this, &WorkScreen::storeReminder);
    connect(hourSpin_, &QSpinBox::valueChanged, this, &WorkScreen::storeReminder);
    chainTabOrder({resumeButton_, addButton, emptyButton, list_, editButton_, deleteButton_, reminderCheck_, daySpin_,
                   hourSpin_});

    connect(&model_, &LedgerViewModel::notificationsDeniedChanged, this, &WorkScreen::showNotificationState);
    showNotificationState();
    showStatus();
    showSelection();
}

void WorkScreen::showNotificationState() {
    notificationLabel_->setText(model_.notificationsDenied() ? NotificationService::deniedText() : QString());
    notificationLabel_->setVisible(model_.notificationsDenied());
}

std::optional<Uuid> WorkScreen::selectedPeriodID() const {
    const QModelIndex current = list_->selectionModel()->currentIndex();
    if (!current.isValid() || !list_->selectionModel()->isSelected(current)) return std::nullopt;
    return periods_->periodID(current.row());
}

void WorkScreen::showStatus() {
    const WorkStatusTexts texts = workStatusTexts(model_);
    ongoingLabel_->setText(texts.ongoing.value_or(uiText("Al lavoro: nessun periodo senza lavoro in corso.")));
    resumeButton_->setVisible(texts.ongoing.has_value());
    lastSalaryLabel_->setText(texts.lastSalary);
    thisMonthLabel_->setText(texts.thisMonth);
    showReminder();
}

void WorkScreen::showReminder() {
    const SalaryReminder& reminder = model_.salaryReminder();
    const QSignalBlocker checkBlocker(reminderCheck_);
    const QSignalBlocker dayBlocker(daySpin_);
    const QSignalBlocker hourBlocker(hourSpin_);
    reminderCheck_->setChecked(reminder.isEnabled);
    daySpin_->setValue(reminder.day);
    hourSpin_->setValue(reminder.hour);
    daySpin_->setEnabled(reminder.isEnabled);
    hourSpin_->setEnabled(reminder.isEnabled);
    const WorkStatusTexts texts = workStatusTexts(model_);
    QString next = texts.nextReminder.value_or(QString());
    if (reminder.isEnabled && !texts.nextReminder) {
        next = uiText("Nessun promemoria in arrivo: lo stipendio è registrato o sei senza lavoro.");
    }
    nextReminderLabel_->setText(next);
    nextReminderLabel_->setVisible(!next.isEmpty());
}

void WorkScreen::storeReminder() {
    SalaryReminder reminder;
    reminder.isEnabled = reminderCheck_->isChecked();
    reminder.day = daySpin_->value();
    reminder.hour = hourSpin_->value();
    model_.setSalaryReminder(reminder);
    showReminder();
}

void WorkScreen::showSelection() {
    const bool any = periods_->rowCount() > 0;
    periodPages_->setCurrentIndex(any ? 1 : 0);
    const bool selected = selectedPeriodID().has_value();
    editButton_->setVisible(any);
    deleteButton_->setVisible(any);
    editButton_->setEnabled(selected);
    deleteButton_->setEnabled(selected);
}

void WorkScreen::resumeWork() {
    const auto draft = resumeWorkDraft(model_);
    if (!draft) return;
    if (const auto error = model_.saveWorkPeriod(*draft)) model_.setErrorMessage(*error);
}

void WorkScreen::addPeriod() {
    auto* editor = new WorkPeriodEditor(model_, newWorkPeriodDraft(model_), this);
    editor->setAttribute(Qt::WA_DeleteOnClose);
    editor->open();
}

void WorkScreen::editSelected() {
    const auto id = selectedPeriodID();
    if (!id) return;
    const auto draft = workPeriodDraft(model_, *id);
    if (!draft) return;
    auto* editor = new WorkPeriodEditor(model_, *draft, this);
    editor->setAttribute(Qt::WA_DeleteOnClose);
    editor->open();
}

void WorkScreen::deleteSelected() {
    const auto id = selectedPeriodID();
    if (!id) return;
    auto* box = new QMessageBox(QMessageBox::Question, uiText("Eliminare il periodo senza lavoro?"),
                                uiText("Eliminare il periodo? Gli stipendi ricorrenti di quei giorni potranno "
                                       "essere registrati."),
                                QMessageBox::NoButton, this);
    box->setObjectName(QStringLiteral("deletePeriodConfirmation"));
    box->setWindowModality(Qt::WindowModal);
    box->setAttribute(Qt::WA_DeleteOnClose);
    QPushButton* confirm = box->addButton(uiText("Elimina"), QMessageBox::DestructiveRole);
    confirm->setObjectName(QStringLiteral("confirmDeleteButton"));
    box->setDefaultButton(box->addButton(uiText("Annulla"), QMessageBox::RejectRole));
    const Uuid periodID = *id;
    connect(confirm, &QPushButton::clicked, this, [this, periodID] { model_.deleteWorkPeriod(periodID); });
    box->open();
}

}  // namespace vantello::app
