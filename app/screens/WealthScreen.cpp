#include "app/screens/WealthScreen.hpp"

#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QDialogButtonBox>
#include <QEvent>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QSpinBox>
#include <QTableView>
#include <QVBoxLayout>
#include <QtCharts>

#include "app/model/DisplayText.hpp"
#include "app/screens/ChartStyle.hpp"
#include "app/model/LedgerAnalyses.hpp"
#include "app/model/WealthActions.hpp"
#include "app/screens/SummaryTile.hpp"
#include "app/screens/ScreenControls.hpp"
#include "app/screens/WealthSheet.hpp"
#include "app/settings/ThemeApplication.hpp"
#include "core/ledger/AmountParser.hpp"

#include <algorithm>
#include <cmath>

namespace vantello::app {

namespace {

QLabel* sectionTitle(const QString& text) {
    auto* label = new QLabel(text);
    QFont bold = label->font();
    bold.setBold(true);
    bold.setPointSizeF(bold.pointSizeF() * 1.15);
    label->setFont(bold);
    return label;
}

QLabel* emptyLabel(const QString& text, const char* name) {
    auto* label = new QLabel(text);
    label->setObjectName(QString::fromLatin1(name));
    label->setWordWrap(true);
    return label;
}

const Asset* findAsset(const Ledger& ledger, const Uuid& id) {
    const auto& assets = ledger.data().assets;
    const auto found = std::ranges::find(assets, id, &Asset::id);
    return found == assets.end() ? nullptr : &*found;
}

const Loan* findLoan(const Ledger& ledger, const Uuid& id) {
    const auto& loans = ledger.data().loans;
    const auto found = std::ranges::find(loans, id, &Loan::id);
    return found == loans.end() ? nullptr : &*found;
}

// As tall as its rows, so that a short list leaves no empty box below it.
void fitHeight(QTableView& view) {
    const int rows = std::max(1, view.model()->rowCount());
    const int height = view.horizontalHeader()->sizeHint().height() + rows * view.verticalHeader()->defaultSectionSize() +
                       2 * view.frameWidth() + 2;
    view.setFixedHeight(std::min(height, 360));
}

QString amountHint() { return uiText("Scrivi un importo, per esempio 250 o 250,00."); }

}  // namespace

WealthScreen::WealthScreen(LedgerViewModel& model, QWidget* parent)
    : QWidget(parent),
      model_(model),
      assets_(new AssetListModel(model, this)),
      loans_(new LoanListModel(model, this)),
      tile_(new SummaryTile),
      chart_(plainChart()),
      series_(new QLineSeries),
      monthAxis_(new QBarCategoryAxis),
      valueAxis_(new QValueAxis) {
    // The net worth and its year.
    chart_->legend()->hide();
    chart_->addSeries(series_);
    chart_->addAxis(monthAxis_, Qt::AlignBottom);
    chart_->addAxis(valueAxis_, Qt::AlignLeft);
    series_->attachAxis(monthAxis_);
    series_->attachAxis(valueAxis_);
    series_->setPointsVisible(true);
    showEuros(valueAxis_);
    chartView_ = chartView(chart_, "netWorthChart", uiText("Patrimonio netto negli ultimi dodici mesi"));
    chartView_->setMinimumSize(360, 220);

    tile_->setObjectName(QStringLiteral("netWorthTile"));
    tile_->setMinimumWidth(220);
    auto* top = new QHBoxLayout;
    top->addWidget(tile_, 1, Qt::AlignTop);
    top->addWidget(chartView_, 3);

    // The assets.
    auto* addAsset = named(new QPushButton(uiText("Nuovo bene…")), "newAssetButton", uiText("Nuovo bene"));
    editAssetButton_ = named(new QPushButton(uiText("Modifica…")), "editAssetButton", uiText("Modifica bene"));
    valueButton_ = named(new QPushButton(uiText("Aggiorna valore…")), "updateValueButton", uiText("Aggiorna valore"));
    deleteAssetButton_ = named(new QPushButton(uiText("Elimina")), "deleteAssetButton", uiText("Elimina bene"));
    assetsView_ = recordTable("assetsView", uiText("Beni"), assets_);
    assetsView_->horizontalHeader()->setSectionResizeMode(0, QHeaderView::Stretch);
    assetsEmpty_ = emptyLabel(uiText("Nessun bene. Aggiungi la casa, l'auto o gli investimenti per contarli nel patrimonio."),
                              "assetsEmpty");
    auto* assetButtons = new QHBoxLayout;
    assetButtons->addWidget(sectionTitle(uiText("Beni")));
    assetButtons->addStretch(1);
    for (QPushButton* each : {addAsset, editAssetButton_, valueButton_, deleteAssetButton_}) assetButtons->addWidget(each);

    // The loans.
    auto* addLoan = named(new QPushButton(uiText("Nuovo prestito…")), "newLoanButton", uiText("Nuovo prestito"));
    editLoanButton_ = named(new QPushButton(uiText("Modifica…")), "editLoanButton", uiText("Modifica prestito"));
    scheduleButton_ = named(new QPushButton(uiText("Piano di ammortamento…")), "scheduleButton", uiText("Piano di ammortamento"));
    bookButton_ = named(new QPushButton(uiText("Registra la rata")), "bookLoanButton", uiText("Registra la rata come movimento ricorrente"));
    bookButton_->setToolTip(uiText("Registra la rata come movimento ricorrente"));
    deleteLoanButton_ = named(new QPushButton(uiText("Elimina")), "deleteLoanButton", uiText("Elimina prestito"));
    loansView_ = recordTable("loansView", uiText("Prestiti"), loans_);
    loansView_->horizontalHeader()->setSectionResizeMode(0, QHeaderView::Stretch);
    loansEmpty_ = emptyLabel(uiText("Nessun prestito. Aggiungi un mutuo o un finanziamento per seguirne le rate."),
                             "loansEmpty");
    auto* loanButtons = new QHBoxLayout;
    loanButtons->addWidget(sectionTitle(uiText("Prestiti")));
    loanButtons->addStretch(1);
    for (QPushButton* each : {addLoan, editLoanButton_, scheduleButton_, bookButton_, deleteLoanButton_}) {
        loanButtons->addWidget(each);
    }

    auto* content = new QWidget;
    auto* column = new QVBoxLayout(content);
    column->addWidget(sectionTitle(uiText("Patrimonio")));
    column->addLayout(top);
    column->addSpacing(8);
    column->addLayout(assetButtons);
    column->addWidget(assetsEmpty_);
    column->addWidget(assetsView_);
    column->addSpacing(8);
    column->addLayout(loanButtons);
    column->addWidget(loansEmpty_);
    column->addWidget(loansView_);
    column->addStretch(1);

    auto* scroll = new QScrollArea;
    scroll->setObjectName(QStringLiteral("wealthScroll"));
    scroll->setWidgetResizable(true);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setWidget(content);
    auto* outer = new QVBoxLayout(this);
    outer->setContentsMargins(0, 0, 0, 0);
    outer->addWidget(scroll);

    chainTabOrder({addAsset, editAssetButton_, valueButton_, deleteAssetButton_, assetsView_, addLoan, editLoanButton_,
                   scheduleButton_, bookButton_, deleteLoanButton_, loansView_});

    connect(addAsset, &QPushButton::clicked, this, &WealthScreen::newAsset);
    connect(editAssetButton_, &QPushButton::clicked, this, &WealthScreen::editAsset);
    connect(valueButton_, &QPushButton::clicked, this, &WealthScreen::updateAssetValue);
    connect(deleteAssetButton_, &QPushButton::clicked, this, &WealthScreen::deleteAsset);
    connect(assetsView_, &QTableView::activated, this, &WealthScreen::updateAssetValue);
    connect(addLoan, &QPushButton::clicked, this, &WealthScreen::newLoan);
    connect(editLoanButton_, &QPushButton::clicked, this, &WealthScreen::editLoan);
    connect(scheduleButton_, &QPushButton::clicked, this, &WealthScreen::showLoanSchedule);
    connect(bookButton_, &QPushButton::clicked, this, &WealthScreen::bookLoan);
    connect(deleteLoanButton_, &QPushButton::clicked, this, &WealthScreen::deleteLoan);
    connect(loansView_, &QTableView::activated, this, &WealthScreen::showLoanSchedule);
    connect(assetsView_->selectionModel(), &QItemSelectionModel::selectionChanged, this, &WealthScreen::updateButtons);
    connect(loansView_->selectionModel(), &QItemSelectionModel::selectionChanged, this, &WealthScreen::updateButtons);
    connect(assets_, &QAbstractItemModel::modelReset, this, [this] {
        if (assets_->rowCount() > 0) assetsView_->selectRow(0);
        updateButtons();
    });
    connect(loans_, &QAbstractItemModel::modelReset, this, [this] {
        if (loans_->rowCount() > 0) loansView_->selectRow(0);
        updateButtons();
    });
    // The models refresh themselves first: they were connected before.
    connect(&model_, &LedgerViewModel::ledgerChanged, this, &WealthScreen::refresh);

    if (assets_->rowCount() > 0) assetsView_->selectRow(0);
    if (loans_->rowCount() > 0) loansView_->selectRow(0);
    refresh();
}

void WealthScreen::refresh() {
    overview_ = netWorthOverview(model_.analyses().netWorthHistory(), model_.calendar());
    MonthTile tile;
    tile.name = QStringLiteral("netWorth");
    tile.label = uiText("Patrimonio netto");
    tile.figure = overview_.figure;
    tile.context = overview_.context;
    tile.tone = overview_.total.sign() < 0 ? MonthTile::Tone::expense : MonthTile::Tone::neutral;
    tile_->setTile(tile);
    refreshChart();
    assetsEmpty_->setVisible(assets_->rowCount() == 0);
    assetsView_->setVisible(assets_->rowCount() > 0);
    loansEmpty_->setVisible(loans_->rowCount() == 0);
    loansView_->setVisible(loans_->rowCount() > 0);
    fitHeight(*assetsView_);
    fitHeight(*loansView_);
    updateButtons();
}

void WealthScreen::refreshChart() {
    const ThemePalette& colours = currentPalette();
    QList<QPointF> points;
    QStringList months;
    QStringList spoken;
    double low = 0;
    double high = 0;
    for (std::size_t index = 0; index < overview_.history.size(); ++index) {
        const NetWorthOverview::Point& point = overview_.history[index];
        points.append(QPointF(double(index), point.value));
        months.append(point.label);
        spoken.append(point.label + QStringLiteral(": ") + point.valueText);
        low = index == 0 ? point.value : std::min(low, point.value);
        high = index == 0 ? point.value : std::max(high, point.value);
    }
    series_->replace(points);
    monthAxis_->setCategories(months);
    const double margin = std::max((high - low) * 0.1, std::max(std::abs(high) * 0.02, 10.0));
    valueAxis_->setRange(std::floor((low - margin) / 10) * 10, std::ceil((high + margin) / 10) * 10);
    valueAxis_->applyNiceNumbers();
    chartView_->setAccessibleDescription(spoken.join(QStringLiteral("; ")));

    paintChart(*chart_, *chartView_, colours);
    QPen line(colours.accent);
    line.setWidthF(2.5);
    series_->setPen(line);
    series_->setBrush(colours.accent);
}

void WealthScreen::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) refreshChart();
    if (event->type() == QEvent::LanguageChange) refresh();
}

