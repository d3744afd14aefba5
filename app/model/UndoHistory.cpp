#include "app/model/UndoHistory.hpp"

#include <utility>

namespace vantello::app {

void UndoHistory::recordChange(QString actionName, Ledger before) {
    if (undoSteps_.size() == limit) undoSteps_.erase(undoSteps_.begin());
    undoSteps_.push_back({std::move(actionName), std::move(before)});
    redoSteps_.clear();
}

std::optional<UndoHistory::Step> UndoHistory::undo(Ledger current) {
    if (undoSteps_.empty()) return std::nullopt;
    Step step = std::move(undoSteps_.back());
    undoSteps_.pop_back();
    redoSteps_.push_back({step.actionName, std::move(current)});
    return step;
}

std::optional<UndoHistory::Step> UndoHistory::redo(Ledger current) {
    if (redoSteps_.empty()) return std::nullopt;
    Step step = std::move(redoSteps_.back());
    redoSteps_.pop_back();
    undoSteps_.push_back({step.actionName, std::move(current)});
    return step;
}

QString UndoHistory::undoActionName() const { return undoSteps_.empty() ? QString() : undoSteps_.back().actionName; }

QString UndoHistory::redoActionName() const { return redoSteps_.empty() ? QString() : redoSteps_.back().actionName; }

void UndoHistory::clear() {
    undoSteps_.clear();
    redoSteps_.clear();
}

}  // namespace vantello::app
