#pragma once
// The backups of the data in use, newest first, as the settings' backup list shows them; follows
// the profile in use and every change of its backups.

#include "app/model/ProfilesController.hpp"
#include "core/base/Calendar.hpp"
#include "core/files/BackupStore.hpp"

#include <QAbstractListModel>
#include <QMetaObject>
#include <QString>

#include <optional>

namespace vantello::app {

// "18 mar 2026, 14:05": the day and the time a backup was made, in the interface language.
[[nodiscard]] QString backupMomentText(Instant moment, const Calendar& calendar);

class BackupListModel : public QAbstractListModel {
    Q_OBJECT
public:
    enum Role { folderRole = Qt::UserRole + 1 };

    explicit BackupListModel(ProfilesController& profiles, QObject* parent = nullptr);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;

    [[nodiscard]] std::optional<BackupInfo> backupAt(int row) const;
    // Whose data a restore puts back and when they are from, for the question before it.
    [[nodiscard]] QString restoreExplanation(int row) const;

private:
    void followModel();

    ProfilesController& profiles_;
    QMetaObject::Connection backupsConnection_;
    std::vector<BackupInfo> backups_;
};

}  // namespace vantello::app
