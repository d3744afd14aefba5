#include "app/screens/MonthSwitcher.hpp"

#include "app/model/DisplayText.hpp"
#include "app/model/LedgerViewModel.hpp"
#include "app/screens/ScreenControls.hpp"

#include <QEvent>
#include <QHBoxLayout>
#include <QStyle>
#include <QToolButton>

namespace vantello::app {

namespace {

QToolButton* arrow(QStyle::StandardPixmap icon, const char* objectName, const QString& name, QWidget* parent) {
    auto* button = named(new QToolButton(parent), objectName, name);
    button->setIcon(parent->style()->standardIcon(icon));
    button->setToolTip(name);
    button->setAutoRaise(true);
    return button;
}

}  // namespace

MonthSwitcher::MonthSwitcher(LedgerViewModel& model, QWidget* parent) : QWidget(parent), model_(model) {
    previous_ = arrow(QStyle::SP_ArrowBack, "previousMonthButton", uiText("Mese precedente"), this);
    title_ = titleLabel(QString());
    title_->setParent(this);
    title_->setObjectName(QStringLiteral("monthTitle"));
    title_->setAlignment(Qt::AlignCenter);
    title_->setMinimumWidth(title_->fontMetrics().horizontalAdvance(QStringLiteral("settembre 0000")) + 16);
    next_ = arrow(QStyle::SP_ArrowForward, "nextMonthButton", uiText("Mese successivo"), this);
    current_ = namedButton(uiText("Torna al mese in corso"), "currentMonthButton", this);

    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(8);
    for (QWidget* each : std::initializer_list<QWidget*>{previous_, title_, next_, current_}) row->addWidget(each);
    chainTabOrder({previous_, next_, current_});

    connect(previous_, &QToolButton::clicked, &model_, &LedgerViewModel::showPreviousMonth);
    connect(next_, &QToolButton::clicked, &model_, &LedgerViewModel::showNextMonth);
    connect(current_, &QPushButton::clicked, &model_, &LedgerViewModel::showCurrentMonth);
    connect(&model_, &LedgerViewModel::selectedMonthChanged, this, &MonthSwitcher::refresh);
    connect(&model_, &LedgerViewModel::ledgerChanged, this, &MonthSwitcher::refresh);
    refresh();
}

QWidget* MonthSwitcher::lastControl() const { return current_; }

void MonthSwitcher::refresh() {
    const QString title = monthTitle(model_.selectedMonth(), model_.calendar());
    title_->setText(title);
    title_->setAccessibleName(title);
    current_->setVisible(!model_.isShowingCurrentMonth());
}

void MonthSwitcher::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) refresh();
}

}  // namespace vantello::app
