// SPDX-License-Identifier: MIT
#include "src/scan/palettelayout.h"

namespace {

constexpr int kFrame = 1;

/// How many slots there are up to the last action.
int shownSlots(const PrefsRecord& record) {
    int count = kNumPaletteSlots;
    while (count > 0 && record.buttonActions[count - 1] == 0)
        --count;
    return count;
}

int widthOf(const PrefsRecord& record, int columns) {
    return 2 * (record.borderGap + kFrame) + record.buttonGap * (columns + 1) +
           record.buttonSize.width * columns;
}

int heightOf(const PrefsRecord& record, int rows) {
    return 2 * (record.borderGap + kFrame) + record.buttonGap * (rows - 1) +
           record.buttonSize.height * rows;
}

} // namespace

PaletteLayout paletteLayout(const PrefsRecord& record, double regionWidth) {
    PaletteLayout layout;
    const int count = shownSlots(record);
    if (count == 0)
        return layout;
    int rows = 1, columns = count;
    while (columns > 1 && widthOf(record, columns) > regionWidth / 2) {
        ++rows;
        columns = (count + rows - 1) / rows;
    }
    rows = (count + columns - 1) / columns;
    layout.width = widthOf(record, columns);
    layout.height = heightOf(record, rows);
    for (int slot = 0; slot < count; ++slot) {
        const int row = slot / columns, column = slot % columns;
        layout.buttons[static_cast<std::size_t>(slot)] = {
            kFrame + record.borderGap + record.buttonGap +
                column * (record.buttonSize.width + record.buttonGap),
            kFrame + record.borderGap + row * (record.buttonSize.height + record.buttonGap),
            record.buttonSize.width, record.buttonSize.height};
    }
    return layout;
}
