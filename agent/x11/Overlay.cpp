// SPDX-License-Identifier: MIT
#include "agent/x11/Overlay.h"

#include "agent/x11/Compositor.h"
#include "agent/x11/OverlayWindow.h"
#include "agent/x11/PointerPicture.h"

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
        const auto dash = static_cast<std::uint16_t>(std::max(1L, std::lround(period * alpha)));
        std::vector<xcb_rectangle_t> parts;
        for (double start = 0; start < length; start += period) {
            const auto at = static_cast<std::int16_t>(std::lround(start));
            parts.push_back(
                isUpright
                    ? xcb_rectangle_t{0, at, static_cast<std::uint16_t>(size.width()), dash}
                    : xcb_rectangle_t{at, 0, dash, static_cast<std::uint16_t>(size.height())});
        }
        return parts;
    };
}

/// A window's edge, which lies around it.
OverlayWindow::Outline frame(int edge) {
    return [edge](QSize size) {
        const QRect inner(QPoint(0, 0), size);
        const QRect outer = inner.adjusted(-edge, -edge, edge, edge);
        const QRect sides[] = {{outer.left(), outer.top(), outer.width(), edge},
                               {outer.left(), inner.bottom() + 1, outer.width(), edge},
                               {outer.left(), inner.top(), edge, inner.height()},
                               {inner.right() + 1, inner.top(), edge, inner.height()}};
        std::vector<xcb_rectangle_t> parts;
        for (const QRect& side : sides)
            parts.push_back({static_cast<std::int16_t>(side.x()),
                             static_cast<std::int16_t>(side.y()),
                             static_cast<std::uint16_t>(side.width()),
                             static_cast<std::uint16_t>(side.height())});
        return parts;
    };
}

} // namespace

class Overlay::Windows {
public:
    explicit Windows(XServer& server)
        : server_(server), visual_(server), compositor_(server, [this] { redraw(); }) {}

    void setLook(const PrefsRecord& record, double scale, const PointerImage& pointer) {
        record_ = record;
        scale_ = scale;
        picture_ = pointerPicture(pointer, scale);
        redraw();
    }

    xcb_window_t show(const Picture& picture) {
        shown_ = picture;
        const xcb_window_t lowest = place(picture);
        server_.flush();
        return lowest;
    }

private:
    void redraw();
    void drawGuides(double alpha);
    void drawBand(double alpha);
    void drawRing();
    void drawPointer();
    xcb_window_t place(const Picture& picture);

    bool blends() const { return compositor_.isRunning() && visual_.depth == 32; }

    int pixels(double points) const {
        return std::max(1, static_cast<int>(std::lround(points * scale_)));
    }

    XServer& server_;
    const OverlayVisual visual_;
    Compositor compositor_;
    PrefsRecord record_;
    double scale_ = 1;
    PointerPicture picture_ = pointerPicture({}, 1);
    Picture shown_;
    // From the topmost to the lowest. The guide is the stopped line; the cross goes with the
    // pointer.
    OverlayWindow pointer_{server_, visual_}, ring_{server_, visual_}, cross_{server_, visual_},
        guide_{server_, visual_}, line_{server_, visual_}, band_{server_, visual_};
};

void Overlay::Windows::redraw() {
    const double lineAlpha = blends() ? alphaOf(record_.lineTransparency) : 1;
    line_.fill(colorOf(record_.lineColor, lineAlpha));
    drawGuides(alphaOf(record_.lineGhostTransparency));
    drawBand(lineAlpha);
    drawRing();
    drawPointer();
    show(shown_);
}

void Overlay::Windows::drawGuides(double alpha) {
    for (OverlayWindow* guide : {&guide_, &cross_}) {
        guide->fill(colorOf(record_.lineColor, blends() ? alpha : 1));
        guide->setOutline(blends() || alpha >= 1 ? OverlayWindow::Outline()
                                                 : dashes(kDashPeriod * scale_, alpha));
    }
}

void Overlay::Windows::drawBand(double alpha) {
    const int edge = pixels(kBandEdge);
    band_.fill(colorOf(record_.lineColor, kBandAlpha));
    band_.setEdge(edge, colorOf(record_.lineColor, alpha));
    band_.setOutline(blends() ? OverlayWindow::Outline() : frame(edge));
}

/// What is in it stays as it is.
void Overlay::Windows::drawRing() {
    const int edge = pixels(kRingEdge);
    ring_.setEdge(edge, colorOf(record_.lineColor, 1));
    ring_.setOutline(frame(edge));
}

void Overlay::Windows::drawPointer() {
    const QImage& image = picture_.image;
    if (blends()) {
        pointer_.paint(image.convertToFormat(visual_.format));
        pointer_.setOutline({});
    } else {
        pointer_.paint(opaque(image).convertToFormat(visual_.format));
        pointer_.setOutline([parts = opaqueParts(image)](QSize) { return parts; });
    }
}

xcb_window_t Overlay::Windows::place(const Picture& picture) {
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

    xcb_window_t above = XCB_NONE;
    above = pointer_.show(pointer, above);
    above = ring_.show(ring, above);
    above = cross_.show(cross, above);
    above = guide_.show(guide, above);
    above = line_.show(line, above);
    return band_.show(band, above);
}

Overlay::Overlay(XServer& server) : windows_(std::make_unique<Windows>(server)) {}

Overlay::~Overlay() = default;

void Overlay::setLook(const PrefsRecord& record, double scale, const PointerImage& pointer) {
    windows_->setLook(record, scale, pointer);
}

xcb_window_t Overlay::show(const Picture& picture) {
    return windows_->show(picture);
}

void Overlay::hide() {
    windows_->show({});
}
