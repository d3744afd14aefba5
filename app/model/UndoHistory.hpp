#pragma once
// The ledgers before each change, for undo, and those undone, for redo. A ledger is a value
// whose movements are shared between copies, so keeping a hundred of them costs little more
// than the movements that changed.

#include "core/ledger/Ledger.hpp"

#include <QString>

#include <cstddef>
#include <optional>
#include <vector>

namespace vantello::app {

class UndoHistory {
public:
    struct Step {
        QString actionName;  // "Elimina movimento"
        Ledger ledger;       // the ledger to go back (or forward) to
    };

    static constexpr std::size_t limit = 100;

    // A change named `actionName` was made to `before`: it can be undone, and nothing undone
    // can be redone any more.
    void recordChange(QString actionName, Ledger before);

    // The step to take back, after which `current` can be redone; nothing when there is none.
    [[nodiscard]] std::optional<Step> undo(Ledger current);
    // The step undone last, after which `current` can be undone again.
    [[nodiscard]] std::optional<Step> redo(Ledger current);

    [[nodiscard]] bool canUndo() const { return !undoSteps_.empty(); }
    [[nodiscard]] bool canRedo() const { return !redoSteps_.empty(); }
    // The names of the actions undo and redo would take back; empty when there is none.
    [[nodiscard]] QString undoActionName() const;
    [[nodiscard]] QString redoActionName() const;

    void clear();

private:
    std::vector<Step> undoSteps_;
    std::vector<Step> redoSteps_;
};

}  // namespace vantello::app
