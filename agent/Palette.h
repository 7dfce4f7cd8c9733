// SPDX-License-Identifier: MIT
#pragma once

#include "agent/PalettePicture.h"
#include "agent/scan/Actions.h"
#include "agent/session/OverlayWindow.h"

/// The palette on the screen, as the pane's preview has it, and a line of text beside it. Both are
/// windows that take no clicks: what was chosen on the palette is looked up. Needs a QApplication,
/// whose style, colours and font it has, and palutilUseBundle for titles and icons.
class Palette {
public:
    /// Both must outlive it. `actions` says which buttons look pressed.
    Palette(OverlayWindows& windows, const Actions& actions);

    /// The buttons and the look of a checked record, from the next `show` on. What they need is
    /// read now, so that the first one is as quick as the others.
    void use(const PrefsRecord& record);

    /// The action of the button that lies there while that region is scanned. kEmptyAction on the
    /// palette where no button is, and none beside it.
    std::optional<UInt8> actionAt(const Region& region, Place place) const;

    /// Shows it for the region, or nothing if it has no buttons, and marks the button under the
    /// pointer's hot spot. An empty text isn't shown. Directly below that window, or on top of all
    /// for null.
    void show(const Region& region, std::optional<Place> pointer, const std::string& text,
              const OverlayWindow* above);
    void hide();

private:
    /// What its picture was made of, besides the record.
    struct Drawn {
        Region region;
        PaletteState state;
        qint64 colors = 0;

        bool operator==(const Drawn&) const = default;
    };

    void draw(const PalettePlace& place, const Drawn& wanted);
    QRect place(const std::string& text, const PalettePlace& palette, const Area& region);

    OverlayWindows& windows_;
    const Actions& actions_;
    std::unique_ptr<OverlayWindow> window_, textWindow_;
    QWidget widget_; ///< gives style, colours and font
    PrefsRecord record_;
    std::optional<Drawn> drawn_;
    std::string text_; ///< that was drawn last
    QSize textSize_;   ///< in pixels
};
