// SPDX-License-Identifier: MIT
#pragma once

#include "src/prefpane/ChoiceGrid.h"
#include "src/ptrutil.h"

#include <vector>

class NSTextField;
class NumberChangeTarget;

/// The wrangler's part for the choice of a pointer: by stepping, or from a grid of all of them.
class PointerChooser final : public ChoiceGridSource {
public:
    NSTextField* pointerName = nullptr; ///< filled by the interface file, as is the next; not owned
    ChoiceGrid* pointerGrid = nullptr;

    /// `changes` hears of every choice; not owned.
    explicit PointerChooser(NumberChangeTarget& changes) : changes_(changes) {}

    void setup() { pointerGrid->setSource(this); }

    /// Reads the agent's pointers, and shows which is chosen.
    void load();

    /// Chooses the next pointer, or the previous one, and reports the change, also when it is the
    /// same one. Does nothing when the agent has no pointers.
    void bumpPointer(bool forward);
    /// Shows which pointer the preview draws.
    void updatePointerName();

    int choiceCount() const override { return static_cast<int>(pictures_.size()); }

    std::string choiceName(int index) const override;
    bool isChosen(int index) const override;
    void drawChoice(int index, const Rect& bounds) const override;
    void choose(int index) override;

private:
    void take(const std::string& name);

    NumberChangeTarget& changes_;
    std::vector<CFRef<CGImage>> pictures_; ///< in the order of the names; null for none that loads
};
