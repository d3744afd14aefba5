#include "app/screens/SearchNameDialog.hpp"

#include "app/model/DisplayText.hpp"
#include "app/settings/ThemeApplication.hpp"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace vantello::app {

SearchNameDialog::SearchNameDialog(const QString& title, const QString& confirmText, const QString& name,
                                   Commit commit, QWidget* parent)
    : QDialog(parent), commit_(std::move(commit)), name_(new QLineEdit(name, this)), problem_(new QLabel(this)),
      buttons_(new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this)) {
    setObjectName(QStringLiteral("searchNameDialog"));
    setWindowTitle(title);
    setAccessibleName(title);
    setWindowModality(Qt::WindowModal);
    setMinimumWidth(360);

    name_->setObjectName(QStringLiteral("searchNameField"));
    name_->setAccessibleName(uiText("Nome della ricerca"));
    name_->setPlaceholderText(uiText("Per esempio: Spese per l'auto"));
    name_->selectAll();

    problem_->setObjectName(QStringLiteral("searchNameProblem"));
    problem_->setWordWrap(true);
    problem_->hide();
    QPalette warning = problem_->palette();
    warning.setColor(QPalette::WindowText, currentPalette().expense);
    problem_->setPalette(warning);

    QPushButton* ok = buttons_->button(QDialogButtonBox::Ok);
    ok->setObjectName(QStringLiteral("searchNameConfirm"));
    ok->setText(confirmText);
    ok->setAccessibleName(confirmText);
    ok->setDefault(true);
    QPushButton* cancel = buttons_->button(QDialogButtonBox::Cancel);
    cancel->setText(uiText("Annulla"));
    cancel->setAccessibleName(uiText("Annulla"));
    connect(buttons_, &QDialogButtonBox::accepted, this, &SearchNameDialog::accept);
    connect(buttons_, &QDialogButtonBox::rejected, this, &SearchNameDialog::reject);
    connect(name_, &QLineEdit::textEdited, problem_, &QLabel::hide);

    auto* form = new QFormLayout;
    form->addRow(uiText("Nome"), name_);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(form);
    layout->addWidget(problem_);
    layout->addWidget(buttons_);
}

QString SearchNameDialog::name() const { return name_->text(); }

void SearchNameDialog::accept() {
    if (const auto problem = commit_(name_->text())) {
        problem_->setText(*problem);
        problem_->show();
        name_->setFocus();
        return;
    }
    QDialog::accept();
}

}  // namespace vantello::app
