// SPDX-License-Identifier: MIT
#include "agent/wayland/LayerWindow.h"

#include "agent/wayland/SharedImage.h"
#include "wlr-layer-shell-unstable-v1.h"

#include <QPainter>

#include <algorithm>
#include <limits>
#include <utility>

namespace {

constexpr int kAllOfTheScreen = -1; ///< exclusive zone: panels don't push it away

QRect rectOf(const Area& area) {
    return QRectF(area.left, area.top, area.width, area.height).toRect();
}

} // namespace

LayerWindow::LayerWindow(WaylandDisplay& display, std::vector<LayerWindow*>& siblings)
    : display_(display), siblings_(siblings) {
    siblings_.push_back(this);
    followScreens();
}

LayerWindow::~LayerWindow() {
    std::erase(siblings_, this);
    removeParts();
}

void LayerWindow::followScreens() {
    removeParts();
    for (const WaylandOutput* screen : display_.outputs())
        addPart(*screen);
}

void LayerWindow::addPart(const WaylandOutput& screen) {
    static constexpr zwlr_layer_surface_v1_listener kListener = {
        [](void* data, zwlr_layer_surface_v1*, std::uint32_t serial, std::uint32_t, std::uint32_t) {
            configured(*static_cast<Part*>(data), serial);
        },
        [](void*, zwlr_layer_surface_v1*) {}}; // its screen goes, and tells it itself
    auto part = std::make_unique<Part>(
        Part{this, &screen, wl_compositor_create_surface(display_.compositor()), nullptr});
    part->layer =
        zwlr_layer_shell_v1_get_layer_surface(display_.layers(), part->surface, screen.output,
                                              ZWLR_LAYER_SHELL_V1_LAYER_OVERLAY, "korvex");
    zwlr_layer_surface_v1_add_listener(part->layer, &kListener, part.get());
    zwlr_layer_surface_v1_set_anchor(part->layer, ZWLR_LAYER_SURFACE_V1_ANCHOR_TOP |
                                                      ZWLR_LAYER_SURFACE_V1_ANCHOR_LEFT);
    zwlr_layer_surface_v1_set_exclusive_zone(part->layer, kAllOfTheScreen);
    setInput(*part);
    parts_.push_back(std::move(part));
}

void LayerWindow::removeParts() {
    for (const auto& part : parts_) {
        if (part->leaving)
            wl_callback_destroy(part->leaving);
        zwlr_layer_surface_v1_destroy(part->layer);
        wl_surface_destroy(part->surface);
    }
    parts_.clear();
}

// Content ----------------------------------------------------------------------------------------

void LayerWindow::fill(QRgb color) {
    color_ = color;
    image_ = {};
    redraw();
}

void LayerWindow::paint(const QImage& image) {
    image_ = image;
    image_.setDevicePixelRatio(1);
    redraw();
}

void LayerWindow::setEdge(int width, QRgb color) {
    edge_ = width;
    edgeColor_ = color;
    redraw();
}

void LayerWindow::setOutline(Outline outline) {
    outline_ = std::move(outline);
    redraw();
}