std::optional<Uuid> WealthScreen::selected(const QTableView& view, const WealthTableModel& rows) const {
    const QModelIndexList picked = view.selectionModel()->selectedRows();
    if (picked.isEmpty()) return std::nullopt;
    return rows.idAt(picked.front().row());
}

void WealthScreen::updateButtons() {
    const bool asset = selected(*assetsView_, *assets_).has_value();
    for (QPushButton* each : {editAssetButton_, valueButton_, deleteAssetButton_}) each->setEnabled(asset);
    const bool loan = selected(*loansView_, *loans_).has_value();
    for (QPushButton* each : {editLoanButton_, scheduleButton_, bookButton_, deleteLoanButton_}) each->setEnabled(loan);
}

// ---- assets

void WealthScreen::newAsset() {
    auto* sheet = new WealthSheet(uiText("Nuovo bene"), this);
    sheet->setObjectName(QStringLiteral("assetSheet"));
    QLineEdit* name = sheet->addTextRow(uiText("Nome"), "assetNameEdit");
    QLineEdit* value = sheet->addAmountRow(uiText("Valore attuale"), "assetValueEdit");
    QDateEdit* date = sheet->addDateRow(uiText("Valutato il"), "assetDateEdit", WealthSheet::dateOf(model_.now(), model_.calendar()));
    sheet->setSave([this, name, value, date]() -> std::optional<QString> {
        Asset asset;
        asset.id = Uuid::random();
        asset.name = name->text().toStdString();
        asset.symbol = "house";
        if (!value->text().trimmed().isEmpty()) {
            const std::optional<Decimal> amount = WealthSheet::amountOf(*value);
            if (!amount) return amountHint();
            asset.valuations.push_back({WealthSheet::momentOf(date->date(), model_.calendar()), *amount});
        }
        return saveAssetRecord(model_, asset);
    });
    sheet->open();
}

