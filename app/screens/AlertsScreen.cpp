#include "app/screens/AlertsScreen.hpp"

#include <QCheckBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QStackedWidget>
#include <QVBoxLayout>

#include "app/model/AlertActions.hpp"
#include "app/model/DisplayText.hpp"
#include "app/model/GoalActions.hpp"
#include "app/model/SymbolIcons.hpp"
#include "app/screens/MovementsCard.hpp"
#include "app/settings/ThemeApplication.hpp"

namespace vantello::app {

namespace {

QLabel* wrapped(const QString& text, const QString& objectName = {}) {
    auto* label = new QLabel(text);
    label->setObjectName(objectName);
    label->setWordWrap(true);
    return label;
}

QString kindObjectName(SmartAlert::Kind kind) {
    switch (kind) {
        case SmartAlert::Kind::unusualSpending: return QStringLiteral("unusualSpendingSwitch");
        case SmartAlert::Kind::possibleDuplicate: return QStringLiteral("possibleDuplicateSwitch");
        case SmartAlert::Kind::lowBalance: return QStringLiteral("lowBalanceSwitch");
        case SmartAlert::Kind::negativeForecast: return QStringLiteral("negativeForecastSwitch");
    }
    return {};
}

QString thresholdText(const std::optional<Decimal>& threshold) {
    return threshold ? editableAmount(*threshold) : QString();
}

}  // namespace

QString alertKindText(SmartAlert::Kind kind) {
    switch (kind) {
        case SmartAlert::Kind::unusualSpending: return uiText("Spese insolite per una categoria");
        case SmartAlert::Kind::possibleDuplicate: return uiText("Possibili addebiti doppi");
        case SmartAlert::Kind::lowBalance: return uiText("Saldo di un conto sotto la soglia");
        case SmartAlert::Kind::negativeForecast: return uiText("Mese diretto verso un saldo negativo");
    }
    return {};
}

AlertsScreen::AlertsScreen(LedgerViewModel& model, QWidget* parent) : QWidget(parent), model_(model) {
    auto* title = new QLabel(uiText("Avvisi"));
    title->setObjectName(QStringLiteral("alertsTitle"));
    QFont titleFont = title->font();
    titleFont.setBold(true);
    titleFont.setPointSizeF(titleFont.pointSizeF() * 1.4);
    title->setFont(titleFont);

    // Today's alerts, or a sentence saying what would appear here.
    auto* alertsBox = new QGroupBox(uiText("Avvisi di oggi"));
    alertsBox->setObjectName(QStringLiteral("currentAlertsBox"));
    auto* alertList = new QWidget;
    alertsLayout_ = new QVBoxLayout(alertList);
    alertsLayout_->setContentsMargins(0, 0, 0, 0);
    auto* empty = wrapped(uiText("Nessun avviso. Qui compaiono le spese insolite, i possibili addebiti doppi, "
                                 "i saldi sotto la soglia e i mesi diretti verso un saldo negativo."),
                          QStringLiteral("alertsEmpty"));
    alertPages_ = new QStackedWidget;
    alertPages_->setObjectName(QStringLiteral("alertsPages"));
    alertPages_->addWidget(empty);
    alertPages_->addWidget(alertList);
    auto* alertsBoxLayout = new QVBoxLayout(alertsBox);
    alertsBoxLayout->addWidget(alertPages_);

    // What to be warned about.
    auto* kindsBox = new QGroupBox(uiText("Quali avvisi"));
    kindsBox->setObjectName(QStringLiteral("alertKindsBox"));
    auto* kindsLayout = new QVBoxLayout(kindsBox);
    for (const SmartAlert::Kind kind : allSmartAlertKinds) {
        auto* box = new QCheckBox(alertKindText(kind));
        box->setObjectName(kindObjectName(kind));
        box->setAccessibleName(alertKindText(kind));
        connect(box, &QCheckBox::toggled, this, [this, kind](bool on) {
            AlertSettings settings = model_.alertSettings();
            if (on) {
                settings.enabled.insert(kind);
            } else {
                settings.enabled.erase(kind);
            }
            model_.setAlertSettings(settings);
        });
        kinds_[kind] = box;
        kindsLayout->addWidget(box);
    }
    notifications_ = new QCheckBox(uiText("Notifica i nuovi avvisi sul desktop"));
    notifications_->setObjectName(QStringLiteral("alertNotificationsSwitch"));
    notifications_->setAccessibleName(uiText("Notifica i nuovi avvisi sul desktop"));
    connect(notifications_, &QCheckBox::toggled, this, [this](bool on) { model_.setAlertNotifications(on); });
    kindsLayout->addSpacing(6);
    kindsLayout->addWidget(notifications_);

    auto* thresholdsBox = new QGroupBox(uiText("Soglie di saldo basso"));
    thresholdsBox->setObjectName(QStringLiteral("thresholdsBox"));
    auto* thresholdsLayout = new QVBoxLayout(thresholdsBox);
    thresholdsLayout->addWidget(wrapped(uiText("Avvisa quando il saldo di un conto scende sotto la cifra. "
                                               "Lascia vuoto per non ricevere avvisi.")));
    thresholds_ = new QFormLayout;
    thresholds_->setFieldGrowthPolicy(QFormLayout::FieldsStayAtSizeHint);
    thresholdsLayout->addLayout(thresholds_);
    thresholdError_ = wrapped(QString(), QStringLiteral("thresholdError"));
    thresholdError_->hide();
    thresholdsLayout->addWidget(thresholdError_);

    auto* content = new QWidget;
    auto* contentLayout = new QVBoxLayout(content);
    contentLayout->setContentsMargins(20, 16, 20, 16);
    contentLayout->addWidget(title);
    contentLayout->addWidget(alertsBox);
    contentLayout->addWidget(kindsBox);
    contentLayout->addWidget(thresholdsBox);
    contentLayout->addStretch();
    auto* scroll = new QScrollArea;
    scroll->setWidgetResizable(true);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setWidget(content);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(scroll);

    showSettings();
    rebuildAlerts();
    rebuildThresholds();
    connect(&model_, &LedgerViewModel::ledgerChanged, this, [this] {
        rebuildAlerts();
        rebuildThresholds();
    });
    connect(&model_, &LedgerViewModel::alertSettingsChanged, this, [this] {
        showSettings();
        rebuildAlerts();
    });
}

void AlertsScreen::showSettings() {
    for (auto& [kind, box] : kinds_) {
        const QSignalBlocker quiet(box);
        box->setChecked(model_.alertSettings().isEnabled(kind));
    }
    const QSignalBlocker quiet(notifications_);
    notifications_->setChecked(model_.alertNotifications());
}

void AlertsScreen::rebuildAlerts() {
    while (QLayoutItem* item = alertsLayout_->takeAt(0)) {
        // Out of the tree at once, deleted later: the click that led here may come from inside it.
        if (QWidget* widget = item->widget()) {
            widget->hide();
            widget->setParent(nullptr);
            widget->deleteLater();
        }
        delete item;
    }
    const std::vector<SmartAlert>& alerts = model_.alerts();
    for (const SmartAlert& alert : alerts) {
        auto* card = new MovementsCard;
        card->setObjectName(QStringLiteral("alertCard"));
        card->setAccessibleName(QString::fromStdString(alert.title));
        card->setStripe([] { return currentPalette().expense; });
        auto* icon = new QLabel;
        icon->setPixmap(symbolIcon("bell").pixmap(22, 22));
        auto* heading = wrapped(QString::fromStdString(alert.title), QStringLiteral("alertTitle"));
        QFont bold = heading->font();
        bold.setBold(true);
        heading->setFont(bold);
        auto* message = wrapped(QString::fromStdString(alert.message), QStringLiteral("alertMessage"));
        auto* dismiss = new QPushButton(uiText("Nascondi"));
        dismiss->setObjectName(QStringLiteral("dismissAlertButton"));
        dismiss->setAccessibleName(uiText("Nascondi avviso: {titolo}", {{"titolo", alert.title}}));
        dismiss->setToolTip(uiText("Non segnalare più questa situazione"));
        const std::string id = alert.id;
        connect(dismiss, &QPushButton::clicked, this, [this, id] { dismissSmartAlert(model_, id); });
        auto* texts = new QVBoxLayout;
        texts->addWidget(heading);
        texts->addWidget(message);
        auto* row = new QHBoxLayout(card);
        row->addWidget(icon, 0, Qt::AlignTop);
        row->addLayout(texts, 1);
        row->addWidget(dismiss, 0, Qt::AlignVCenter);
        alertsLayout_->addWidget(card);
    }
    alertPages_->setCurrentIndex(alerts.empty() ? 0 : 1);
}

void AlertsScreen::rebuildThresholds() {
    // Rows are rebuilt only when the accounts change, so that an edit being typed keeps its focus.
    QString accounts;
    for (const Account& account : model_.ledger().accounts()) {
        accounts += QString::fromStdString(account.id + '\n' + account.name + '\n');
    }
    if (accounts == thresholdAccounts_) {
        for (QLineEdit* edit : findChildren<QLineEdit*>(QStringLiteral("thresholdEdit"))) {
            const Account* account = model_.ledger().account(edit->property("accountID").toString().toStdString());
            if (account && !edit->hasFocus()) edit->setText(thresholdText(account->lowBalanceThreshold));
        }
        return;
    }
    thresholdAccounts_ = accounts;
    while (thresholds_->rowCount() > 0) thresholds_->removeRow(0);
    for (const Account& account : model_.ledger().accounts()) {
        auto* edit = new QLineEdit(thresholdText(account.lowBalanceThreshold));
        edit->setObjectName(QStringLiteral("thresholdEdit"));
        edit->setProperty("accountID", QString::fromStdString(account.id));
        edit->setAccessibleName(uiText("Soglia di saldo basso di {conto}", {{"conto", account.name}}));
        edit->setPlaceholderText(uiText("Nessuna"));
        edit->setAlignment(Qt::AlignRight);
        edit->setMinimumWidth(140);
        const std::string id = account.id;
        connect(edit, &QLineEdit::editingFinished, this, [this, id, edit] { applyThreshold(id, edit); });
        auto* name = new QLabel(QString::fromStdString(account.name));
        name->setBuddy(edit);
        thresholds_->addRow(name, edit);
    }
}

void AlertsScreen::applyThreshold(const std::string& accountID, QLineEdit* edit) {
    std::optional<QString> failure;
    const QString text = edit->text().trimmed();
    if (text.isEmpty()) {
        failure = setLowBalanceThreshold(model_, accountID, std::nullopt);
    } else {
        const auto amount = typedAmount(text);
        if (const auto* message = std::get_if<QString>(&amount)) {
            failure = *message;
        } else {
            failure = setLowBalanceThreshold(model_, accountID, std::get<Decimal>(amount));
        }
    }
    QPalette palette = thresholdError_->palette();
    palette.setColor(QPalette::WindowText, currentPalette().expense);
    thresholdError_->setPalette(palette);
    thresholdError_->setText(failure.value_or(QString()));
    thresholdError_->setVisible(failure.has_value());
}

}  // namespace vantello::app
