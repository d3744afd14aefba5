#pragma once
// The base of every typed error whose message is shown to the user as it stands. Each area
// derives its own error with a code enumeration and fixed (localised) messages.

#include <exception>
#include <string>
#include <utility>

namespace vantello {

class UserError : public std::exception {
public:
    explicit UserError(std::string message) : message_(std::move(message)) {}
    [[nodiscard]] const char* what() const noexcept override { return message_.c_str(); }
    [[nodiscard]] const std::string& message() const { return message_; }

private:
    std::string message_;
};

// A coded error: `Code` is the area's enumeration of cases.
template <typename Code>
class CodedError : public UserError {
public:
    CodedError(Code code, std::string message) : UserError(std::move(message)), code_(code) {}
    [[nodiscard]] Code code() const { return code_; }

private:
    Code code_;
};

}  // namespace vantello