void WealthScreen::editAsset() {
    const std::optional<Uuid> id = selected(*assetsView_, *assets_);
    const Asset* asset = id ? findAsset(model_.ledger(), *id) : nullptr;
    if (!asset) return;
    auto* sheet = new WealthSheet(uiText("Modifica bene"), this);
    sheet->setObjectName(QStringLiteral("assetSheet"));
    QLineEdit* name = sheet->addTextRow(uiText("Nome"), "assetNameEdit");
    name->setText(QString::fromStdString(asset->name));
    sheet->setSave([this, name, original = *asset]() -> std::optional<QString> {
        Asset changed = original;
        changed.name = name->text().toStdString();
        return saveAssetRecord(model_, changed);
    });
    sheet->open();
}

void WealthScreen::updateAssetValue() {
    const std::optional<Uuid> id = selected(*assetsView_, *assets_);
    const Asset* asset = id ? findAsset(model_.ledger(), *id) : nullptr;
    if (!asset) return;
    auto* sheet = new WealthSheet(uiText("Aggiorna valore di {name}", {{"name", asset->name}}), this);
    sheet->setObjectName(QStringLiteral("valuationSheet"));
    QLineEdit* value = sheet->addAmountRow(uiText("Nuovo valore"), "valuationEdit");
    QDateEdit* date = sheet->addDateRow(uiText("Dal giorno"), "valuationDateEdit", WealthSheet::dateOf(model_.now(), model_.calendar()));
    sheet->setSave([this, value, date, assetID = *id]() -> std::optional<QString> {
        const std::optional<Decimal> amount = WealthSheet::amountOf(*value);
        if (!amount) return amountHint();
        return addAssetValuation(model_, assetID, {WealthSheet::momentOf(date->date(), model_.calendar()), *amount});
    });
    sheet->open();
}

