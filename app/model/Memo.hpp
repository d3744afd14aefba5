#pragma once
// A value worked out from some inputs and kept until they change.

#include <optional>
#include <utility>

namespace vantello::app {

template <typename Value, typename Inputs>
struct Memo {
    std::optional<Inputs> inputs;
    Value value;

    // The kept value when `current` are the inputs it was worked out for; otherwise `compute`'s.
    template <typename Compute>
    const Value& get(Inputs current, Compute&& compute) {
        if (inputs != current) {
            value = std::forward<Compute>(compute)();
            inputs = std::move(current);
        }
        return value;
    }
    // Keeps `worked` as the value for `current` unless one is already kept for them.
    void offer(const Inputs& current, Value& worked) {
        if (inputs == current) return;
        value = std::move(worked);
        inputs = current;
    }
};

}  // namespace vantello::app
