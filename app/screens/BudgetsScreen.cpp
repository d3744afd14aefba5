#include "app/screens/MonthSwitcher.hpp"
#include "app/screens/BudgetsScreen.hpp"

#include "app/model/BudgetActions.hpp"
#include "app/model/BudgetListModel.hpp"
#include "app/model/DisplayText.hpp"
#include "app/model/SymbolIcons.hpp"
#include "app/screens/BudgetDialog.hpp"
#include "app/screens/MovementsCard.hpp"
#include "app/settings/ThemeApplication.hpp"

#include <QEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QListView>
#include <QPainter>
#include <QPushButton>
#include <QStackedWidget>
#include <QStyle>
#include <QStyledItemDelegate>
#include <QTimer>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>

namespace vantello::app {

namespace {

QPushButton* button(const QString& text, const QString& name, QWidget* parent) {
    auto* made = new QPushButton(text, parent);
    made->setObjectName(name);
    made->setAccessibleName(text);
    return made;
}

// One budget: icon and name with "spent of budget" on the right, the bar, then what is left and
// the level's word in its colour.
class BudgetDelegate : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex&) const override {
        const int line = option.fontMetrics.height();
        return {360, padding * 2 + line * 2 + barHeight + gap * 2};
    }

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override {
        QStyleOptionViewItem background = option;
        initStyleOption(&background, index);
        background.text.clear();
        background.icon = QIcon();
        const QWidget* widget = option.widget;
        QStyle* style = widget ? widget->style() : nullptr;
        if (style) style->drawPrimitive(QStyle::PE_PanelItemViewItem, &background, painter, widget);

        const ThemePalette& palette = currentPalette();
        const bool selected = option.state.testFlag(QStyle::State_Selected);
        const QColor text = selected ? option.palette.color(QPalette::HighlightedText) : palette.primaryText;
        const auto level = static_cast<BudgetStatus::Level>(index.data(BudgetListModel::levelRole).toInt());
        const QColor levelColour = budgetLevelColour(level, palette);
        const QRect area = option.rect.adjusted(padding, padding, -padding, -padding);
        const int line = option.fontMetrics.height();

        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        // First line.
        const QRect first(area.left(), area.top(), area.width(), line);
        const int iconSize = line;
        symbolIcon(index.data(BudgetListModel::symbolRole).toString().toStdString())
            .paint(painter, QRect(first.left(), first.top(), iconSize, iconSize));
        const QString spent = index.data(BudgetListModel::spentTextRole).toString();
        const int spentWidth = option.fontMetrics.horizontalAdvance(spent);
        QFont bold = option.font;
        bold.setBold(true);
        painter->setFont(bold);
        painter->setPen(text);
        const QRect nameRect(first.left() + iconSize + 8, first.top(), first.width() - iconSize - 16 - spentWidth, line);
        painter->drawText(nameRect, Qt::AlignLeft | Qt::AlignVCenter,
                          QFontMetrics(bold).elidedText(index.data().toString(), Qt::ElideRight, nameRect.width()));
        painter->setFont(option.font);
        painter->drawText(first, Qt::AlignRight | Qt::AlignVCenter, spent);

        // The bar: the track, and the part spent (full when over).
        const QRectF track(area.left(), first.bottom() + gap + 1, area.width(), barHeight);
        painter->setPen(Qt::NoPen);
        painter->setBrush(palette.separator);
        painter->drawRoundedRect(track, barHeight / 2.0, barHeight / 2.0);
        const double progress = std::clamp(index.data(BudgetListModel::progressRole).toDouble(), 0.0, 1.0);
        if (progress > 0) {
            QRectF filled = track;
            filled.setWidth(std::max(track.width() * progress, static_cast<qreal>(barHeight)));
            painter->setBrush(levelColour);
            painter->drawRoundedRect(filled, barHeight / 2.0, barHeight / 2.0);
        }

        // Last line.
        const QRect last(area.left(), static_cast<int>(track.bottom()) + gap, area.width(), line);
        painter->setPen(text);
        painter->drawText(last, Qt::AlignLeft | Qt::AlignVCenter, index.data(BudgetListModel::remainingTextRole).toString());
        painter->setPen(selected ? text : levelColour);
        painter->setFont(bold);
        painter->drawText(last, Qt::AlignRight | Qt::AlignVCenter, index.data(BudgetListModel::levelTextRole).toString());
        painter->restore();
    }

private:
    static constexpr int padding = 10;
    static constexpr int gap = 6;
    static constexpr int barHeight = 10;
};

}  // namespace