void WealthScreen::deleteAsset() {
    const std::optional<Uuid> id = selected(*assetsView_, *assets_);
    const Asset* asset = id ? findAsset(model_.ledger(), *id) : nullptr;
    if (!asset) return;
    confirmDeletion(this, uiText("Eliminare il bene «{name}»?", {{"name", asset->name}}),
                    uiText("Le sue valutazioni non conteranno più nel patrimonio."),
                    [this, assetID = *id] { deleteAssetRecord(model_, assetID); });
}

// ---- loans

void WealthScreen::newLoan() { openLoanSheet(std::nullopt); }

void WealthScreen::editLoan() {
    const std::optional<Uuid> id = selected(*loansView_, *loans_);
    const auto& loans = model_.ledger().data().loans;
    const auto found = id ? std::ranges::find(loans, *id, &Loan::id) : loans.end();
    if (found != loans.end()) openLoanSheet(*found);
}

void WealthScreen::openLoanSheet(std::optional<Loan> existing) {
    const Ledger& ledger = model_.ledger();
    auto* sheet = new WealthSheet(existing ? uiText("Modifica prestito") : uiText("Nuovo prestito"), this);
    sheet->setObjectName(QStringLiteral("loanSheet"));
    QLineEdit* name = sheet->addTextRow(uiText("Nome"), "loanNameEdit");
    QLineEdit* principal = sheet->addAmountRow(uiText("Importo prestato"), "loanPrincipalEdit");
    QLineEdit* rate = sheet->addAmountRow(uiText("Tasso annuo (%)"), "loanRateEdit");
    rate->setPlaceholderText(uiText("3,5"));
    auto* months = new QSpinBox(sheet);
    months->setObjectName(QStringLiteral("loanMonthsEdit"));
    months->setAccessibleName(uiText("Numero di rate mensili"));
    months->setRange(1, 600);
    months->setValue(60);
    sheet->form()->addRow(uiText("Rate mensili"), months);
    QDateEdit* first = sheet->addDateRow(uiText("Prima rata"), "loanFirstPaymentEdit",
                                         WealthSheet::dateOf(model_.now(), model_.calendar()).addMonths(1));
    auto* account = new QComboBox(sheet);
    account->setObjectName(QStringLiteral("loanAccountPicker"));
    account->setAccessibleName(uiText("Conto da cui si paga"));
    for (const Account& each : ledger.accounts()) {
        account->addItem(QString::fromStdString(each.name), QString::fromStdString(each.id));
    }
    sheet->form()->addRow(uiText("Conto"), account);
    auto* category = new QComboBox(sheet);
    category->setObjectName(QStringLiteral("loanCategoryPicker"));
    category->setAccessibleName(uiText("Categoria della rata"));
    for (const TransactionCategory& each : ledger.categories(TransactionKind::expense)) {
        category->addItem(QString::fromStdString(each.name), QString::fromStdString(each.id));
    }
    sheet->form()->addRow(uiText("Categoria"), category);
    auto* book = new QCheckBox(uiText("Registra la rata come movimento ricorrente"), sheet);
    book->setObjectName(QStringLiteral("loanBookCheck"));
    book->setAccessibleName(book->text());
    book->setChecked(true);
    sheet->form()->addRow(QString(), book);
    if (existing) {
        name->setText(QString::fromStdString(existing->name));
        principal->setText(typedAmountText(existing->principal));
        rate->setText(typedAmountText(existing->annualRate));
        months->setValue(existing->months);
        first->setDate(WealthSheet::dateOf(existing->firstPayment, model_.calendar()));
        account->setCurrentIndex(std::max(0, account->findData(QString::fromStdString(existing->accountID))));
        category->setCurrentIndex(std::max(0, category->findData(QString::fromStdString(existing->categoryID))));
        book->setChecked(loanIsBooked(ledger, *existing));
    }

    sheet->setSave([this, existing, name, principal, rate, months, first, account, category,
                    book]() -> std::optional<QString> {
        // An edited loan keeps its id and the rule that books it.
        Loan loan = existing.value_or(Loan{});
        if (!existing) loan.id = Uuid::random();
        loan.name = name->text().toStdString();
        const std::optional<Decimal> borrowed = WealthSheet::amountOf(*principal);
        if (!borrowed) return amountHint();
        loan.principal = *borrowed;
        if (rate->text().trimmed().isEmpty()) {
            loan.annualRate = Decimal();
        } else {
            const std::optional<Decimal> percent = AmountParser::parse(rate->text().trimmed().toStdString());
            if (!percent) return uiText("Scrivi il tasso annuo in percentuale, per esempio 3,5.");
            loan.annualRate = *percent;
        }
        loan.months = months->value();
        loan.firstPayment = WealthSheet::momentOf(first->date(), model_.calendar());
        loan.accountID = account->currentData().toString().toStdString();
        loan.categoryID = category->currentData().toString().toStdString();
        return saveLoanRecord(model_, loan, book->isChecked());
    });
    sheet->open();
}

