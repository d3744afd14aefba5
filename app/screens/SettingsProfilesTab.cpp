#include "app/screens/SettingsProfilesTab.hpp"

#include "app/model/DisplayText.hpp"
#include "app/screens/ScreenControls.hpp"
#include "app/settings/ThemeApplication.hpp"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMessageBox>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

namespace vantello::app {

namespace {


void showError(QLabel* label, const std::optional<QString>& message) {
    label->setText(message.value_or(QString()));
    label->setVisible(message.has_value());
    QPalette colours = label->palette();
    colours.setColor(QPalette::WindowText, currentPalette().expense);
    label->setPalette(colours);
}

QLabel* errorLabel(const char* objectName, QWidget* parent) {
    auto* label = new QLabel(parent);
    label->setObjectName(QString::fromLatin1(objectName));
    label->setWordWrap(true);
    label->hide();
    return label;
}

}  // namespace

ProfileForm::ProfileForm(const std::optional<ManagedProfile>& profile, Save save, QWidget* parent)
    : QDialog(parent), save_(std::move(save)) {
    setObjectName(QStringLiteral("profileForm"));
    setWindowTitle(profile ? uiText("Rinomina gestione") : uiText("Nuova gestione"));
    setWindowModality(Qt::WindowModal);
    auto* layout = new QVBoxLayout(this);
    auto* form = new QFormLayout;

    auto* kinds = new QWidget(this);
    auto* kindsLayout = new QHBoxLayout(kinds);
    kindsLayout->setContentsMargins(0, 0, 0, 0);
    person_ = new QRadioButton(uiText("Persona"), kinds);
    person_->setObjectName(QStringLiteral("personKind"));
    person_->setAccessibleName(uiText("Persona"));
    household_ = new QRadioButton(uiText("Famiglia"), kinds);
    household_->setObjectName(QStringLiteral("householdKind"));
    household_->setAccessibleName(uiText("Famiglia"));
    kindsLayout->addWidget(person_);
    kindsLayout->addWidget(household_);
    kindsLayout->addStretch(1);
    const bool household = profile && profile->kind == ManagedProfile::Kind::household;
    (household ? household_ : person_)->setChecked(true);
    // The kind of an existing profile stays as it is: its name is all a rename changes.
    kinds->setEnabled(!profile);
    form->addRow(uiText("Tipo"), kinds);

    firstName_ = new QLineEdit(this);
    firstName_->setObjectName(QStringLiteral("firstNameField"));
    firstName_->setAccessibleName(uiText("Nome"));
    firstNameLabel_ = new QLabel(uiText("Nome"), this);
    firstNameLabel_->setBuddy(firstName_);
    form->addRow(firstNameLabel_, firstName_);
    lastName_ = new QLineEdit(this);
    lastName_->setObjectName(QStringLiteral("lastNameField"));
    lastName_->setAccessibleName(uiText("Cognome"));
    form->addRow(uiText("Cognome"), lastName_);
    if (profile) {
        firstName_->setText(QString::fromStdString(profile->firstName));
        lastName_->setText(QString::fromStdString(profile->lastName));
    }
    layout->addLayout(form);

    error_ = errorLabel("profileFormError", this);
    layout->addWidget(error_);

    auto* buttons = new QDialogButtonBox(this);
    QPushButton* confirm = buttons->addButton(profile ? uiText("Salva") : uiText("Aggiungi"), QDialogButtonBox::AcceptRole);
    confirm->setObjectName(QStringLiteral("saveProfileButton"));
    confirm->setDefault(true);
    buttons->addButton(uiText("Annulla"), QDialogButtonBox::RejectRole);
    connect(buttons, &QDialogButtonBox::accepted, this, &ProfileForm::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &ProfileForm::reject);
    layout->addWidget(buttons);

    connect(person_, &QRadioButton::toggled, this, &ProfileForm::showKind);
    showKind();
    setMinimumWidth(360);
}

ManagedProfile::Kind ProfileForm::kind() const {
    return household_->isChecked() ? ManagedProfile::Kind::household : ManagedProfile::Kind::person;
}

void ProfileForm::showKind() {
    // A household is named by its last name only.
    const bool person = kind() == ManagedProfile::Kind::person;
    firstNameLabel_->setVisible(person);
    firstName_->setVisible(person);
    (person ? firstName_ : lastName_)->setFocus();
}

void ProfileForm::accept() {
    const bool person = kind() == ManagedProfile::Kind::person;
    const auto problem = save_(kind(), person ? firstName_->text() : QString(), lastName_->text());
    showError(error_, problem);
    if (!problem) QDialog::accept();
}

SettingsProfilesTab::SettingsProfilesTab(ProfilesController& profiles, QWidget* parent)
    : QWidget(parent), profiles_(profiles), list_(profiles) {
    auto* layout = new QVBoxLayout(this);
    auto* explanation = new QLabel(
        uiText("Tieni a parte i conti di un'altra persona o di una famiglia: ogni gestione ha movimenti, allegati e "
               "backup suoi."),
        this);
    explanation->setWordWrap(true);
    layout->addWidget(explanation);

    view_ = new QListView(this);
    view_->setObjectName(QStringLiteral("profileList"));
    view_->setAccessibleName(uiText("Gestioni"));
    view_->setModel(&list_);
    view_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    view_->setIconSize(QSize(16, 16));
    layout->addWidget(view_, 1);

    error_ = errorLabel("profilesError", this);
    layout->addWidget(error_);

    auto* buttons = new QHBoxLayout;
    add_ = namedButton(uiText("Aggiungi…"), "addProfileButton", this);
    rename_ = namedButton(uiText("Rinomina…"), "renameProfileButton", this);
    remove_ = namedButton(uiText("Elimina…"), "removeProfileButton", this);
    use_ = namedButton(uiText("Passa a questa"), "useProfileButton", this);
    buttons->addWidget(add_);
    buttons->addWidget(rename_);
    buttons->addWidget(remove_);
    buttons->addStretch(1);
    buttons->addWidget(use_);
    layout->addLayout(buttons);

    connect(add_, &QPushButton::clicked, this, &SettingsProfilesTab::addProfile);
    connect(rename_, &QPushButton::clicked, this, &SettingsProfilesTab::renameProfile);
    connect(remove_, &QPushButton::clicked, this, &SettingsProfilesTab::askToRemove);
    connect(use_, &QPushButton::clicked, this, &SettingsProfilesTab::useSelected);
    connect(view_, &QListView::activated, this, &SettingsProfilesTab::useSelected);
    connect(view_->selectionModel(), &QItemSelectionModel::selectionChanged, this, &SettingsProfilesTab::showState);
    connect(&list_, &QAbstractItemModel::modelReset, this, &SettingsProfilesTab::showState);
    connect(&profiles_, &ProfilesController::errorMessageChanged, this, &SettingsProfilesTab::showState);
    showState();
}

int SettingsProfilesTab::selectedRow() const {
    const QModelIndexList selected = view_->selectionModel()->selectedIndexes();
    return selected.isEmpty() ? -1 : selected.front().row();
}

void SettingsProfilesTab::showState() {
    const int row = selectedRow();
    const bool isProfile = list_.profileAt(row).has_value();
    rename_->setEnabled(isProfile);
    remove_->setEnabled(isProfile);
    use_->setEnabled(row >= 0 && row != list_.currentRow());
    showError(error_, profiles_.errorMessage());
}

void SettingsProfilesTab::addProfile() {
    auto* form = new ProfileForm(
        std::nullopt,
        [this](ManagedProfile::Kind kind, const QString& firstName, const QString& lastName) {
            return profiles_.addProfile(kind, firstName, lastName);
        },
        this);
    form->setAttribute(Qt::WA_DeleteOnClose);
    form->open();
}

void SettingsProfilesTab::renameProfile() {
    const auto profile = list_.profileAt(selectedRow());
    if (!profile) return;
    auto* form = new ProfileForm(
        profile,
        [this, profile = *profile](ManagedProfile::Kind, const QString& firstName, const QString& lastName) {
            ManagedProfile renamed = profile;
            renamed.firstName = firstName.toStdString();
            renamed.lastName = lastName.toStdString();
            return profiles_.renameProfile(renamed);
        },
        this);
    form->setAttribute(Qt::WA_DeleteOnClose);
    form->open();
}

void SettingsProfilesTab::askToRemove() {
    const auto profile = list_.profileAt(selectedRow());
    if (!profile) return;
    const std::string name = profile->displayName();
    auto* question = new QMessageBox(QMessageBox::Warning, uiText("Eliminare la gestione?"),
                                     uiText("Eliminare la gestione {nome}?", {{"nome", name}}), QMessageBox::NoButton,
                                     this);
    question->setObjectName(QStringLiteral("removeProfileQuestion"));
    question->setInformativeText(
        uiText("Movimenti e allegati di {nome} vanno nel Cestino, da cui puoi ancora recuperarli. I backup restano.",
               {{"nome", name}}));
    QPushButton* confirm = question->addButton(uiText("Elimina"), QMessageBox::DestructiveRole);
    confirm->setObjectName(QStringLiteral("confirmRemoveProfileButton"));
    QPushButton* cancel = question->addButton(uiText("Annulla"), QMessageBox::RejectRole);
    question->setDefaultButton(cancel);
    question->setWindowModality(Qt::WindowModal);
    question->setAttribute(Qt::WA_DeleteOnClose);
    connect(question, &QMessageBox::buttonClicked, this, [this, confirm, id = profile->id](QAbstractButton* clicked) {
        if (clicked == confirm) profiles_.removeProfile(id);
    });
    question->open();
}

void SettingsProfilesTab::useSelected() {
    const int row = selectedRow();
    if (row < 0) return;
    const auto profile = list_.profileAt(row);
    profiles_.switchTo(profile ? std::optional(profile->id) : std::nullopt);
}

}  // namespace vantello::app
