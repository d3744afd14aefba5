#pragma once
// The pickers of the movement editor as one kind of list: an id, the text shown and an icon for
// each choice (categories of a kind, accounts, currencies).

#include "core/ledger/Ledger.hpp"
#include "core/ledger/TransactionKind.hpp"

#include <QAbstractListModel>
#include <QIcon>
#include <QString>

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vantello::app {

struct EditorChoice {
    std::string id;
    QString text;
    QIcon icon;
};

class EditorChoiceModel : public QAbstractListModel {
    Q_OBJECT
public:
    // The choice's id, as a QString, under this role.
    static constexpr int idRole = Qt::UserRole + 1;

    explicit EditorChoiceModel(QObject* parent = nullptr) : QAbstractListModel(parent) {}

    // Replaces every choice (a reset: pickers keep their selection by id, not by row).
    void setChoices(std::vector<EditorChoice> choices);
    [[nodiscard]] const std::vector<EditorChoice>& choices() const { return choices_; }
    // The row of `id`, or nothing when it is not offered.
    [[nodiscard]] std::optional<int> rowOf(std::string_view id) const;
    [[nodiscard]] const std::string& idAt(int row) const { return choices_.at(static_cast<std::size_t>(row)).id; }

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;

private:
    std::vector<EditorChoice> choices_;
};

// The categories a movement of `kind` can have, with their icons (never "giroconto").
[[nodiscard]] std::vector<EditorChoice> categoryChoices(const Ledger& ledger, TransactionKind kind);
// The ledger's accounts with their icons, without `except` (a transfer's source account).
[[nodiscard]] std::vector<EditorChoice> accountChoices(const Ledger& ledger,
                                                       std::optional<std::string_view> except = std::nullopt);
// Euro first (id "EUR"), then the foreign currencies the ECB publishes, by their codes.
[[nodiscard]] std::vector<EditorChoice> currencyChoices();

}  // namespace vantello::app
