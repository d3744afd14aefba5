#include "app/screens/CategoriesScreen.hpp"

#include "app/model/CategoryActions.hpp"
#include "app/model/CategoryListModel.hpp"
#include "app/model/DisplayText.hpp"
#include "app/screens/CategoryDialog.hpp"
#include "app/screens/MovementsCard.hpp"

#include <QEvent>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QItemSelectionModel>
#include <QKeyEvent>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QTreeView>
#include <QVBoxLayout>

namespace vantello::app {

namespace {

QFont scaled(QFont font, qreal factor, bool bold) {
    font.setPointSizeF(font.pointSizeF() * factor);
    font.setBold(bold);
    return font;
}

QPushButton* button(const QString& text, const QString& name, QWidget* parent) {
    auto* made = new QPushButton(text, parent);
    made->setObjectName(name);
    made->setAccessibleName(text);
    return made;
}

// Enter edits the current row and Delete deletes it, as in the other lists of the application.
class ListKeys : public QObject {
public:
    ListKeys(CategoriesScreen* screen) : QObject(screen), screen_(screen) {}

protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() != QEvent::KeyPress) return QObject::eventFilter(watched, event);
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            screen_->editSelected();
            return true;
        }
        if (key == Qt::Key_Delete) {
            screen_->deleteSelected();
            return true;
        }
        return QObject::eventFilter(watched, event);
    }

private:
    CategoriesScreen* screen_;
};

}  // namespace

CategoriesScreen::CategoriesScreen(LedgerViewModel& model, QWidget* parent)
    : QWidget(parent),
      model_(model),
      expenses_(new CategoryListModel(TransactionKind::expense, this)),
      income_(new CategoryListModel(TransactionKind::income, this)) {
    setAccessibleName(uiText("Categorie"));

    auto* title = new QLabel(uiText("Categorie"));
    title->setObjectName(QStringLiteral("categoriesTitle"));
    title->setFont(scaled(title->font(), 1.5, true));
    auto* add = button(uiText("Nuova categoria"), QStringLiteral("addCategoryButton"), this);
    editButton_ = button(uiText("Modifica…"), QStringLiteral("editCategoryButton"), this);
    deleteButton_ = button(uiText("Elimina"), QStringLiteral("deleteCategoryButton"), this);
    connect(add, &QPushButton::clicked, this, &CategoriesScreen::addCategory);
    connect(editButton_, &QPushButton::clicked, this, &CategoriesScreen::editSelected);
    connect(deleteButton_, &QPushButton::clicked, this, &CategoriesScreen::deleteSelected);

    auto* header = new QHBoxLayout;
    header->addWidget(title);
    header->addStretch(1);
    header->addWidget(add);
    header->addWidget(editButton_);
    header->addWidget(deleteButton_);

    auto* hint = new QLabel(uiText("Le categorie predefinite non si possono modificare né eliminare; "
                                   "crea le tue con «Nuova categoria»."));
    hint->setObjectName(QStringLiteral("categoriesHint"));
    hint->setWordWrap(true);

    auto* lists = new QHBoxLayout;
    lists->setSpacing(12);
    expenseView_ = makeList(expenses_, QStringLiteral("expenseCategoryList"), uiText("Categorie di uscita"));
    incomeView_ = makeList(income_, QStringLiteral("incomeCategoryList"), uiText("Categorie di entrata"));
    for (auto [view, heading] : {std::pair{expenseView_, uiText("Uscite")}, std::pair{incomeView_, uiText("Entrate")}}) {
        auto* card = new MovementsCard(this);
        auto* inside = new QVBoxLayout(card);
        inside->setContentsMargins(0, 0, 0, 0);
        auto* label = new QLabel(heading, card);
        label->setFont(scaled(label->font(), 1.15, true));
        inside->addWidget(label);
        inside->addWidget(view, 1);
        lists->addWidget(card, 1);
    }
    lastUsed_ = expenseView_;

    notice_ = new QLabel;
    notice_->setObjectName(QStringLiteral("categoriesNotice"));
    notice_->setWordWrap(true);
    notice_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    notice_->hide();

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(20, 16, 20, 16);
    layout->setSpacing(10);
    layout->addLayout(header);
    layout->addWidget(hint);
    layout->addLayout(lists, 1);
    layout->addWidget(notice_);

    setTabOrder(add, editButton_);
    setTabOrder(editButton_, deleteButton_);
    setTabOrder(deleteButton_, expenseView_);
    setTabOrder(expenseView_, incomeView_);

    connect(&model_, &LedgerViewModel::ledgerChanged, this, &CategoriesScreen::refresh);
    refresh();
}