void WealthScreen::showLoanSchedule() {
    const std::optional<Uuid> id = selected(*loansView_, *loans_);
    const Loan* loan = id ? findLoan(model_.ledger(), *id) : nullptr;
    if (!loan) return;
    auto* sheet = new QDialog(this);
    sheet->setObjectName(QStringLiteral("loanScheduleSheet"));
    sheet->setWindowTitle(uiText("Piano di ammortamento: {name}", {{"name", loan->name}}));
    sheet->setWindowModality(Qt::WindowModal);
    sheet->setAttribute(Qt::WA_DeleteOnClose);
    auto* plan = new LoanScheduleModel(*loan, model_.calendar(), sheet);
    auto* summary = new QLabel(uiText("Rata {payment} · Interessi totali {interest}",
                                      {{"payment", euroText(loanPayment(*loan)).toStdString()},
                                       {"interest", euroText(plan->interestTotal()).toStdString()}}),
                               sheet);
    summary->setObjectName(QStringLiteral("scheduleSummary"));
    QTableView* view = recordTable("scheduleView", uiText("Piano di ammortamento"), plan);
    view->setParent(sheet);
    view->horizontalHeader()->setSectionResizeMode(1, QHeaderView::Stretch);
    view->setMinimumHeight(300);
    view->setMaximumHeight(QWIDGETSIZE_MAX);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, sheet);
    buttons->button(QDialogButtonBox::Close)->setText(uiText("Chiudi"));
    buttons->button(QDialogButtonBox::Close)->setAccessibleName(uiText("Chiudi"));
    connect(buttons, &QDialogButtonBox::rejected, sheet, &QDialog::reject);
    auto* column = new QVBoxLayout(sheet);
    column->addWidget(summary);
    column->addWidget(view, 1);
    column->addWidget(buttons);
    sheet->resize(640, 480);
    sheet->open();
}

void WealthScreen::bookLoan() {
    if (const std::optional<Uuid> id = selected(*loansView_, *loans_)) bookLoanRecord(model_, *id);
}

void WealthScreen::deleteLoan() {
    const std::optional<Uuid> id = selected(*loansView_, *loans_);
    const Loan* loan = id ? findLoan(model_.ledger(), *id) : nullptr;
    if (!loan) return;
    confirmDeletion(this, uiText("Eliminare il prestito «{name}»?", {{"name", loan->name}}),
                    uiText("Anche la rata ricorrente sarà eliminata; i movimenti già registrati restano."),
                    [this, loanID = *id] { deleteLoanRecord(model_, loanID); });
}

}  // namespace vantello::app
