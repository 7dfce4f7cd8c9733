// SPDX-License-Identifier: MIT
#pragma once

#include "src/controls/ChoiceGrid.h"
#include "src/files/ptrutil.h"

#include <vector>

class NSTextField;
class NumberChangeTarget;

/// The wrangler's part for choosing a pointer: by stepping, or from a grid of all.
class PointerChooser final : public ChoiceGridSource {
public:
    NSTextField* pointerName = nullptr; ///< filled by the interface file, like the next; not owned
    ChoiceGrid* pointerGrid = nullptr;

    /// `changes` hears of every choice; not owned.
    explicit PointerChooser(NumberChangeTarget& changes) : changes_(changes) {}

    void setup() { pointerGrid->setSource(this); }

    /// Reads the agent's pointers and shows the chosen one.
    void load();

    /// Each reports the change, even if it is the same pointer, and does nothing when the agent has
    /// no pointers.
    void previousPointer() { bumpPointer(false); }

    void nextPointer() { bumpPointer(true); }

    /// Shows the name of the pointer in the preview.
    void updatePointerName();

    int choiceCount() const override { return static_cast<int>(pointers_.size()); }

    std::string choiceName(int index) const override;
    bool isChosen(int index) const override;
    void drawChoice(int index, const Rect& bounds) const override;
    void choose(int index) override;

private:
    struct Pointer {
        std::string name;
        CFRef<CGImage> picture; ///< null if it can't be loaded
    };

    const Pointer& at(int index) const { return pointers_[static_cast<std::size_t>(index)]; }

    void bumpPointer(bool forward);
    void take(const std::string& name);

    NumberChangeTarget& changes_;
    std::vector<Pointer> pointers_; ///< as they were loaded; the grid also shows between visits
};
