// SPDX-License-Identifier: MIT
#include "agent/session/Overlay.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace {

constexpr double kDashPeriod = 24; ///< points, from one dash to the next
constexpr double kBandEdge = 2;    ///< points
constexpr double kRingEdge = 3;    ///< points
constexpr double kRingRoom = 2;    ///< points between the ring and what it shows
constexpr double kBandAlpha = 0.1; ///< so that what lies in it can be read

double alphaOf(double transparency) {
    return 1 - transparency / 100;
}

QRgb colorOf(const LineColor& color, double alpha) {
    const auto part = [](UInt16 value) { return std::min<int>(value, 255); };
    return qPremultiply(qRgba(part(color.red), part(color.green), part(color.blue),
                              static_cast<int>(std::lround(255 * alpha))));
}

/// A line of that thickness around a centre.
int startOf(double centre, int thickness) {
    return static_cast<int>(std::lround(centre - thickness / 2.0));
}

QRect pixelsOf(const Area& area) {
    return QRectF(area.left, area.top, area.width, area.height).toRect();
}

/// As much of the line's length as it would be opaque.
OverlayWindow::Outline dashes(double period, double alpha) {
    return [period, alpha](QSize size) {
        const bool isUpright = size.height() > size.width();
        const int length = std::max(size.width(), size.height());
        const auto dash = static_cast<int>(std::max(1L, std::lround(period * alpha)));
        std::vector<QRect> parts;
        for (double start = 0; start < length; start += period) {
            const auto at = static_cast<int>(std::lround(start));
            parts.push_back(isUpright ? QRect(0, at, size.width(), dash)
                                      : QRect(at, 0, dash, size.height()));
        }
        return parts;
    };
}

/// A window's edge, which lies around it.
OverlayWindow::Outline frame(int edge) {
    return [edge](QSize size) {
        const QRect inner(QPoint(0, 0), size);
        const QRect outer = inner.adjusted(-edge, -edge, edge, edge);
        return std::vector<QRect>{{outer.left(), outer.top(), outer.width(), edge},
                                  {outer.left(), inner.bottom() + 1, outer.width(), edge},
                                  {outer.left(), inner.top(), edge, inner.height()},
                                  {inner.right() + 1, inner.top(), edge, inner.height()}};
    };
}

} // namespace

Overlay::Overlay(OverlayWindows& windows) : windows_(windows) {
    for (auto* window : {&band_, &line_, &guide_, &cross_, &ring_, &pointer_})
        *window = windows_.make();
    windows_.onBlend([this] { redraw(); });
}

void Overlay::setLook(const PrefsRecord& record, double scale, const PointerImage& pointer) {
    record_ = record;
    scale_ = scale;
    picture_ = pointerPicture(pointer, scale);
    redraw();
}

int Overlay::pixels(double points) const {
    return std::max(1, static_cast<int>(std::lround(points * scale_)));
}

void Overlay::redraw() {
    const double lineAlpha = windows_.blend() ? alphaOf(record_.lineTransparency) : 1;
    line_->fill(colorOf(record_.lineColor, lineAlpha));
    drawGuides(alphaOf(record_.lineGhostTransparency));
    drawBand(lineAlpha);
    drawRing();
    drawPointer();
    show(shown_);
}

void Overlay::drawGuides(double alpha) {
    for (OverlayWindow* guide : {guide_.get(), cross_.get()}) {
        guide->fill(colorOf(record_.lineColor, windows_.blend() ? alpha : 1));
        guide->setOutline(windows_.blend() || alpha >= 1 ? OverlayWindow::Outline()
                                                         : dashes(kDashPeriod * scale_, alpha));
    }
}

void Overlay::drawBand(double alpha) {
    const int edge = pixels(kBandEdge);
    band_->fill(colorOf(record_.lineColor, kBandAlpha));
    band_->setEdge(edge, colorOf(record_.lineColor, alpha));
    band_->setOutline(windows_.blend() ? OverlayWindow::Outline() : frame(edge));
}

/// What is in it stays as it is.
void Overlay::drawRing() {
    const int edge = pixels(kRingEdge);
    ring_->setEdge(edge, colorOf(record_.lineColor, 1));
    ring_->setOutline(frame(edge));
}

void Overlay::drawPointer() {
    const QImage& image = picture_.image;
    if (windows_.blend()) {
        pointer_->paint(image);
        pointer_->setOutline({});
    } else {
        pointer_->paint(opaque(image));
        pointer_->setOutline([parts = opaqueParts(image)](QSize) { return parts; });
    }
}

const OverlayWindow* Overlay::show(const Picture& picture) {
    shown_ = picture;
    const QRect region = pixelsOf(picture.region.area);
    const int thickness = pixels(record_.lineThickness);
    const auto across = [&](double y) {
        return QRect(region.x(), startOf(y, thickness), region.width(), thickness);
    };
    const bool hasGuides = record_.lineGhostTransparency < 100;
    QRect pointer, ring, cross, guide, line, band;
    if (picture.line)
        line = across(*picture.line);
    if (picture.guide && hasGuides)
        guide = across(*picture.guide);
    if (picture.pointer && hasGuides)
        cross = {startOf(*picture.pointer, thickness), region.y(), thickness, region.height()};
    if (picture.pointer && picture.guide) {
        const QPoint place = QPointF(*picture.pointer, *picture.guide).toPoint();
        pointer = {place - picture_.hotSpot, picture_.image.size()};
    }
    const int room = pixels(kRingRoom) + pixels(kRingEdge);
    if (picture.target)
        ring = pixelsOf(*picture.target).adjusted(-room, -room, room, room);
    if (picture.band)
        band = pixelsOf(*picture.band);

    const OverlayWindow* above = nullptr;
    for (const auto& [window, place] : {std::pair(pointer_.get(), pointer),
                                        {ring_.get(), ring},
                                        {cross_.get(), cross},
                                        {guide_.get(), guide},
                                        {line_.get(), line},
                                        {band_.get(), band}})
        above = window->show(place, above);
    windows_.flush();
    return above;
}
