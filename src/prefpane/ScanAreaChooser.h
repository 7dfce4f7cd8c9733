// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CoreGraphics/CGGeometry.h"
#include "src/prefpane/ChoiceGrid.h"

#include <array>
#include <optional>
#include <vector>

class BumperController;
class NumberChangeTarget;

/// The wrangler's part for scan areas that aren't drawn: ready ones as small pictures, each display
/// as a whole and its halves, thirds and quarters and the window used last; and numbers.
class ScanAreaChooser final : public ChoiceGridSource {
public:
    // Filled by the interface file; not owned.
    ChoiceGrid* scanAreaGrid = nullptr;
    BumperController* scanAreaLeft = nullptr;
    BumperController* scanAreaTop = nullptr;
    BumperController* scanAreaWidth = nullptr;
    BumperController* scanAreaHeight = nullptr;

    /// `changes` hears of every choice; not owned.
    explicit ScanAreaChooser(NumberChangeTarget& changes) : changes_(changes) {}

    ~ScanAreaChooser();

    void setup();

    /// Asks for the displays, and shows the area.
    void load();
    /// Shows another area.
    void update();

    int choiceCount() const override;
    std::string choiceName(int index) const override;
    bool isChosen(int index) const override;
    void drawChoice(int index, const Rect& bounds) const override;
    /// Scans only that area from then on.
    void choose(int index) override;

private:
    int partCount() const;
    CGRect areaOf(int index) const;
    void drawWindow(const Rect& bounds) const;
    void reloadGrid();
    void takeNumbers();

    NumberChangeTarget& changes_;
    std::vector<CGRect> displays_;       ///< in global coordinates, as the next
    std::optional<CGRect> lastWindow_;   ///< offered while it is known
    std::array<SInt32, 4> numbers_ = {}; ///< left, top, width, height, as the bumpers show them
};
