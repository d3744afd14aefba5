#pragma once
// The attachments of the movement in the editor: each file's name, a thumbnail for images (a
// file icon otherwise) and its size, read from the copy in the attachments folder.

#include "core/files/AttachmentStore.hpp"
#include "core/ledger/Attachment.hpp"

#include <QAbstractListModel>
#include <QHash>
#include <QIcon>
#include <QSize>

#include <optional>
#include <vector>

namespace vantello::app {

class EditorAttachmentsModel : public QAbstractListModel {
    Q_OBJECT
public:
    // The longest side of a thumbnail.
    static constexpr int thumbnailSide = 48;

    explicit EditorAttachmentsModel(std::optional<AttachmentStore> store, QObject* parent = nullptr);

    void setAttachments(std::vector<Attachment> attachments);
    [[nodiscard]] const std::vector<Attachment>& attachments() const { return attachments_; }
    void append(const Attachment& attachment);
    void removeAt(int row);
    // The stored copy's path; nothing without an attachments folder.
    [[nodiscard]] std::optional<std::filesystem::path> filePath(int row) const;

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;

private:
    [[nodiscard]] QIcon iconOf(const Attachment& attachment) const;

    std::optional<AttachmentStore> store_;
    std::vector<Attachment> attachments_;
    mutable QHash<QString, QIcon> icons_;  // by stored name: a copy never changes
};

}  // namespace vantello::app