/// As large as its place. Colours replace what is below them: they have their own alpha.
QImage LayerWindow::picture() const {
    QImage image(place_.size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(QColor::fromRgba(qUnpremultiply(edge_ > 0 ? edgeColor_ : color_)));
    const QRect inner = image.rect().adjusted(edge_, edge_, -edge_, -edge_);
    QPainter painter(&image);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    if (!image_.isNull())
        painter.drawImage(inner.topLeft(), image_);
    else if (edge_ > 0)
        painter.fillRect(inner, QColor::fromRgba(qUnpremultiply(color_)));
    if (!outline_)
        return image;
    QRegion hidden(image.rect());
    for (const QRect& part : outline_(inner.size()))
        hidden -= part.translated(edge_, edge_);
    for (const QRect& part : hidden)
        painter.fillRect(part, Qt::transparent);
    return image;
}

void LayerWindow::redraw() {
    for (const auto& part : parts_)
        draw(*part);
}

void LayerWindow::draw(const Part& part) {
    if (!part.isWanted || !part.isConfigured)
        return;
    wl_surface_attach(part.surface, shareImage(display_.memory(), picture()), 0, 0);
    damage(part);
}

/// All of it is painted anew where it is.
void LayerWindow::damage(const Part& part) {
    constexpr int kAll = std::numeric_limits<int>::max();
    wl_surface_damage_buffer(part.surface, 0, 0, kAll, kAll);
    wl_surface_commit(part.surface);
}

// Place ------------------------------------------------------------------------------------------

const OverlayWindow* LayerWindow::show(const QRect& place, const OverlayWindow* above) {
    place_ = place;
    if (place.isEmpty()) {
        hide();
        return above;
    }
    const auto most = std::ranges::max_element(parts_, {}, [&place](const auto& part) {
        const QSize size = rectOf(part->screen->area).intersected(place).size();
        return size.width() * size.height();
    });
    for (auto part = parts_.begin(); part != parts_.end(); ++part)
        if (part == most)
            this->place(**part);
        else
            hide(**part);
    return this;
}

/// One that wasn't seen gets an answer first, and its content then.
void LayerWindow::place(Part& part) {
    const bool wasWanted = std::exchange(part.isWanted, true);
    if (part.leaving)
        return;
    const QPoint corner = place_.topLeft() - rectOf(part.screen->area).topLeft();
    const bool isMoved = std::exchange(part.corner, corner) != corner;
    const bool isResized = std::exchange(part.size, place_.size()) != place_.size();
    if (wasWanted && !isMoved && !isResized)
        return;
    // sway 1.7 forgets to paint the place that it leaves on any screen but the first.
    if (part.isConfigured)
        damage(part);
    zwlr_layer_surface_v1_set_margin(part.layer, corner.y(), 0, 0, corner.x());
    zwlr_layer_surface_v1_set_size(part.layer, static_cast<std::uint32_t>(place_.width()),
                                   static_cast<std::uint32_t>(place_.height()));
    if (isResized)
        draw(part);
    wl_surface_commit(part.surface);
}

void LayerWindow::hide() {
    for (const auto& part : parts_)
        hide(*part);
}

/// Without a content it isn't there, and has to be configured anew.
void LayerWindow::hide(Part& part) {
    if (!std::exchange(part.isWanted, false))
        return;
    part.isConfigured = false;
    part.size = {};
    if (part.leaving)
        return;
    static constexpr wl_callback_listener kLeft = {
        [](void* data, wl_callback*, std::uint32_t) { hasLeft(*static_cast<Part*>(data)); }};
    wl_surface_attach(part.surface, nullptr, 0, 0);
    wl_surface_commit(part.surface);
    part.leaving = display_.sync();
    wl_callback_add_listener(part.leaving, &kLeft, &part);
}

void LayerWindow::hasLeft(Part& part) {
    wl_callback_destroy(std::exchange(part.leaving, nullptr));
    if (!std::exchange(part.isWanted, false))
        return;
    part.window->place(part);
}

void LayerWindow::configured(Part& part, std::uint32_t serial) {
    if (part.leaving || !part.isWanted)
        return;
    zwlr_layer_surface_v1_ack_configure(part.layer, serial);
    if (!std::exchange(part.isConfigured, true)) // sway says it again for each move
        part.window->draw(part);
}

// Clicks -----------------------------------------------------------------------------------------

void LayerWindow::takeClicks(std::function<void(QPoint)> clicked) {
    clicked_ = std::move(clicked);
    for (const auto& part : parts_)
        setInput(*part);
}

void LayerWindow::setInput(const Part& part) const {
    wl_region* const none = wl_compositor_create_region(display_.compositor());
    wl_surface_set_input_region(part.surface, clicked_ ? nullptr : none);
    wl_region_destroy(none);
}

void LayerWindow::click(const wl_surface* surface, QPoint place) const {
    const bool isOurs = std::ranges::any_of(
        parts_, [surface](const auto& part) { return part->surface == surface; });
    if (isOurs && clicked_)
        clicked_(place);
}
