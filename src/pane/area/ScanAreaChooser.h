// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CoreGraphics/CGGeometry.h"
#include "src/controls/ChoiceGrid.h"

#include <array>
#include <optional>
#include <vector>

class BumperController;
class NumberChangeTarget;

/// The wrangler's part for scan areas that aren't drawn. Small pictures offer ready ones: each
/// display, its halves, thirds and quarters, and the window used last. The others are entered as
/// numbers.
class ScanAreaChooser final : public ChoiceGridSource {
public:
    // Filled by the interface file; not owned.
    ChoiceGrid* scanAreaGrid = nullptr;
    BumperController* scanAreaLeft = nullptr;
    BumperController* scanAreaTop = nullptr;
    BumperController* scanAreaWidth = nullptr;
    BumperController* scanAreaHeight = nullptr;

    /// `changes` is told of every choice; not owned.
    explicit ScanAreaChooser(NumberChangeTarget& changes) : changes_(changes) {}

    ~ScanAreaChooser();

    void setup();

    /// Asks for the displays and shows the area.
    void load();
    /// Shows the area after a change.
    void update();

    int choiceCount() const override;
    std::string choiceName(int index) const override;
    bool isChosen(int index) const override;
    void drawChoice(int index, const Rect& bounds) const override;
    /// From then on scans only that area.
    void choose(int index) override;

private:
    int partCount() const;
    CGRect areaOf(int index) const;
    bool isWholeScreen(int index) const;
    void drawWindow(const Rect& bounds) const;
    void reloadGrid();
    void takeNumbers();

    NumberChangeTarget& changes_;
    std::vector<CGRect> displays_;       ///< in global coordinates, like the next
    std::optional<CGRect> lastWindow_;   ///< offered while known
    std::array<SInt32, 4> numbers_ = {}; ///< left, top, width and height in the bumpers
};
