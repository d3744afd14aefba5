#include "app/screens/ImportSheet.hpp"

#include "app/model/DisplayText.hpp"
#include "core/base/Localization.hpp"
#include "app/model/ImportOutcome.hpp"
#include "app/model/ImportPreviewModel.hpp"
#include "app/model/SymbolIcons.hpp"
#include "app/settings/ThemeApplication.hpp"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFontMetrics>
#include <QFrame>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>
#include <QTableView>
#include <QVBoxLayout>

#include <algorithm>

namespace vantello::app {

namespace {

using DateOrder = CSVImportOptions::DateOrder;
using AmountMode = CSVImportOptions::AmountMode;

constexpr int noColumn = -1;
constexpr int headerRowsOffered = 15;

// Why the core proposed an option, in a few words; nothing for a rule without a reading.
QString ruleText(const std::string& rule) {
    static const std::map<std::string, std::string_view, std::less<>> texts{
        {"user", L10n::key("scelta da te")},
        {"headerExactName", L10n::key("dal nome della colonna")},
        {"headerKeyword", L10n::key("da una parola del nome")},
        {"dataCells", L10n::key("dai dati della prima riga")},
        {"notFound", L10n::key("non trovata")},
        {"columnName", L10n::key("dal nome della colonna")},
        {"dates", L10n::key("dalle date del file")},
        {"default", L10n::key("predefinito")},
        {"incomeAndExpenseColumns", L10n::key("dalle colonne trovate")},
        {"oneAmountColumn", L10n::key("dalle colonne trovate")},
        {"firstRowNames", L10n::key("nomi nella prima riga")},
        {"firstRowAnyName", L10n::key("nomi nella prima riga")},
        {"namedRowBelow", L10n::key("nomi trovati più in basso")},
        {"amountNamedRowBelow", L10n::key("nomi trovati più in basso")},
        {"wordsAboveFirstMovement", L10n::key("sopra il primo movimento")},
        {"noHeaderFound", L10n::key("nessuna trovata")},
        {"firstLine", L10n::key("dalla prima riga")},
        {"consistentRows", L10n::key("dalle righe del file")},
    };
    const auto found = texts.find(rule);
    return found != texts.end() ? uiText(found->second) : QString();
}

QString separatorName(char separator) {
    switch (separator) {
        case ';': return uiText("Punto e virgola (;)");
        case ',': return uiText("Virgola (,)");
        case '\t': return uiText("Tabulazione");
        case '|': return uiText("Barra verticale (|)");
        default: return QStringLiteral("«%1»").arg(QChar::fromLatin1(separator));
    }
}

QString elided(const QString& text, int characters) {
    return text.size() <= characters ? text : text.left(characters - 1) + QStringLiteral("…");
}

int tableWidth(const CSV::Table& table) {
    std::size_t width = 0;
    for (const auto& row : table) width = std::max(width, row.size());
    return static_cast<int>(width);
}

// "2 · Descrizione": the column's number and its name, or what its first movement holds.
QString columnName(const StatementImport& statement, int column) {
    const CSVImportOptions& options = statement.options;
    const std::size_t sample = options.hasHeader ? static_cast<std::size_t>(std::max(options.headerRow, 0)) : 0;
    QString cell;
    if (sample < statement.table.size() && static_cast<std::size_t>(column) < statement.table[sample].size()) {
        cell = QString::fromStdString(statement.table[sample][static_cast<std::size_t>(column)]).simplified();
    }
    const QString number = QString::number(column + 1);
    return cell.isEmpty() ? uiText("Colonna {number}", {{"number", number.toStdString()}})
                          : number + QStringLiteral(" · ") + elided(cell, 28);
}

void selectData(QComboBox* box, const QVariant& value) {
    const int index = box->findData(value);
    box->setCurrentIndex(index);
}

}  // namespace

ImportSheet::ImportSheet(LedgerViewModel& model, QWidget* parent)
    : QDialog(parent), model_(model), memory_(model.preferences()) {
    setObjectName(QStringLiteral("importSheet"));
    setWindowTitle(uiText("Importa estratto conto"));
    setAccessibleName(windowTitle());
    setWindowModality(Qt::WindowModal);
    setModal(true);
    resize(920, 720);

    auto* layout = new QVBoxLayout(this);

    fileLabel_ = new QLabel(this);
    fileLabel_->setObjectName(QStringLiteral("importFileLabel"));
    fileLabel_->setTextFormat(Qt::PlainText);
    QFont titleFont = fileLabel_->font();
    titleFont.setBold(true);
    titleFont.setPointSizeF(titleFont.pointSizeF() * 1.15);
    fileLabel_->setFont(titleFont);
    countsLabel_ = new QLabel(this);
    countsLabel_->setObjectName(QStringLiteral("importCountsLabel"));
    layout->addWidget(fileLabel_);
    layout->addWidget(countsLabel_);

    memoryBar_ = new QFrame(this);
    memoryBar_->setObjectName(QStringLiteral("importMemoryBar"));
    memoryBar_->setFrameShape(QFrame::StyledPanel);
    auto* memoryLayout = new QHBoxLayout(memoryBar_);
    auto* memoryText = new QLabel(uiText("Uso le colonne dell'ultima importazione da questa banca."), memoryBar_);
    memoryText->setWordWrap(true);
    guessButton_ = new QPushButton(uiText("Usa le colonne proposte"), memoryBar_);
    guessButton_->setObjectName(QStringLiteral("importUseGuessButton"));
    guessButton_->setAccessibleName(uiText("Usa le colonne proposte invece di quelle dell'ultima importazione"));
    guessButton_->setAutoDefault(false);
    memoryLayout->addWidget(memoryText, 1);
    memoryLayout->addWidget(guessButton_);
    layout->addWidget(memoryBar_);
    connect(guessButton_, &QPushButton::clicked, this, &ImportSheet::useGuess);

    buildOptions();
    layout->addWidget(optionsBox_);

    preview_ = new ImportPreviewModel(model.calendar(), this);
    table_ = new QTableView(this);
    table_->setObjectName(QStringLiteral("importPreviewTable"));
    table_->setAccessibleName(uiText("Anteprima dei movimenti"));
    table_->setModel(preview_);
    table_->setSelectionBehavior(QAbstractItemView::SelectRows);
    table_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table_->setAlternatingRowColors(true);
    table_->setWordWrap(false);
    table_->verticalHeader()->hide();
    table_->horizontalHeader()->setSectionResizeMode(ImportPreviewModel::lineColumn, QHeaderView::ResizeToContents);
    table_->horizontalHeader()->setSectionResizeMode(ImportPreviewModel::dateColumn, QHeaderView::ResizeToContents);
    table_->horizontalHeader()->setSectionResizeMode(ImportPreviewModel::descriptionColumn, QHeaderView::Stretch);
    table_->horizontalHeader()->setSectionResizeMode(ImportPreviewModel::categoryColumn, QHeaderView::ResizeToContents);
    table_->horizontalHeader()->setSectionResizeMode(ImportPreviewModel::amountColumn, QHeaderView::ResizeToContents);
    table_->setMinimumHeight(200);
    layout->addWidget(table_, 1);

    errorLabel_ = new QLabel(this);
    errorLabel_->setObjectName(QStringLiteral("importErrorLabel"));
    errorLabel_->setWordWrap(true);
    errorLabel_->setTextFormat(Qt::PlainText);
    errorLabel_->hide();
    layout->addWidget(errorLabel_);

    // Where the movements go and how they are merged.
    auto* destination = new QGridLayout;
    auto* accountLabel = new QLabel(uiText("Conto"), this);
    accountBox_ = new QComboBox(this);
    accountBox_->setObjectName(QStringLiteral("importAccountBox"));
    accountBox_->setAccessibleName(uiText("Conto in cui importare"));
    accountLabel->setBuddy(accountBox_);
    for (const Account& account : model.ledger().accounts()) {
        accountBox_->addItem(symbolIcon(account.symbol), QString::fromStdString(account.name),
                             QString::fromStdString(account.id));
    }
    const std::string shown = model.selectedAccountID().value_or(std::string(mainAccountID));
    const int shownIndex = accountBox_->findData(QString::fromStdString(shown));
    accountBox_->setCurrentIndex(shownIndex >= 0 ? shownIndex : 0);
    transfersBox_ = new QCheckBox(uiText("Riconosci i giroconti"), this);
    transfersBox_->setObjectName(QStringLiteral("importTransfersBox"));
    transfersBox_->setAccessibleName(transfersBox_->text());
    transfersBox_->setToolTip(
        uiText("Un movimento opposto dello stesso importo su un altro tuo conto, entro tre "
               "giorni, diventa un giroconto."));
    transfersBox_->setChecked(model.ledger().accounts().size() > 1);
    repeatedBox_ = new QCheckBox(uiText("Importa anche i movimenti ripetuti nel file"), this);
    repeatedBox_->setObjectName(QStringLiteral("importRepeatedBox"));
    repeatedBox_->setAccessibleName(repeatedBox_->text());
    repeatedLabel_ = new QLabel(this);
    repeatedLabel_->setObjectName(QStringLiteral("importRepeatedLabel"));
    repeatedLabel_->setWordWrap(true);
    expectedLabel_ = new QLabel(this);
    expectedLabel_->setObjectName(QStringLiteral("importExpectedLabel"));
    expectedLabel_->setWordWrap(true);
    destination->addWidget(accountLabel, 0, 0);
    destination->addWidget(accountBox_, 0, 1);
    destination->addWidget(transfersBox_, 0, 2);
    destination->addWidget(repeatedBox_, 1, 1, 1, 2);
    destination->addWidget(repeatedLabel_, 2, 1, 1, 2);
    destination->setColumnStretch(2, 1);
    layout->addLayout(destination);
    layout->addWidget(expectedLabel_);

    buttons_ = new QDialogButtonBox(this);
    importButton_ = buttons_->addButton(uiText("Importa"), QDialogButtonBox::AcceptRole);
    importButton_->setObjectName(QStringLiteral("importConfirmButton"));
    importButton_->setAccessibleName(uiText("Importa"));
    importButton_->setDefault(true);
    auto* cancelButton = buttons_->addButton(uiText("Annulla"), QDialogButtonBox::RejectRole);
    cancelButton->setObjectName(QStringLiteral("importCancelButton"));
    cancelButton->setAccessibleName(uiText("Annulla"));
    layout->addWidget(buttons_);
    connect(buttons_, &QDialogButtonBox::accepted, this, &ImportSheet::confirm);
    connect(buttons_, &QDialogButtonBox::rejected, this, &ImportSheet::reject);

    connect(accountBox_, &QComboBox::currentIndexChanged, this, &ImportSheet::refreshOutcome);
    connect(transfersBox_, &QCheckBox::toggled, this, &ImportSheet::refreshOutcome);
    connect(repeatedBox_, &QCheckBox::toggled, this, &ImportSheet::refreshOutcome);
    connect(&model_, &LedgerViewModel::importSessionChanged, this, &ImportSheet::refresh);

    if (const auto& session = model_.importSession()) {
        fingerprint_ = ImportMappingMemory::fingerprint(session->statement);
        if (fingerprint_ && session->overrides == CSVImportOverrides{}) {
            usingRemembered_ = memory_.proposeRemembered(model_, *fingerprint_);
        }
    }
    refresh();

    const QList<QWidget*> order{guessButton_,      separatorBox_,         headerBox_,         dateColumnBox_,
                                dateOrderBox_,     amountModeBox_,        amountColumnBox_,   incomeColumnBox_,
                                expenseColumnBox_, descriptionColumnBox_, categoryColumnBox_, table_,
                                accountBox_,       transfersBox_,         repeatedBox_,       importButton_,
                                cancelButton};
    for (qsizetype index = 1; index < order.size(); ++index) setTabOrder(order[index - 1], order[index]);
}

QComboBox* ImportSheet::addOption(QGridLayout* grid, int row, int pair, std::string_view italianLabel,
                                  const char* objectName, const std::string& rule) {
    auto* label = new QLabel(uiText(italianLabel), optionsBox_);
    auto* box = new QComboBox(optionsBox_);
    box->setObjectName(QString::fromLatin1(objectName));
    box->setAccessibleName(label->text());
    box->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    box->setMinimumContentsLength(12);
    label->setBuddy(box);
    auto* hint = new QLabel(optionsBox_);
    hint->setObjectName(QString::fromLatin1(objectName) + QStringLiteral("Hint"));
    QFont small = hint->font();
    small.setPointSizeF(small.pointSizeF() * 0.9);
    hint->setFont(small);
    hint->setForegroundRole(QPalette::PlaceholderText);
    grid->addWidget(label, row * 2, pair * 2);
    grid->addWidget(box, row * 2, pair * 2 + 1);
    grid->addWidget(hint, row * 2 + 1, pair * 2 + 1);
    hints_[rule] = hint;
    companions_[box] = {label, hint};
    return box;
}

void ImportSheet::buildOptions() {
    optionsBox_ = new QGroupBox(uiText("Colonne del file"), this);
    optionsBox_->setObjectName(QStringLiteral("importOptionsBox"));
    auto* grid = new QGridLayout(optionsBox_);
    grid->setVerticalSpacing(2);
    grid->setColumnStretch(1, 1);
    grid->setColumnStretch(3, 1);
    grid->setColumnMinimumWidth(2, 16);

    separatorBox_ = addOption(grid, 0, 0, L10n::key("Separatore"), "importSeparatorBox", "separator");
    headerBox_ = addOption(grid, 0, 1, L10n::key("Riga delle intestazioni"), "importHeaderBox", "headerRow");
    dateColumnBox_ = addOption(grid, 1, 0, L10n::key("Colonna della data"), "importDateColumnBox", "dateColumn");
    dateOrderBox_ = addOption(grid, 1, 1, L10n::key("Formato della data"), "importDateOrderBox", "dateOrder");
    amountModeBox_ = addOption(grid, 2, 0, L10n::key("Importi"), "importAmountModeBox", "amountMode");
    amountColumnBox_ = addOption(grid, 2, 1, L10n::key("Colonna dell'importo"), "importAmountColumnBox", "amountColumn");
    incomeColumnBox_ = addOption(grid, 3, 0, L10n::key("Colonna delle entrate"), "importIncomeColumnBox", "incomeColumn");
    expenseColumnBox_ = addOption(grid, 3, 1, L10n::key("Colonna delle uscite"), "importExpenseColumnBox", "expenseColumn");
    descriptionColumnBox_ =
        addOption(grid, 4, 0, L10n::key("Colonna della descrizione"), "importDescriptionColumnBox", "descriptionColumn");
    categoryColumnBox_ = addOption(grid, 4, 1, L10n::key("Colonna della categoria"), "importCategoryColumnBox", "categoryColumn");

    for (const auto order : allDateOrders) {
        dateOrderBox_->addItem(QString::fromStdString(label(order)), static_cast<int>(order));
    }
    for (const auto mode : allAmountModes) {
        amountModeBox_->addItem(QString::fromStdString(label(mode)), static_cast<int>(mode));
    }

    const auto picked = [](QComboBox* box) { return box->currentData().toInt(); };
    connect(separatorBox_, &QComboBox::activated, this, [this, picked](int) {
        const char separator = static_cast<char>(picked(separatorBox_));
        changeOverrides(
            [separator](CSVImportOverrides& overrides, const CSVImportOptions&) { overrides.separator = separator; });
    });
    connect(headerBox_, &QComboBox::activated, this, [this, picked](int) {
        const int row = picked(headerBox_);
        changeOverrides([row](CSVImportOverrides& overrides, const CSVImportOptions&) {
            overrides.noHeader = row == noColumn;
            overrides.headerRow = row == noColumn ? std::nullopt : std::optional<int>(row);
        });
    });
    connect(dateColumnBox_, &QComboBox::activated, this, [this, picked](int) {
        const int column = picked(dateColumnBox_);
        changeOverrides(
            [column](CSVImportOverrides& overrides, const CSVImportOptions&) { overrides.dateColumn = column; });
    });
    connect(dateOrderBox_, &QComboBox::activated, this, [this, picked](int) {
        const auto order = static_cast<DateOrder>(picked(dateOrderBox_));
        changeOverrides(
            [order](CSVImportOverrides& overrides, const CSVImportOptions&) { overrides.dateOrder = order; });
    });
    connect(amountModeBox_, &QComboBox::activated, this, [this, picked](int) {
        const auto mode = static_cast<AmountMode>(picked(amountModeBox_));
        changeOverrides([mode](CSVImportOverrides& overrides, const CSVImportOptions& options) {
            // The other mode needs its columns named, or the core keeps the one it has.
            if (mode == AmountMode::signed_) {
                overrides.incomeColumn.reset();
                overrides.expenseColumn.reset();
                overrides.amountColumn =
                    options.amountColumn.value_or(options.expenseColumn.value_or(options.incomeColumn.value_or(0)));
            } else {
                overrides.amountColumn.reset();
                const int fallback = options.amountColumn.value_or(0);
                overrides.incomeColumn = options.incomeColumn.value_or(fallback);
                overrides.expenseColumn = options.expenseColumn.value_or(fallback);
            }
        });
    });
    connect(amountColumnBox_, &QComboBox::activated, this, [this, picked](int) {
        const int column = picked(amountColumnBox_);
        changeOverrides([column](CSVImportOverrides& overrides, const CSVImportOptions&) {
            overrides.incomeColumn.reset();
            overrides.expenseColumn.reset();
            overrides.amountColumn = column;
        });
    });
    const auto pickSide = [this, picked](QComboBox* box, bool income) {
        const int column = picked(box);
        changeOverrides([column, income](CSVImportOverrides& overrides, const CSVImportOptions& options) {
            overrides.amountColumn.reset();
            overrides.incomeColumn = income ? std::optional<int>(column) : options.incomeColumn;
            overrides.expenseColumn = income ? options.expenseColumn : std::optional<int>(column);
        });
    };
    connect(incomeColumnBox_, &QComboBox::activated, this, [=, this](int) { pickSide(incomeColumnBox_, true); });
    connect(expenseColumnBox_, &QComboBox::activated, this, [=, this](int) { pickSide(expenseColumnBox_, false); });
    connect(descriptionColumnBox_, &QComboBox::activated, this, [this, picked](int) {
        const int column = picked(descriptionColumnBox_);
        changeOverrides(
            [column](CSVImportOverrides& overrides, const CSVImportOptions&) { overrides.descriptionColumn = column; });
    });
    connect(categoryColumnBox_, &QComboBox::activated, this, [this, picked](int) {
        const int column = picked(categoryColumnBox_);
        changeOverrides(
            [column](CSVImportOverrides& overrides, const CSVImportOptions&) { overrides.categoryColumn = column; });
    });
}

void ImportSheet::setOptionVisible(QComboBox* box, bool visible) {
    box->setVisible(visible);
    const auto& [label, hint] = companions_.at(box);
    label->setVisible(visible);
    hint->setVisible(visible);
}

void ImportSheet::refresh() {
    const auto& session = model_.importSession();
    if (!session) {
        // Ended elsewhere (a profile switch, another window): nothing left to show.
        if (!finishing_ && isVisible()) QDialog::reject();
        return;
    }
    const StatementImport& statement = session->statement;
    const bool csv = statement.format == StatementFormat::csv;
    QString format = QString::fromLatin1(rawValue(statement.format).data()).toUpper();
    if (statement.format == StatementFormat::ofx &&
        session->fileName.endsWith(QStringLiteral(".qfx"), Qt::CaseInsensitive)) {
        format = QStringLiteral("QFX");
    }
    fileLabel_->setText(
        uiText("{file} · {format}", {{"file", session->fileName.toStdString()}, {"format", format.toStdString()}}));
    preview_->setStatement(statement, model_.ledger().allCategories());
    QString counts = countedText(preview_->importableCount(), L10n::key("{count} movimento da importare"),
                             L10n::key("{count} movimenti da importare"));
    if (preview_->problemCount() > 0) {
        counts += QStringLiteral(" · ") + countedText(preview_->problemCount(), L10n::key("{count} riga con un problema"),
                                                  L10n::key("{count} righe con un problema"));
    }
    countsLabel_->setText(counts);
    memoryBar_->setVisible(usingRemembered_);
    optionsBox_->setVisible(csv);
    if (csv) refreshOptions(statement);
    refreshOutcome();
}

void ImportSheet::refreshOptions(const StatementImport& statement) {
    const CSVImportOptions& options = statement.options;
    const int width = tableWidth(statement.table);
    const auto fillColumns = [&](QComboBox* box, std::optional<int> chosen, bool withNone) {
        const QSignalBlocker quiet(box);
        box->clear();
        if (withNone) box->addItem(uiText("Nessuna"), noColumn);
        for (int column = 0; column < width; ++column) box->addItem(columnName(statement, column), column);
        if (chosen && *chosen >= width) {
            box->addItem(uiText("Colonna {number}", {{"number", std::to_string(*chosen + 1)}}), *chosen);
        }
        selectData(box, chosen.value_or(noColumn));
    };

    {
        const QSignalBlocker quiet(separatorBox_);
        separatorBox_->clear();
        for (const char separator : {';', ',', '\t', '|'}) separatorBox_->addItem(separatorName(separator), separator);
        if (separatorBox_->findData(static_cast<int>(statement.separator)) < 0) {
            separatorBox_->addItem(separatorName(statement.separator), static_cast<int>(statement.separator));
        }
        selectData(separatorBox_, static_cast<int>(statement.separator));
    }
    {
        const QSignalBlocker quiet(headerBox_);
        headerBox_->clear();
        headerBox_->addItem(uiText("Nessuna"), noColumn);
        const int rows = static_cast<int>(statement.table.size());
        for (int row = 0; row < rows && (row < headerRowsOffered || (options.hasHeader && row == options.headerRow));
             ++row) {
            QStringList cells;
            for (const auto& cell : statement.table[static_cast<std::size_t>(row)]) {
                cells << QString::fromStdString(cell).simplified();
            }
            const QString label = uiText("Riga {line}", {{"line", std::to_string(row + 1)}}) + QStringLiteral(" · ") +
                                  elided(cells.join(QStringLiteral(", ")), 40);
            headerBox_->addItem(label, row);
        }
        selectData(headerBox_, options.hasHeader ? options.headerRow : noColumn);
    }
    fillColumns(dateColumnBox_, options.dateColumn, false);
    {
        const QSignalBlocker quiet(dateOrderBox_);
        selectData(dateOrderBox_, static_cast<int>(options.dateOrder));
    }
    {
        const QSignalBlocker quiet(amountModeBox_);
        selectData(amountModeBox_, static_cast<int>(options.amountMode));
    }
    fillColumns(amountColumnBox_, options.amountColumn, false);
    fillColumns(incomeColumnBox_, options.incomeColumn, false);
    fillColumns(expenseColumnBox_, options.expenseColumn, false);
    fillColumns(descriptionColumnBox_, options.descriptionColumn, true);
    fillColumns(categoryColumnBox_, options.categoryColumn, true);

    const bool separate = options.amountMode == AmountMode::separate;
    setOptionVisible(amountColumnBox_, !separate);
    setOptionVisible(incomeColumnBox_, separate);
    setOptionVisible(expenseColumnBox_, separate);

    for (const auto& [rule, hint] : hints_) {
        const auto found = statement.guessedBy.find(rule);
        const QString text = found != statement.guessedBy.end() ? ruleText(found->second) : QString();
        hint->setText(text);
        hint->setToolTip(text);
    }
}

void ImportSheet::refreshOutcome() {
    const auto& session = model_.importSession();
    if (!session) return;
    const std::string account = chosenAccount();
    const bool hasMovements = preview_->importableCount() > 0;
    importButton_->setEnabled(hasMovements && !account.empty());
    if (!hasMovements || account.empty()) {
        repeatedBox_->hide();
        repeatedLabel_->hide();
        expectedLabel_->setText(account.empty() ? uiText("Non c'è un conto in cui importare.")
                                                : uiText("Nessuna riga del file diventa un movimento: scegli le "
                                                         "colonne giuste."));
        return;
    }
    const Calendar& calendar = model_.calendar();
    const ImportResult single = expectedImport(model_.ledger(), session->statement, account, transfersBox_->isChecked(),
                                               calendar, RepeatedMovements::oneDuplicate);
    const bool repeats = single.repeatedInStatement > 0;
    repeatedBox_->setVisible(repeats);
    repeatedLabel_->setVisible(repeats);
    if (repeats) {
        repeatedLabel_->setText(
            countedText(single.repeatedInStatement,
                    L10n::key("{count} movimento del file è uguale a uno precedente dello stesso file "
                              "(per esempio due biglietti dello stesso giorno): senza questa scelta "
                              "ne viene importato uno solo."),
                    L10n::key("{count} movimenti del file sono uguali a uno precedente dello stesso file "
                              "(per esempio due biglietti dello stesso giorno): senza questa scelta "
                              "ne viene importato uno solo.")));
    }
    const ImportResult expected = chosenRepetition() == RepeatedMovements::counted
                                      ? expectedImport(model_.ledger(), session->statement, account,
                                                       transfersBox_->isChecked(), calendar, RepeatedMovements::counted)
                                      : single;
    QStringList parts;
    parts << (expected.added == 0 ? uiText("Nessun movimento nuovo da aggiungere")
                                  : countedText(expected.added, L10n::key("Sarà aggiunto {count} movimento"),
                                            L10n::key("Saranno aggiunti {count} movimenti")));
    if (expected.duplicates > 0) {
        parts << countedText(expected.duplicates, L10n::key("{count} già presente"), L10n::key("{count} già presenti"));
    }
    if (expected.transfers > 0)
        parts << countedText(expected.transfers, L10n::key("{count} giroconto"), L10n::key("{count} giroconti"));
    expectedLabel_->setText(parts.join(QStringLiteral(" · ")));
}

void ImportSheet::revise(const CSVImportOverrides& overrides) {
    const auto error = model_.reviseImport(overrides);
    errorLabel_->setVisible(error.has_value());
    if (error) {
        errorLabel_->setText(QStringLiteral("\u26A0 ") + *error);
        QPalette colours = errorLabel_->palette();
        colours.setColor(QPalette::WindowText, currentPalette().expense);
        errorLabel_->setPalette(colours);
        refresh();  // the pickers back to what the rows were read with
    }
}

void ImportSheet::changeOverrides(const std::function<void(CSVImportOverrides&, const CSVImportOptions&)>& change) {
    const auto& session = model_.importSession();
    if (!session) return;
    CSVImportOverrides overrides = session->overrides;
    change(overrides, session->statement.options);
    revise(overrides);
}

void ImportSheet::useGuess() {
    usingRemembered_ = false;
    revise({});
    refresh();
    separatorBox_->setFocus();
}

std::string ImportSheet::chosenAccount() const { return accountBox_->currentData().toString().toStdString(); }

RepeatedMovements ImportSheet::chosenRepetition() const {
    // The choice counts only while offered: a file without repeated rows has nothing to count.
    return !repeatedBox_->isHidden() && repeatedBox_->isChecked() ? RepeatedMovements::counted
                                                                  : RepeatedMovements::oneDuplicate;
}

void ImportSheet::confirm() {
    const auto& session = model_.importSession();
    if (!session || !importButton_->isEnabled()) return;
    const StatementImport statement = session->statement;
    const int unreadable = preview_->problemCount();
    finishing_ = true;
    const auto result = model_.confirmImport(chosenAccount(), transfersBox_->isChecked(), chosenRepetition());
    if (!result) {
        finishing_ = false;
        return;
    }
    if (fingerprint_ && statement.format == StatementFormat::csv) memory_.remember(*fingerprint_, statement);
    Q_EMIT imported(importSummaryText(*result, unreadable));
    accept();
}

void ImportSheet::reject() {
    finishing_ = true;
    model_.cancelImport();
    QDialog::reject();
}

}  // namespace vantello::app
