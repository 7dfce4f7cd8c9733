// SPDX-License-Identifier: MIT
#include "agent/Palette.h"

#include "src/record/palactions.h"

namespace {

constexpr double kTextGap = 6; ///< points, between palette and text
constexpr Area kAnyArea{0, 0, 1000, 1000};

QRect pixelsOf(const Area& area) {
    return QRectF(area.left, area.top, area.width, area.height).toRect();
}

} // namespace

Palette::Palette(OverlayWindows& windows, const Actions& actions)
    : windows_(windows), actions_(actions), window_(windows.make()), textWindow_(windows.make()) {}

void Palette::use(const PrefsRecord& record) {
    record_ = record;
    drawn_.reset();
    palettePicture(widget_, record, PalettePlace(record, {kAnyArea}), {}); // reads titles and icons
}

std::optional<UInt8> Palette::actionAt(const Region& region, Place place) const {
    const PalettePlace palette(record_, region);
    if (!palette.frame.contains(place))
        return std::nullopt;
    const auto slot = palette.slotAt(place);
    return slot ? record_.buttonActions[*slot] : kEmptyAction;
}

void Palette::show(const Region& region, std::optional<Place> pointer, const std::string& text,
                   const OverlayWindow* above) {
    const PalettePlace palette(record_, region);
    Drawn wanted{region, {}, widget_.palette().cacheKey()};
    for (std::size_t slot = 0; slot < kNumPaletteSlots; ++slot)
        wanted.state.isOn[slot] = actions_.isOn(record_.buttonActions[slot]);
    if (pointer)
        wanted.state.marked = palette.slotAt(*pointer);
    if (drawn_ != wanted)
        draw(palette, wanted);
    above = textWindow_->show(place(text, palette, region.area), above);
    window_->show(pixelsOf(palette.frame), above);
    windows_.flush();
}

void Palette::hide() {
    window_->hide();
    textWindow_->hide();
    text_.clear();
    windows_.flush();
}

void Palette::draw(const PalettePlace& place, const Drawn& wanted) {
    drawn_ = wanted;
    const QImage image = palettePicture(widget_, record_, place, wanted.state);
    if (!image.isNull())
        window_->paint(image);
}

/// Right of the palette; below it if there is no room. Nowhere without a text.
QRect Palette::place(const std::string& text, const PalettePlace& palette, const Area& region) {
    if (text.empty()) {
        text_.clear();
        return {};
    }
    if (text_ != text) {
        const QImage image = textPicture(widget_, text, palette.scale, region.width);
        textWindow_->paint(image);
        textSize_ = image.size();
        text_ = text;
    }
    const double gap = kTextGap * palette.scale;
    const Area& frame = palette.frame;
    Place corner{frame.right() + gap, frame.middle().y - textSize_.height() / 2.0};
    if (corner.x + textSize_.width() > region.right())
        corner = {frame.left, frame.bottom() + gap};
    return {QPointF(corner.x, corner.y).toPoint(), textSize_};
}
