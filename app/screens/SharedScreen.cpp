#include "app/screens/SharedScreen.hpp"

#include <QComboBox>
#include <QDateEdit>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>
#include <QVBoxLayout>

#include "app/model/DisplayText.hpp"
#include "app/model/LedgerAnalyses.hpp"
#include "app/model/SharedActions.hpp"
#include "app/screens/ScreenControls.hpp"
#include "app/screens/WealthSheet.hpp"
#include "core/ledger/LedgerSharing.hpp"

#include <algorithm>

namespace vantello::app {

namespace {

QLabel* title(const QString& text, const char* name) {
    auto* label = new QLabel(text);
    label->setObjectName(QString::fromLatin1(name));
    QFont bold = label->font();
    bold.setBold(true);
    bold.setPointSizeF(bold.pointSizeF() * 1.15);
    label->setFont(bold);
    return label;
}

const Person* findPerson(const Ledger& ledger, const Uuid& id) {
    const auto found = std::ranges::find(ledger.people(), id, &Person::id);
    return found == ledger.people().end() ? nullptr : &*found;
}

}  // namespace

SharedScreen::SharedScreen(LedgerViewModel& model, QWidget* parent)
    : QWidget(parent),
      model_(model),
      people_(new PeopleListModel(model, this)),
      history_(new PersonHistoryModel(model, this)) {
    auto* add = named(new QPushButton(uiText("Aggiungi persona…")), "addPersonButton", uiText("Aggiungi persona"));
    settleButton_ = named(new QPushButton(uiText("Salda…")), "settleButton", uiText("Salda il conto con la persona"));
    renameButton_ = named(new QPushButton(uiText("Rinomina…")), "renamePersonButton", uiText("Rinomina persona"));
    deleteButton_ = named(new QPushButton(uiText("Elimina persona")), "deletePersonButton", uiText("Elimina persona"));
    peopleView_ = recordTable("peopleView", uiText("Persone"), people_);
    peopleView_->horizontalHeader()->setSectionResizeMode(0, QHeaderView::Stretch);
    peopleEmpty_ = new QLabel(uiText("Nessuna persona. Aggiungi chi divide le spese con te per sapere chi deve a chi."));
    peopleEmpty_->setObjectName(QStringLiteral("peopleEmpty"));
    peopleEmpty_->setWordWrap(true);

    auto* buttons = new QHBoxLayout;
    buttons->addWidget(add);
    buttons->addWidget(settleButton_);
    buttons->addWidget(renameButton_);
    buttons->addWidget(deleteButton_);
    buttons->addStretch(1);
    auto* left = new QVBoxLayout;
    left->addWidget(title(uiText("Spese condivise"), "sharedTitle"));
    left->addLayout(buttons);
    left->addWidget(peopleEmpty_);
    left->addWidget(peopleView_, 1);

    historyTitle_ = title(QString(), "historyTitle");
    historyView_ = recordTable("historyView", uiText("Storico"), history_);
    historyView_->horizontalHeader()->setSectionResizeMode(1, QHeaderView::Stretch);
    historyEmpty_ = new QLabel(uiText("Nessuna spesa divisa né saldo con questa persona."));
    historyEmpty_->setObjectName(QStringLiteral("historyEmpty"));
    historyEmpty_->setWordWrap(true);
    auto* right = new QVBoxLayout;
    right->addWidget(historyTitle_);
    right->addWidget(historyEmpty_);
    right->addWidget(historyView_, 1);

    auto* row = new QHBoxLayout(this);
    row->addLayout(left, 2);
    row->addSpacing(12);
    row->addLayout(right, 3);

    setTabOrder(add, settleButton_);
    setTabOrder(settleButton_, deleteButton_);
    setTabOrder(deleteButton_, peopleView_);
    setTabOrder(peopleView_, historyView_);

    connect(add, &QPushButton::clicked, this, &SharedScreen::addPerson);
    connect(settleButton_, &QPushButton::clicked, this, &SharedScreen::settleUp);
    connect(renameButton_, &QPushButton::clicked, this, &SharedScreen::renamePerson);
    connect(deleteButton_, &QPushButton::clicked, this, &SharedScreen::deletePerson);
    connect(peopleView_, &QTableView::activated, this, &SharedScreen::settleUp);
    connect(peopleView_->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &SharedScreen::showSelectedPerson);
    // After the models have refreshed themselves (connected first), keep the person chosen.
    connect(&model_, &LedgerViewModel::ledgerChanged, this, &SharedScreen::refresh);
    refresh();
}

std::optional<Uuid> SharedScreen::selectedPerson() const {
    const QModelIndexList picked = peopleView_->selectionModel()->selectedRows();
    if (picked.isEmpty()) return std::nullopt;
    return people_->idAt(picked.front().row());
}

void SharedScreen::refresh() {
    // The list was reset: choose again the person shown, or the first.
    const std::optional<Uuid> shown = history_->person();
    int row = shown ? people_->rowOf(*shown) : -1;
    if (row < 0 && people_->rowCount() > 0) row = 0;
    if (row >= 0) {
        peopleView_->selectRow(row);
    }
    showSelectedPerson();
    peopleEmpty_->setVisible(people_->rowCount() == 0);
    peopleView_->setVisible(people_->rowCount() > 0);
}

void SharedScreen::showSelectedPerson() {
    const std::optional<Uuid> id = selectedPerson();
    if (history_->person() != id) history_->setPerson(id);
    const Person* person = id ? findPerson(model_.ledger(), *id) : nullptr;
    settleButton_->setEnabled(person != nullptr);
    renameButton_->setEnabled(person != nullptr);
    deleteButton_->setEnabled(person != nullptr);
    historyTitle_->setText(person ? uiText("Storico con {name}", {{"name", person->name}}) : uiText("Storico"));
    historyTitle_->setVisible(person != nullptr);
    historyEmpty_->setVisible(person != nullptr && history_->rowCount() == 0);
    historyView_->setVisible(person != nullptr && history_->rowCount() > 0);
}

void SharedScreen::addPerson() {
    auto* sheet = new WealthSheet(uiText("Aggiungi persona"), this);
    sheet->setObjectName(QStringLiteral("personSheet"));
    QLineEdit* name = sheet->addTextRow(uiText("Nome"), "personNameEdit");
    sheet->setSave([this, name]() -> std::optional<QString> {
        return addPersonRecord(model_, name->text().toStdString());
    });
    sheet->open();
}

void SharedScreen::settleUp() {
    const std::optional<Uuid> id = selectedPerson();
    const Person* person = id ? findPerson(model_.ledger(), *id) : nullptr;
    if (!person) return;
    const Decimal balance = model_.analyses().peopleBalances().at(*id);
    auto* sheet = new WealthSheet(uiText("Salda con {name}", {{"name", person->name}}), this);
    sheet->setObjectName(QStringLiteral("settleSheet"));
    auto* standing = new QLabel(balanceText(balance), sheet);
    standing->setObjectName(QStringLiteral("settleBalance"));
    sheet->form()->addRow(uiText("Saldo attuale"), standing);
    auto* kind = new QComboBox(sheet);
    kind->setObjectName(QStringLiteral("settleKindPicker"));
    kind->setAccessibleName(uiText("Tipo di movimento"));
    for (const SharedEntry::Kind each :
         {SharedEntry::Kind::paymentReceived, SharedEntry::Kind::paymentMade, SharedEntry::Kind::theyPaidForMe}) {
        kind->addItem(QString::fromStdString(SharedEntry::pickerLabel(each)), int(each));
    }
    kind->setCurrentIndex(balance.sign() < 0 ? 1 : 0);
    sheet->form()->addRow(uiText("Tipo"), kind);
    QLineEdit* amount = sheet->addAmountRow(uiText("Importo"), "settleAmountEdit");
    if (!balance.isZero()) amount->setText(euroText(balance.magnitude()).remove(QStringLiteral("€")).trimmed());
    QDateEdit* date = sheet->addDateRow(uiText("Data"), "settleDateEdit", WealthSheet::dateOf(model_.now(), model_.calendar()));
    QLineEdit* note = sheet->addTextRow(uiText("Nota"), "settleNoteEdit");
    sheet->setSave([this, personID = *id, kind, amount, date, note]() -> std::optional<QString> {
        const std::optional<Decimal> paid = WealthSheet::amountOf(*amount);
        if (!paid) return uiText("Scrivi un importo, per esempio 250 o 250,00.");
        SharedEntry entry;
        entry.id = Uuid::random();
        entry.personID = personID;
        entry.kind = SharedEntry::Kind(kind->currentData().toInt());
        entry.amount = *paid;
        entry.date = WealthSheet::momentOf(date->date(), model_.calendar());
        entry.note = note->text().trimmed().toStdString();
        return addSettlement(model_, entry);
    });
    sheet->open();
}

void SharedScreen::renamePerson() {
    const std::optional<Uuid> id = selectedPerson();
    const Person* person = id ? findPerson(model_.ledger(), *id) : nullptr;
    if (!person) return;
    auto* sheet = new WealthSheet(uiText("Rinomina persona"), this);
    sheet->setObjectName(QStringLiteral("renamePersonSheet"));
    QLineEdit* name = sheet->addTextRow(uiText("Nome"), "personNameEdit");
    name->setText(QString::fromStdString(person->name));
    sheet->setSave([this, personID = *id, name]() -> std::optional<QString> {
        return renamePersonRecord(model_, personID, name->text().toStdString());
    });
    sheet->open();
}

void SharedScreen::deletePerson() {
    const std::optional<Uuid> id = selectedPerson();
    const Person* person = id ? findPerson(model_.ledger(), *id) : nullptr;
    if (!person) return;
    confirmDeletion(this, uiText("Eliminare {name}?", {{"name", person->name}}),
                    uiText("Le sue quote escono dai movimenti e i saldi registrati con questa persona sono eliminati."),
                    [this, personID = *id] { deletePersonRecord(model_, personID); });
}

}  // namespace vantello::app
