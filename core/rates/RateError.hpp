#pragma once
// Why the reference rates could not be had. The movement editor shows one fixed text whatever
// the cause (rateUnavailableMessage); the cases and their messages serve the command line.

#include "core/base/UserError.hpp"

#include <string>

namespace vantello {

enum class RateErrorCode {
    unreachable,  // no connection, a failed transfer, a refused address
    timedOut,
    httpStatus,   // the server answered with a status other than 2xx
    noRates,      // the answer holds no rate at all (not the feed, or an empty one)
};

class RateError : public CodedError<RateErrorCode> {
public:
    using Code = RateErrorCode;
    // `status` fills the message of httpStatus; `detail` is the transfer library's own
    // (English) description, kept for diagnosis and never shown in the editor.
    explicit RateError(Code code, long status = 0, std::string detail = {});

    [[nodiscard]] long status() const { return status_; }
    [[nodiscard]] const std::string& detail() const { return detail_; }

private:
    long status_;
    std::string detail_;
};

// "Cambio non disponibile: …", the editor's text when no rate can be had for a movement.
[[nodiscard]] std::string rateUnavailableMessage();

}  // namespace vantello