BudgetsScreen::BudgetsScreen(LedgerViewModel& model, QWidget* parent)
    : QWidget(parent), model_(model), list_(new BudgetListModel(this)) {
    setObjectName(QStringLiteral("budgetsScreen"));
    setAccessibleName(uiText("Budget"));

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(16, 12, 16, 12);
    layout->setSpacing(10);

    auto* header = new QHBoxLayout;
    monthSwitcher_ = new MonthSwitcher(model_, this);
    addBudget_ = button(uiText("Imposta budget"), QStringLiteral("addBudgetButton"), this);
    addBudget_->setIcon(symbolIcon("plus.circle"));
    connect(addBudget_, &QPushButton::clicked, this, [this] { openBudgetDialog(); });
    editBudget_ = button(uiText("Modifica budget"), QStringLiteral("editBudgetButton"), this);
    connect(editBudget_, &QPushButton::clicked, this, &BudgetsScreen::editSelected);
    removeBudget_ = button(uiText("Rimuovi budget"), QStringLiteral("removeBudgetButton"), this);
    connect(removeBudget_, &QPushButton::clicked, this, &BudgetsScreen::removeSelected);
    header->addWidget(monthSwitcher_);
    header->addStretch(1);
    header->addWidget(editBudget_);
    header->addWidget(removeBudget_);
    header->addWidget(addBudget_);
    layout->addLayout(header);

    pages_ = new QStackedWidget(this);
    pages_->setObjectName(QStringLiteral("budgetPages"));
    auto* listCard = new MovementsCard(pages_);
    auto* listLayout = new QVBoxLayout(listCard);
    view_ = new QListView(listCard);
    view_->setObjectName(QStringLiteral("budgetList"));
    view_->setAccessibleName(uiText("Budget"));
    view_->setModel(list_);
    view_->setItemDelegate(new BudgetDelegate(view_));
    view_->setFrameShape(QFrame::NoFrame);
    view_->setUniformItemSizes(true);
    view_->setSelectionMode(QAbstractItemView::SingleSelection);
    view_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    view_->installEventFilter(this);
    view_->viewport()->setAutoFillBackground(false);
    connect(view_, &QListView::doubleClicked, this, &BudgetsScreen::editSelected);
    connect(view_->selectionModel(), &QItemSelectionModel::selectionChanged, this, &BudgetsScreen::updateActions);
    listLayout->addWidget(view_, 1);

    auto* empty = new MovementsCard(pages_);
    auto* emptyLayout = new QVBoxLayout(empty);
    auto* emptyText = new QLabel(uiText("Nessun budget: fissa quanto spendere al massimo ogni mese in una categoria."), empty);
    emptyText->setObjectName(QStringLiteral("budgetsEmptyText"));
    emptyText->setWordWrap(true);
    emptyText->setAlignment(Qt::AlignCenter);
    auto* first = button(uiText("Imposta il primo budget"), QStringLiteral("firstBudgetButton"), empty);
    connect(first, &QPushButton::clicked, this, [this] { openBudgetDialog(); });
    emptyLayout->addStretch(1);
    emptyLayout->addWidget(emptyText);
    emptyLayout->addWidget(first, 0, Qt::AlignCenter);
    emptyLayout->addStretch(1);
    pages_->addWidget(listCard);
    pages_->addWidget(empty);
    layout->addWidget(pages_, 1);

    auto* unbudgetedCard = new MovementsCard(this);
    auto* unbudgetedLayout = new QHBoxLayout(unbudgetedCard);
    unbudgeted_ = new QLabel(unbudgetedCard);
    unbudgeted_->setObjectName(QStringLiteral("unbudgetedSpending"));
    unbudgeted_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    unbudgetedLayout->addWidget(unbudgeted_, 1);
    layout->addWidget(unbudgetedCard);

    setTabOrder(monthSwitcher_->lastControl(), editBudget_);
    setTabOrder(editBudget_, removeBudget_);
    setTabOrder(removeBudget_, addBudget_);
    setTabOrder(addBudget_, view_);

    connect(&model_, &LedgerViewModel::ledgerChanged, this, &BudgetsScreen::refresh);
    connect(&model_, &LedgerViewModel::selectedMonthChanged, this, &BudgetsScreen::refresh);
    connect(&model_, &LedgerViewModel::selectedAccountChanged, this, &BudgetsScreen::refresh);
    connect(&model_, &LedgerViewModel::demoChanged, this, &BudgetsScreen::refresh);
    refresh();
}

void BudgetsScreen::refresh() {
    const std::string selected = selectedCategoryID();
    list_->setSummary(model_.monthSummary());
    pages_->setCurrentIndex(list_->rowCount() == 0 ? 1 : 0);
    unbudgeted_->setText(list_->unbudgetedText());
    unbudgeted_->setAccessibleName(unbudgeted_->text());
    // The same category stays selected across a change of its figures.
    const int row = selected.empty() ? -1 : list_->rowOf(selected);
    if (row >= 0 && selectedCategoryID() != selected) view_->setCurrentIndex(list_->index(row));
    updateActions();
}

void BudgetsScreen::updateActions() {
    const bool chosen = !selectedCategoryID().empty();
    editBudget_->setEnabled(chosen);
    removeBudget_->setEnabled(chosen);
}

std::string BudgetsScreen::selectedCategoryID() const {
    const QModelIndexList rows = view_->selectionModel()->selectedRows();
    if (rows.isEmpty()) return {};
    return rows.first().data(BudgetListModel::categoryIDRole).toString().toStdString();
}

BudgetDialog* BudgetsScreen::openBudgetDialog(const std::string& categoryID) {
    auto* dialog = new BudgetDialog(model_, categoryID, this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(dialog, &QDialog::accepted, this, [this, dialog] {
        const int row = list_->rowOf(dialog->categoryID());
        if (row >= 0) view_->setCurrentIndex(list_->index(row));
    });
    dialog->open();
    return dialog;
}

void BudgetsScreen::editSelected() {
    const std::string category = selectedCategoryID();
    if (!category.empty()) openBudgetDialog(category);
}

void BudgetsScreen::removeSelected() {
    const std::string category = selectedCategoryID();
    if (!category.empty()) removeCategoryBudget(model_, category);
}

bool BudgetsScreen::eventFilter(QObject* watched, QEvent* event) {
    if (watched == view_ && event->type() == QEvent::KeyPress) {
        const auto* key = static_cast<QKeyEvent*>(event);
        if (key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter) {
            editSelected();
            return true;
        }
        if (key->key() == Qt::Key_Delete || key->key() == Qt::Key_Backspace) {
            removeSelected();
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}

void BudgetsScreen::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::ApplicationPaletteChange) {
        // The theme's colours are set just after the application's palette: read them afterwards.
        QTimer::singleShot(0, view_->viewport(), [this] { view_->viewport()->update(); });
    } else if (event->type() == QEvent::LanguageChange) {
        refresh();
    }
}

}  // namespace vantello::app
