#include "app/model/EditorAttachments.hpp"

#include "app/model/SymbolIcons.hpp"

#include <QImage>
#include <QImageReader>
#include <QLocale>
#include <QMimeDatabase>
#include <QPixmap>

#include <utility>

namespace vantello::app {

namespace {

QString qtPath(const std::filesystem::path& path) { return QString::fromStdString(path.string()); }

// The image scaled down while it is read, so that a photo of many megapixels is never decoded
// whole; a null image for anything that is not an image.
QImage thumbnail(const QString& path, int side) {
    QImageReader reader(path);
    reader.setAutoTransform(true);
    if (!reader.canRead()) return {};
    const QSize size = reader.size();
    if (size.isValid() && (size.width() > side || size.height() > side)) {
        reader.setScaledSize(size.scaled(side, side, Qt::KeepAspectRatio));
    }
    QImage image = reader.read();
    if (!image.isNull() && (image.width() > side || image.height() > side)) {
        image = image.scaled(side, side, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    }
    return image;
}

QIcon fileIcon(const QString& path) {
    const QMimeType type = QMimeDatabase().mimeTypeForFile(path);
    return QIcon::fromTheme(type.iconName(), QIcon::fromTheme(type.genericIconName(), symbolIcon("doc")));
}

}  // namespace

EditorAttachmentsModel::EditorAttachmentsModel(std::optional<AttachmentStore> store, QObject* parent)
    : QAbstractListModel(parent), store_(std::move(store)) {}

void EditorAttachmentsModel::setAttachments(std::vector<Attachment> attachments) {
    beginResetModel();
    attachments_ = std::move(attachments);
    endResetModel();
}

void EditorAttachmentsModel::append(const Attachment& attachment) {
    const int row = rowCount();
    beginInsertRows({}, row, row);
    attachments_.push_back(attachment);
    endInsertRows();
}

void EditorAttachmentsModel::removeAt(int row) {
    if (row < 0 || row >= rowCount()) return;
    beginRemoveRows({}, row, row);
    attachments_.erase(attachments_.begin() + row);
    endRemoveRows();
}

std::optional<std::filesystem::path> EditorAttachmentsModel::filePath(int row) const {
    if (!store_ || row < 0 || row >= rowCount()) return std::nullopt;
    return store_->path(attachments_[static_cast<std::size_t>(row)]);
}

int EditorAttachmentsModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(attachments_.size());
}

QVariant EditorAttachmentsModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || index.row() >= rowCount()) return {};
    const Attachment& attachment = attachments_[static_cast<std::size_t>(index.row())];
    const QString name = QString::fromStdString(attachment.originalName);
    switch (role) {
        case Qt::DisplayRole:
        case Qt::AccessibleTextRole: return name;
        case Qt::ToolTipRole: return name + QStringLiteral(" \u2014 ") + QLocale().formattedDataSize(attachment.byteCount);
        case Qt::DecorationRole: return iconOf(attachment);
        default: return {};
    }
}

QIcon EditorAttachmentsModel::iconOf(const Attachment& attachment) const {
    const QString key = QString::fromStdString(attachment.storedName);
    if (const auto found = icons_.constFind(key); found != icons_.cend()) return *found;
    QIcon icon;
    if (store_) {
        const QString path = qtPath(store_->path(attachment));
        const QImage image = thumbnail(path, thumbnailSide);
        icon = image.isNull() ? fileIcon(path) : QIcon(QPixmap::fromImage(image));
    } else {
        icon = symbolIcon("doc");
    }
    icons_.insert(key, icon);
    return icon;
}

}  // namespace vantello::app
