#pragma once
// The small window-modal sheet that asks for a saved search's name, when saving the search on
// screen or renaming one from the sidebar. The core's reason for refusing a name is shown inside
// it, and it stays open until a name is taken or the user cancels.

#include <QDialog>
#include <QString>

#include <functional>
#include <optional>

class QDialogButtonBox;
class QLabel;
class QLineEdit;

namespace vantello::app {

class SearchNameDialog : public QDialog {
    Q_OBJECT
public:
    // `commit` takes the typed name and returns the reason when it was refused.
    using Commit = std::function<std::optional<QString>(const QString& name)>;

    SearchNameDialog(const QString& title, const QString& confirmText, const QString& name, Commit commit,
                     QWidget* parent = nullptr);

    [[nodiscard]] QString name() const;

public Q_SLOTS:
    void accept() override;

private:
    Commit commit_;
    QLineEdit* name_;
    QLabel* problem_;
    QDialogButtonBox* buttons_;
};

}  // namespace vantello::app
