#include "app/model/BackupListModel.hpp"

#include "app/model/DisplayText.hpp"
#include "app/settings/Language.hpp"

#include <QLocale>
#include <QTime>

namespace vantello::app {

QString backupMomentText(Instant moment, const Calendar& calendar) {
    constexpr long long secondsPerDay = 24 * 60 * 60;
    const long long local = unixSeconds(moment) + calendar.utcOffsetSeconds(moment);
    const long long ofDay = ((local % secondsPerDay) + secondsPerDay) % secondsPerDay;
    const QTime time(static_cast<int>(ofDay / 3600), static_cast<int>(ofDay / 60 % 60));
    const QLocale locale(QString::fromStdString(interfaceLocaleName()));
    return dayText(moment, calendar) + QStringLiteral(", ") + locale.toString(time, QLocale::ShortFormat);
}

BackupListModel::BackupListModel(ProfilesController& profiles, QObject* parent)
    : QAbstractListModel(parent), profiles_(profiles) {
    connect(&profiles_, &ProfilesController::modelChanged, this, &BackupListModel::followModel);
    followModel();
}

void BackupListModel::followModel() {
    disconnect(backupsConnection_);
    const auto reload = [this] {
        beginResetModel();
        backups_ = profiles_.model().backups();
        endResetModel();
    };
    backupsConnection_ = connect(&profiles_.model(), &LedgerViewModel::backupsChanged, this, reload);
    reload();
}

int BackupListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(backups_.size());
}

QVariant BackupListModel::data(const QModelIndex& index, int role) const {
    const auto backup = backupAt(index.row());
    if (!index.isValid() || !backup) return {};
    switch (role) {
        case Qt::DisplayRole:
        case Qt::AccessibleTextRole: return backupMomentText(backup->date, profiles_.model().calendar());
        case Qt::ToolTipRole:
        case folderRole: return QString::fromStdString(backup->folder.string());
        default: return {};
    }
}

std::optional<BackupInfo> BackupListModel::backupAt(int row) const {
    if (row < 0 || row >= static_cast<int>(backups_.size())) return std::nullopt;
    return backups_[static_cast<std::size_t>(row)];
}

QString BackupListModel::restoreExplanation(int row) const {
    const auto backup = backupAt(row);
    if (!backup) return {};
    const LedgerViewModel& model = profiles_.model();
    const std::string owner = model.profile() ? model.profile()->displayName() : uiText("le mie finanze").toStdString();
    const std::string date = dayText(backup->date, model.calendar()).toStdString();
    return uiText("Movimenti e allegati di {owner} tornano com'erano il {date}. Prima Vantello fa un backup della "
                  "situazione attuale, così puoi tornare indietro.",
                  {{"owner", owner}, {"date", date}});
}

}  // namespace vantello::app
