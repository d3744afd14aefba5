#pragma once
// The data the user can keep: their own finances first, then the managed profiles in the order
// the profile list keeps them, with the one in use marked. Follows the list and every switch.

#include "app/model/ProfilesController.hpp"
#include "core/files/ManagedProfile.hpp"

#include <QAbstractListModel>

#include <optional>

namespace vantello::app {

class ProfileListModel : public QAbstractListModel {
    Q_OBJECT
public:
    enum Role {
        isCurrentRole = Qt::UserRole + 1,
        isOwnDataRole,
        nameRole,  // the name alone, without the mark of the one in use
    };

    explicit ProfileListModel(ProfilesController& profiles, QObject* parent = nullptr);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;

    // The profile of a row; nothing for the user's own data (row 0) or a row out of range.
    [[nodiscard]] std::optional<ManagedProfile> profileAt(int row) const;
    // The row of the data in use.
    [[nodiscard]] int currentRow() const;
    // The row of a profile; -1 when the list does not hold it.
    [[nodiscard]] int rowOf(const Uuid& profileID) const;

private:
    void reset();

    ProfilesController& profiles_;
};

}  // namespace vantello::app
