#include "core/ledger/Loan.hpp"

#include "core/base/JsonFields.hpp"

#include <tuple>

namespace vantello {

const auto loanFields = std::tuple{
    JsonFields::required("id", &Loan::id),
    JsonFields::required("name", &Loan::name),
    JsonFields::required("principal", &Loan::principal),
    JsonFields::required("annualRate", &Loan::annualRate),
    JsonFields::required("months", &Loan::months),
    JsonFields::required("firstPayment", &Loan::firstPayment),
    JsonFields::required("accountID", &Loan::accountID),
    JsonFields::required("categoryID", &Loan::categoryID),
    JsonFields::optional("recurringRuleID", &Loan::recurringRuleID),
};

void to_json(Json& json, const Loan& loan) { JsonFields::write(json, loan, loanFields); }

void from_json(const Json& json, Loan& loan) { JsonFields::read(json, loan, loanFields); }

}  // namespace vantello
