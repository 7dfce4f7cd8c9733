// SPDX-License-Identifier: MIT
#pragma once

#include "src/controls/ChoiceGrid.h"

class NSColorWell;
class NumberChangeTarget;

/// The wrangler's part for the lines' colour: a well for any colour, and a grid of twelve.
class LineColorChooser final : public ChoiceGridSource {
public:
    NSColorWell* lineColor = nullptr; ///< filled by the interface file, as is the next; not owned
    ChoiceGrid* lineColorGrid = nullptr;

    /// `changes` hears of every choice; not owned.
    explicit LineColorChooser(NumberChangeTarget& changes) : changes_(changes) {}

    void setup() { lineColorGrid->setSource(this); }

    /// Shows the record's colour.
    void load();
    /// Takes the well's colour.
    void changedLineColor();

    int choiceCount() const override;
    std::string choiceName(int index) const override;
    bool isChosen(int index) const override;
    void drawChoice(int index, const Rect& bounds) const override;
    void choose(int index) override;

private:
    NumberChangeTarget& changes_;
};
