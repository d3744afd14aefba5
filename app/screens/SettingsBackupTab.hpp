#pragma once
// The "Backup" page of the settings: where the daily backups go, the last one, making one now and
// putting one back. Backups run on the writer's thread; the page shows that work is going on
// until the model reports the list again.

#include "app/model/BackupListModel.hpp"
#include "app/model/ProfilesController.hpp"

#include <QMetaObject>
#include <QWidget>

class QLabel;
class QListView;
class QProgressBar;
class QPushButton;

namespace vantello::app {

class SettingsBackupTab : public QWidget {
    Q_OBJECT
public:
    explicit SettingsBackupTab(ProfilesController& profiles, QWidget* parent = nullptr);

    [[nodiscard]] bool isBusy() const { return busy_; }

private:
    void followModel();
    void showState();
    void setBusy(bool busy);
    void chooseFolder();
    void askToRestore();

    ProfilesController& profiles_;
    BackupListModel backups_;
    QMetaObject::Connection backupsConnection_;
    bool busy_ = false;
    QLabel* lastBackup_ = nullptr;
    QLabel* folder_ = nullptr;
    QLabel* error_ = nullptr;
    QProgressBar* progress_ = nullptr;
    QPushButton* backUpNow_ = nullptr;
    QPushButton* chooseFolder_ = nullptr;
    QPushButton* defaultFolder_ = nullptr;
    QPushButton* showFolder_ = nullptr;
    QListView* list_ = nullptr;
    QPushButton* restore_ = nullptr;
};

}  // namespace vantello::app
