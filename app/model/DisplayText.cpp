#include "app/model/DisplayText.hpp"

#include "app/settings/Language.hpp"
#include "core/base/DecimalFormat.hpp"
#include "core/base/Localization.hpp"
#include "core/base/PeopleFormat.hpp"

#include <QDate>
#include <QLocale>

namespace vantello::app {

QString uiText(std::string_view italianKey) { return QString::fromStdString(L10n::tr(italianKey)); }

QString uiText(std::string_view italianKey,
               std::initializer_list<std::pair<std::string_view, std::string_view>> values) {
    return QString::fromStdString(L10n::tr(italianKey, values));
}

QString countedText(int count, std::string_view one, std::string_view many) {
    const std::string number = std::to_string(count);
    return uiText(count == 1 ? one : many, {{"count", number}});
}

QString euroText(const Decimal& amount) {
    return QString::fromStdString(PeopleFormat::euro(amount, interfaceLocaleName()));
}

QString typedAmountText(const Decimal& amount) {
    return QString::fromStdString(plainAmountText(amount, decimalSeparator(interfaceLocaleName())));
}

QString movementAmountText(const Decimal& amount, TransactionKind kind) {
    const QString magnitude = euroText(amount.magnitude());
    // A true minus sign, so that the digits of both kinds line up in a tabular font.
    return (kind == TransactionKind::income ? QStringLiteral("+") : QStringLiteral("\u2212")) + magnitude;
}

QString dayText(Instant moment, const Calendar& calendar) {
    return QString::fromStdString(PeopleFormat::shortDate(moment, calendar, interfaceLocaleName()));
}

QString monthTitle(Instant moment, const Calendar& calendar) {
    const CivilDate day = calendar.civilDate(moment);
    const QLocale locale(QString::fromStdString(interfaceLocaleName()));
    return locale.toString(QDate(day.year, day.month, 1), QStringLiteral("MMMM yyyy"));
}

}  // namespace vantello::app
