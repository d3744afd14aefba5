#include "app/model/ProfileListModel.hpp"

#include "app/model/DisplayText.hpp"

#include <QFont>
#include <QIcon>

#include <algorithm>

namespace vantello::app {

ProfileListModel::ProfileListModel(ProfilesController& profiles, QObject* parent)
    : QAbstractListModel(parent), profiles_(profiles) {
    connect(&profiles_, &ProfilesController::listChanged, this, &ProfileListModel::reset);
    connect(&profiles_, &ProfilesController::modelChanged, this, &ProfileListModel::reset);
}

void ProfileListModel::reset() {
    beginResetModel();
    endResetModel();
}

int ProfileListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : 1 + static_cast<int>(profiles_.list().profiles.size());
}

std::optional<ManagedProfile> ProfileListModel::profileAt(int row) const {
    const auto& profiles = profiles_.list().profiles;
    if (row < 1 || row > static_cast<int>(profiles.size())) return std::nullopt;
    return profiles[static_cast<std::size_t>(row - 1)];
}

int ProfileListModel::rowOf(const Uuid& profileID) const {
    const auto& profiles = profiles_.list().profiles;
    const auto found = std::ranges::find(profiles, profileID, &ManagedProfile::id);
    return found == profiles.end() ? -1 : 1 + static_cast<int>(found - profiles.begin());
}

int ProfileListModel::currentRow() const {
    const auto& current = profiles_.model().profile();
    return current ? std::max(0, rowOf(current->id)) : 0;
}

QVariant ProfileListModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || index.row() >= rowCount()) return {};
    const auto profile = profileAt(index.row());
    const bool isCurrent = index.row() == currentRow();
    const QString name =
        profile ? QString::fromStdString(profile->displayName()) : uiText("Le mie finanze");
    switch (role) {
        case Qt::DisplayRole:
        case Qt::AccessibleTextRole:
            // The one in use is said in words too, not only by its mark.
            return isCurrent ? uiText("{nome} (in uso)", {{"nome", name.toStdString()}}) : name;
        case Qt::ToolTipRole:
            if (!profile) return uiText("I tuoi movimenti, conti e allegati");
            return profile->kind == ManagedProfile::Kind::household ? uiText("Famiglia") : uiText("Persona");
        case Qt::DecorationRole:
            return isCurrent ? QIcon::fromTheme(QStringLiteral("object-select")) : QVariant();
        case Qt::FontRole: {
            if (!isCurrent) return {};
            QFont bold;
            bold.setBold(true);
            return bold;
        }
        case nameRole: return name;
        case isCurrentRole: return isCurrent;
        case isOwnDataRole: return !profile.has_value();
        default: return {};
    }
}

}  // namespace vantello::app
