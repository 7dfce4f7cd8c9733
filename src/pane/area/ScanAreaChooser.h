// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CoreGraphics/CGGeometry.h"
#include "src/controls/ChoiceGrid.h"

#include <array>
#include <optional>
#include <vector>

class BumperController;
class NSMatrix;
class NSTextField;
class NumberChangeTarget;

/// The wrangler's part for the custom scan area, and whether only it is scanned. Small pictures
/// offer ready ones: each display, its halves, thirds and quarters, and the window used last. The
/// others are drawn on the screens, or entered as numbers.
class ScanAreaChooser final : public ChoiceGridSource {
public:
    // Filled by the interface file; not owned.
    NSMatrix* useScanAreaRadios = nullptr;
    NSTextField* scanAreaText = nullptr;
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

    // ScanAreaDrawing.cpp

    /// Shows whether only the area is scanned. One that is in use but empty is switched off, and
    /// that is reported.
    void updateRadios();
    /// Shows the area in words.
    void updateText();
    /// All three.
    void show();
    void changedUseScanArea(NSMatrix* sender);
    /// Lets the user draw an area and then scans only that. An empty area means the whole screen.
    void setCustomScanArea();

    // ScanAreaChooser.cpp: the pictures

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
    /// Opens the numbers' rows only where there is an area.
    void showNumberRows();

    NumberChangeTarget& changes_;
    std::vector<CGRect> displays_;       ///< in global coordinates, like the next
    std::optional<CGRect> lastWindow_;   ///< offered while known
    std::array<SInt32, 4> numbers_ = {}; ///< left, top, width and height in the bumpers
};
