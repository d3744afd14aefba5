#include "app/screens/SettingsBackupTab.hpp"

#include "app/model/DisplayText.hpp"
#include "app/screens/ScreenControls.hpp"
#include "app/settings/ThemeApplication.hpp"

#include <QDesktopServices>
#include <QFileDialog>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QListView>
#include <QMessageBox>
#include <QProgressBar>
#include <QPushButton>
#include <QUrl>
#include <QVBoxLayout>

#include <string>

namespace vantello::app {

SettingsBackupTab::SettingsBackupTab(ProfilesController& profiles, QWidget* parent)
    : QWidget(parent), profiles_(profiles), backups_(profiles) {
    auto* layout = new QVBoxLayout(this);

    auto* explanation = new QLabel(
        uiText("Vantello fa un backup al giorno di movimenti e allegati e tiene gli ultimi {n}. Scegli una cartella "
               "in una cartella sincronizzata o su un disco esterno per averli anche fuori da questo computer.",
               {{"n", std::to_string(BackupStore::defaultKeep)}}),
        this);
    explanation->setWordWrap(true);
    layout->addWidget(explanation);

    auto* facts = new QFormLayout;
    lastBackup_ = new QLabel(this);
    lastBackup_->setObjectName(QStringLiteral("lastBackup"));
    facts->addRow(uiText("Ultimo backup"), lastBackup_);
    folder_ = new QLabel(this);
    folder_->setObjectName(QStringLiteral("backupFolder"));
    folder_->setWordWrap(true);
    folder_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    facts->addRow(uiText("Cartella"), folder_);
    layout->addLayout(facts);

    auto* folderButtons = new QHBoxLayout;
    backUpNow_ = namedButton(uiText("Esegui un backup ora"), "backUpNowButton", this);
    chooseFolder_ = namedButton(uiText("Scegli cartella…"), "chooseBackupFolderButton", this);
    defaultFolder_ = namedButton(uiText("Usa la cartella predefinita"), "defaultBackupFolderButton", this);
    showFolder_ = namedButton(uiText("Mostra nella cartella"), "showBackupFolderButton", this);
    for (QPushButton* each : {backUpNow_, chooseFolder_, defaultFolder_, showFolder_}) folderButtons->addWidget(each);
    folderButtons->addStretch(1);
    layout->addLayout(folderButtons);

    progress_ = new QProgressBar(this);
    progress_->setObjectName(QStringLiteral("backupProgress"));
    progress_->setRange(0, 0);  // no measure of how far: just that work is going on
    progress_->setTextVisible(false);
    progress_->setMaximumHeight(8);
    progress_->setAccessibleName(uiText("Backup in corso"));
    progress_->hide();
    layout->addWidget(progress_);

    error_ = new QLabel(this);
    error_->setObjectName(QStringLiteral("backupError"));
    error_->setWordWrap(true);
    error_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    layout->addWidget(error_);

    auto* listHeading = new QLabel(uiText("Backup disponibili"), this);
    QFont bold = listHeading->font();
    bold.setBold(true);
    listHeading->setFont(bold);
    layout->addWidget(listHeading);
    list_ = new QListView(this);
    list_->setObjectName(QStringLiteral("backupList"));
    list_->setAccessibleName(uiText("Backup disponibili"));
    list_->setModel(&backups_);
    list_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    list_->setUniformItemSizes(true);
    listHeading->setBuddy(list_);
    layout->addWidget(list_, 1);
    restore_ = namedButton(uiText("Ripristina…"), "restoreBackupButton", this);
    layout->addWidget(restore_, 0, Qt::AlignRight);

    connect(backUpNow_, &QPushButton::clicked, this, [this] {
        // Started first: clearing an old error reports at once, the backup itself only later.
        profiles_.model().backUpNow();
        setBusy(true);
    });
    connect(chooseFolder_, &QPushButton::clicked, this, &SettingsBackupTab::chooseFolder);
    connect(defaultFolder_, &QPushButton::clicked, this, [this] { profiles_.model().setCustomBackupFolder(std::nullopt); });
    connect(showFolder_, &QPushButton::clicked, this, [this] {
        if (const auto store = profiles_.model().backupStore()) {
            QDesktopServices::openUrl(QUrl::fromLocalFile(QString::fromStdString(store->folder.string())));
        }
    });
    connect(restore_, &QPushButton::clicked, this, &SettingsBackupTab::askToRestore);
    connect(list_, &QListView::activated, this, &SettingsBackupTab::askToRestore);
    connect(list_->selectionModel(), &QItemSelectionModel::selectionChanged, this, &SettingsBackupTab::showState);
    connect(&backups_, &QAbstractItemModel::modelReset, this, &SettingsBackupTab::showState);
    connect(&profiles_, &ProfilesController::modelChanged, this, &SettingsBackupTab::followModel);
    followModel();
    profiles_.model().refreshBackups();
}

void SettingsBackupTab::followModel() {
    disconnect(backupsConnection_);
    // The writer reports back through backupsChanged, whatever the outcome.
    backupsConnection_ = connect(&profiles_.model(), &LedgerViewModel::backupsChanged, this, [this] {
        setBusy(false);
        showState();
    });
    setBusy(false);
    showState();
}

void SettingsBackupTab::setBusy(bool busy) {
    busy_ = busy;
    progress_->setVisible(busy);
    showState();
}

void SettingsBackupTab::showState() {
    const LedgerViewModel& model = profiles_.model();
    const auto& backups = model.backups();
    lastBackup_->setText(backups.empty() ? uiText("Nessuno") : backupMomentText(backups.front().date, model.calendar()));
    const auto store = model.backupStore();
    folder_->setText(store ? QString::fromStdString(store->folder.string()) : uiText("Nessuna cartella dei dati"));
    const auto& error = model.backupError();
    error_->setText(error.value_or(QString()));
    error_->setVisible(error.has_value());
    QPalette errorColours = error_->palette();
    errorColours.setColor(QPalette::WindowText, currentPalette().expense);
    error_->setPalette(errorColours);

    const bool canBackUp = store && model.hasStore();
    backUpNow_->setEnabled(canBackUp && !busy_);
    chooseFolder_->setEnabled(model.hasStore() && !busy_);
    defaultFolder_->setEnabled(model.customBackupFolder().has_value() && !busy_);
    showFolder_->setEnabled(store.has_value());
    const bool selected = list_->selectionModel()->hasSelection();
    restore_->setEnabled(canBackUp && model.canSave() && selected && !busy_);
}

void SettingsBackupTab::chooseFolder() {
    const auto store = profiles_.model().backupStore();
    const QString start = store ? QString::fromStdString(store->folder.string()) : QString();
    const QString chosen = QFileDialog::getExistingDirectory(this, uiText("Scegli la cartella dei backup"), start);
    if (chosen.isEmpty()) return;
    profiles_.model().setCustomBackupFolder(std::filesystem::path(chosen.toStdString()));
}

void SettingsBackupTab::askToRestore() {
    const int row = list_->currentIndex().row();
    const auto backup = backups_.backupAt(row);
    if (!backup || busy_ || !restore_->isEnabled()) return;
    auto* question = new QMessageBox(QMessageBox::Question, uiText("Ripristinare questo backup?"),
                                     uiText("Ripristinare questo backup?"), QMessageBox::NoButton, this);
    question->setObjectName(QStringLiteral("restoreQuestion"));
    question->setInformativeText(backups_.restoreExplanation(row));
    QPushButton* confirm = question->addButton(uiText("Ripristina"), QMessageBox::AcceptRole);
    confirm->setObjectName(QStringLiteral("confirmRestoreButton"));
    question->addButton(uiText("Annulla"), QMessageBox::RejectRole);
    question->setDefaultButton(confirm);
    question->setWindowModality(Qt::WindowModal);
    question->setAttribute(Qt::WA_DeleteOnClose);
    connect(question, &QMessageBox::buttonClicked, this, [this, confirm, backup = *backup](QAbstractButton* clicked) {
        if (clicked != confirm) return;
        profiles_.model().restoreBackup(backup);
        setBusy(true);
    });
    question->open();
}

}  // namespace vantello::app