QTreeView* CategoriesScreen::makeList(CategoryListModel* list, const QString& name, const QString& accessibleName) {
    auto* view = new QTreeView(this);
    view->setObjectName(name);
    view->setAccessibleName(accessibleName);
    view->setModel(list);
    view->setRootIsDecorated(false);
    view->setUniformRowHeights(true);
    view->setFrameShape(QFrame::NoFrame);
    view->setSelectionMode(QAbstractItemView::SingleSelection);
    view->setSelectionBehavior(QAbstractItemView::SelectRows);
    view->setEditTriggers(QAbstractItemView::NoEditTriggers);
    view->setIconSize(QSize(20, 20));
    view->header()->setStretchLastSection(false);
    view->header()->setSectionResizeMode(CategoryListModel::nameColumn, QHeaderView::Stretch);
    view->header()->setSectionResizeMode(CategoryListModel::originColumn, QHeaderView::ResizeToContents);
    view->installEventFilter(new ListKeys(this));
    connect(view, &QTreeView::doubleClicked, this, &CategoriesScreen::editSelected);
    connect(view->selectionModel(), &QItemSelectionModel::selectionChanged, this, [this, view] {
        if (!view->selectionModel()->hasSelection()) {
            updateButtons();
            return;
        }
        // One selection across both lists: choosing here lets go of the other.
        lastUsed_ = view;
        QTreeView* other = view == expenseView_ ? incomeView_ : expenseView_;
        if (other) other->clearSelection();
        updateButtons();
    });
    return view;
}

void CategoriesScreen::refresh() {
    const std::optional<std::string> selected = selectedCategoryID();
    expenses_->setLedger(model_.ledger());
    income_->setLedger(model_.ledger());
    if (selected && !selectedCategoryID()) selectCategory(*selected);
    updateButtons();
}

std::optional<TransactionCategory> CategoriesScreen::selectedCategory() const {
    for (QTreeView* view : {expenseView_, incomeView_}) {
        const QModelIndexList rows = view->selectionModel()->selectedRows();
        if (rows.isEmpty()) continue;
        const auto* list = static_cast<const CategoryListModel*>(view->model());
        if (const TransactionCategory* category = list->category(rows.front().row())) return *category;
    }
    return std::nullopt;
}

std::optional<std::string> CategoriesScreen::selectedCategoryID() const {
    if (auto category = selectedCategory()) return category->id;
    return std::nullopt;
}

void CategoriesScreen::selectCategory(std::string_view categoryID) {
    for (QTreeView* view : {expenseView_, incomeView_}) {
        const auto* list = static_cast<const CategoryListModel*>(view->model());
        const int row = list->rowOf(categoryID);
        if (row < 0) continue;
        view->selectionModel()->setCurrentIndex(list->index(row, 0), QItemSelectionModel::ClearAndSelect |
                                                                         QItemSelectionModel::Rows);
        view->scrollTo(list->index(row, 0));
        return;
    }
}

QString CategoriesScreen::noticeText() const { return notice_->isHidden() ? QString() : notice_->text(); }

void CategoriesScreen::showNotice(const QString& text) {
    notice_->setText(text);
    notice_->setVisible(!text.isEmpty());
}

