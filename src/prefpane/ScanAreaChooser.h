// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CoreGraphics/CGGeometry.h"
#include "src/prefpane/ChoiceGrid.h"

#include <vector>

class NumberChangeTarget;

/// The wrangler's part for ready-made scan areas: each display as a whole and its halves, thirds
/// and quarters, as small pictures.
class ScanAreaChooser final : public ChoiceGridSource {
public:
    ChoiceGrid* scanAreaGrid = nullptr; ///< filled by the interface file; not owned

    /// `changes` hears of every choice; not owned.
    explicit ScanAreaChooser(NumberChangeTarget& changes) : changes_(changes) {}

    void setup() { scanAreaGrid->setSource(this); }

    /// Asks for the displays, and shows which area is chosen.
    void load();

    int choiceCount() const override;
    std::string choiceName(int index) const override;
    bool isChosen(int index) const override;
    void drawChoice(int index, const Rect& bounds) const override;
    /// Scans only that area from then on.
    void choose(int index) override;

private:
    CGRect areaOf(int index) const;

    NumberChangeTarget& changes_;
    std::vector<CGRect> displays_; ///< in global coordinates
};