void CategoriesScreen::updateButtons() {
    const bool any = selectedCategory().has_value();
    editButton_->setEnabled(any);
    deleteButton_->setEnabled(any);
}

void CategoriesScreen::addCategory() {
    TransactionCategory fresh;
    fresh.kind = lastUsed_ == incomeView_ ? TransactionKind::income : TransactionKind::expense;
    fresh.symbol = "tag";
    auto* sheet = new CategoryDialog(
        fresh,
        [this](const TransactionCategory& typed) -> std::optional<QString> {
            auto added = addCustomCategory(model_, QString::fromStdString(typed.name), typed.symbol, typed.kind);
            if (auto* error = std::get_if<QString>(&added)) return *error;
            showNotice({});
            selectCategory(std::get<std::string>(added));
            return std::nullopt;
        },
        this);
    sheet->setAttribute(Qt::WA_DeleteOnClose);
    sheet->open();
}

void CategoriesScreen::editSelected() {
    const std::optional<TransactionCategory> category = selectedCategory();
    if (!category) return;
    if (builtInCategory(category->id)) {
        // The core decides what may change; its refusal explains why built-in ones stay.
        const auto refused = changeCategory(model_, category->id, QString::fromStdString(category->name),
                                            category->symbol);
        showNotice(refused.value_or(QString()));
        return;
    }
    auto* sheet = new CategoryDialog(
        *category,
        [this](const TransactionCategory& typed) -> std::optional<QString> {
            auto error = changeCategory(model_, typed.id, QString::fromStdString(typed.name), typed.symbol);
            if (!error) showNotice({});
            return error;
        },
        this);
    sheet->setAttribute(Qt::WA_DeleteOnClose);
    sheet->open();
}

void CategoriesScreen::deleteSelected() {
    const std::optional<TransactionCategory> category = selectedCategory();
    if (!category) return;
    if (builtInCategory(category->id)) {
        showNotice(removeCategory(model_, category->id).value_or(QString()));
        return;
    }
    const int moving = movementsInCategory(model_.ledger(), category->id);
    const std::optional<TransactionCategory> fallback = model_.ledger().category(fallbackCategoryID(category->kind));
    const std::string fallbackName = fallback ? fallback->name : std::string();
    QString consequence;
    if (moving == 0) {
        consequence = uiText("Nessun movimento usa questa categoria.");
    } else if (moving == 1) {
        consequence = uiText("1 movimento passerà alla categoria «{fallback}».", {{"fallback", fallbackName}});
    } else {
        consequence = uiText("{count} movimenti passeranno alla categoria «{fallback}».",
                             {{"count", std::to_string(moving)}, {"fallback", fallbackName}});
    }

    auto* ask = new QMessageBox(QMessageBox::Warning, uiText("Elimina categoria"),
                                uiText("Eliminare la categoria «{name}»?", {{"name", category->name}}),
                                QMessageBox::NoButton, this);
    ask->setObjectName(QStringLiteral("deleteCategoryConfirmation"));
    ask->setInformativeText(consequence);
    QPushButton* confirm = ask->addButton(uiText("Elimina"), QMessageBox::DestructiveRole);
    confirm->setObjectName(QStringLiteral("confirmDeleteButton"));
    confirm->setAccessibleName(confirm->text());
    QPushButton* cancel = ask->addButton(uiText("Annulla"), QMessageBox::RejectRole);
    cancel->setAccessibleName(cancel->text());
    ask->setDefaultButton(cancel);
    ask->setEscapeButton(cancel);
    ask->setWindowModality(Qt::WindowModal);
    ask->setAttribute(Qt::WA_DeleteOnClose);
    const std::string id = category->id;
    const std::string name = category->name;
    connect(confirm, &QPushButton::clicked, this, [this, id, name] {
        if (const auto refused = removeCategory(model_, id)) {
            showNotice(*refused);
            return;
        }
        showNotice(uiText("Categoria «{name}» eliminata.", {{"name", name}}));
    });
    ask->open();
}

}  // namespace vantello::app
