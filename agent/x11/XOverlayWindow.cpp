// SPDX-License-Identifier: MIT
#include "agent/x11/XOverlayWindow.h"

#include <xcb/shape.h>

#include <algorithm>
#include <cstring>
#include <utility>

namespace {

/// The first visual of 32 bits with 8 bits a colour where Qt's images have them. 0 for none.
xcb_visualid_t alphaVisual(const xcb_screen_t& screen) {
    for (auto depths = xcb_screen_allowed_depths_iterator(&screen); depths.rem > 0;
         xcb_depth_next(&depths)) {
        if (depths.data->depth != 32)
            continue;
        for (auto visuals = xcb_depth_visuals_iterator(depths.data); visuals.rem > 0;
             xcb_visualtype_next(&visuals))
            if (visuals.data->_class == XCB_VISUAL_CLASS_TRUE_COLOR &&
                visuals.data->red_mask == 0xff0000 && visuals.data->blue_mask == 0xff)
                return visuals.data->visual_id;
    }
    return 0;
}

/// Who it is, for the agent's own search for menus, and that it gets no shadow: compositors treat
/// it as a picture that is dragged.
void describe(XServer& server, xcb_window_t window) {
    xcb_connection_t* connection = server.connection();
    constexpr char kClass[] = "korvex-agent\0korvex-agent";
    xcb_change_property(connection, XCB_PROP_MODE_REPLACE, window, XCB_ATOM_WM_CLASS,
                        XCB_ATOM_STRING, 8, sizeof kClass, kClass);
    const xcb_atom_t type = server.atom("_NET_WM_WINDOW_TYPE_DND");
    xcb_change_property(connection, XCB_PROP_MODE_REPLACE, window,
                        server.atom("_NET_WM_WINDOW_TYPE"), XCB_ATOM_ATOM, 32, 1, &type);
    const std::uint32_t noShadow = 0; // picom's own way, whatever its settings say of the type
    xcb_change_property(connection, XCB_PROP_MODE_REPLACE, window, server.atom("_COMPTON_SHADOW"),
                        XCB_ATOM_CARDINAL, 32, 1, &noShadow);
}

} // namespace

OverlayVisual::OverlayVisual(XServer& server) {
    const xcb_screen_t& screen = server.screen();
    id = alphaVisual(screen);
    depth = id ? 32 : screen.root_depth;
    format = id            ? QImage::Format_ARGB32_Premultiplied
             : depth == 16 ? QImage::Format_RGB16
                           : QImage::Format_RGB32;
    if (!id)
        id = screen.root_visual;
    colormap = xcb_generate_id(server.connection());
    xcb_create_colormap(server.connection(), XCB_COLORMAP_ALLOC_NONE, colormap, screen.root, id);
}

std::uint32_t OverlayVisual::pixel(QRgb color) const {
    QImage image(1, 1, QImage::Format_ARGB32_Premultiplied);
    image.fill(color);
    image.convertTo(format);
    std::uint32_t pixel = 0;
    std::memcpy(&pixel, image.constBits(), static_cast<std::size_t>(image.depth() / 8));
    return pixel;
}

XOverlayWindow::XOverlayWindow(XServer& server, const OverlayVisual& visual)
    : server_(server), visual_(visual), window_(xcb_generate_id(server.connection())) {
    const std::uint32_t values[] = {0, 0, 1, visual.colormap};
    xcb_create_window(server.connection(), visual.depth, window_, server.root(), 0, 0, 1, 1, 0,
                      XCB_WINDOW_CLASS_INPUT_OUTPUT, visual.id,
                      XCB_CW_BACK_PIXEL | XCB_CW_BORDER_PIXEL | XCB_CW_OVERRIDE_REDIRECT |
                          XCB_CW_COLORMAP,
                      values);
    describe(server, window_);
    xcb_shape_rectangles(server.connection(), XCB_SHAPE_SO_SET, XCB_SHAPE_SK_INPUT,
                         XCB_CLIP_ORDERING_UNSORTED, window_, 0, 0, 0, nullptr);
}

XOverlayWindow::~XOverlayWindow() {
    xcb_destroy_window(server_.connection(), window_);
}

void XOverlayWindow::fill(QRgb color) {
    const std::uint32_t pixel = visual_.pixel(color);
    xcb_change_window_attributes(server_.connection(), window_, XCB_CW_BACK_PIXEL, &pixel);
    clear();
}

void XOverlayWindow::paint(const QImage& picture) {
    const QImage image = picture.convertToFormat(visual_.format);
    xcb_connection_t* connection = server_.connection();
    const auto width = static_cast<std::uint16_t>(image.width());
    const auto height = static_cast<std::uint16_t>(image.height());
    const xcb_pixmap_t pixmap = xcb_generate_id(connection);
    xcb_create_pixmap(connection, visual_.depth, pixmap, window_, width, height);
    const xcb_gcontext_t context = xcb_generate_id(connection);
    xcb_create_gc(connection, context, pixmap, 0, nullptr);
    // In strips that fit into the smallest request that a server takes.
    constexpr qsizetype kMostBytes = 200'000;
    const int strip = std::max(1, static_cast<int>(kMostBytes / image.bytesPerLine()));
    for (int y = 0; y < image.height(); y += strip) {
        const int rows = std::min(strip, image.height() - y);
        xcb_put_image(connection, XCB_IMAGE_FORMAT_Z_PIXMAP, pixmap, context, width,
                      static_cast<std::uint16_t>(rows), 0, static_cast<std::int16_t>(y), 0,
                      visual_.depth, static_cast<std::uint32_t>(rows * image.bytesPerLine()),
                      image.constScanLine(y));
    }
    xcb_free_gc(connection, context);
    xcb_change_window_attributes(connection, window_, XCB_CW_BACK_PIXMAP, &pixmap);
    xcb_free_pixmap(connection, pixmap); // the window keeps it
    clear();
}

void XOverlayWindow::setEdge(int width, QRgb color) {
    edge_ = width;
    const std::uint32_t pixel = visual_.pixel(color);
    const auto pixels = static_cast<std::uint32_t>(width);
    xcb_change_window_attributes(server_.connection(), window_, XCB_CW_BORDER_PIXEL, &pixel);
    xcb_configure_window(server_.connection(), window_, XCB_CONFIG_WINDOW_BORDER_WIDTH, &pixels);
}

void XOverlayWindow::setOutline(Outline outline) {
    outline_ = std::move(outline);
    shaped_.reset();
}

/// The server's handler outlives the window.
void XOverlayWindow::takeClicks(std::function<void(QPoint)> clicked) {
    clicked_ = std::make_shared<std::function<void(QPoint)>>(std::move(clicked));
    const std::uint32_t events = XCB_EVENT_MASK_BUTTON_PRESS;
    xcb_change_window_attributes(server_.connection(), window_, XCB_CW_EVENT_MASK, &events);
    xcb_shape_mask(server_.connection(), XCB_SHAPE_SO_SET, XCB_SHAPE_SK_INPUT, window_, 0, 0,
                   XCB_NONE);
    server_.onEvent(
        [window = window_, weak = std::weak_ptr(clicked_)](const xcb_generic_event_t& event) {
            const auto& press = reinterpret_cast<const xcb_button_press_event_t&>(event);
            const auto take = weak.lock();
            if (take && (event.response_type & 0x7f) == XCB_BUTTON_PRESS && press.event == window &&
                press.detail == XCB_BUTTON_INDEX_1)
                (*take)({press.event_x, press.event_y});
        });
}

const OverlayWindow* XOverlayWindow::show(const QRect& place, const OverlayWindow* above) {
    const QSize size = place.size() - QSize(2 * edge_, 2 * edge_);
    if (size.isEmpty()) {
        hide();
        return above;
    }
    if (shaped_ != size)
        shapeTo(size);
    std::uint32_t values[6] = {
        static_cast<std::uint32_t>(place.x()), static_cast<std::uint32_t>(place.y()),
        static_cast<std::uint32_t>(size.width()), static_cast<std::uint32_t>(size.height())};
    std::uint16_t mask = XCB_CONFIG_WINDOW_X | XCB_CONFIG_WINDOW_Y | XCB_CONFIG_WINDOW_WIDTH |
                         XCB_CONFIG_WINDOW_HEIGHT | XCB_CONFIG_WINDOW_STACK_MODE;
    if (!above) {
        values[4] = XCB_STACK_MODE_ABOVE;
    } else {
        mask |= XCB_CONFIG_WINDOW_SIBLING;
        values[4] = static_cast<const XOverlayWindow*>(above)->window_;
        values[5] = XCB_STACK_MODE_BELOW;
    }
    xcb_configure_window(server_.connection(), window_, mask, values);
    if (!std::exchange(isShown_, true))
        xcb_map_window(server_.connection(), window_);
    return this;
}

void XOverlayWindow::hide() {
    if (std::exchange(isShown_, false))
        xcb_unmap_window(server_.connection(), window_);
}

void XOverlayWindow::clear() {
    xcb_clear_area(server_.connection(), 0, window_, 0, 0, 0, 0);
}

void XOverlayWindow::shapeTo(QSize size) {
    shaped_ = size;
    if (!outline_) {
        xcb_shape_mask(server_.connection(), XCB_SHAPE_SO_SET, XCB_SHAPE_SK_BOUNDING, window_, 0, 0,
                       XCB_NONE);
        return;
    }
    std::vector<xcb_rectangle_t> parts;
    for (const QRect& part : outline_(size))
        parts.push_back({static_cast<std::int16_t>(part.x()), static_cast<std::int16_t>(part.y()),
                         static_cast<std::uint16_t>(part.width()),
                         static_cast<std::uint16_t>(part.height())});
    xcb_shape_rectangles(server_.connection(), XCB_SHAPE_SO_SET, XCB_SHAPE_SK_BOUNDING,
                         XCB_CLIP_ORDERING_UNSORTED, window_, 0, 0,
                         static_cast<std::uint32_t>(parts.size()), parts.data());
}

// All of them

XOverlayWindows::XOverlayWindows(XServer& server)
    : server_(server), visual_(server), compositor_(server, [this] {
          if (changed_)
              changed_();
      }) {}

std::unique_ptr<OverlayWindow> XOverlayWindows::make() {
    return std::make_unique<XOverlayWindow>(server_, visual_);
}

bool XOverlayWindows::blend() const {
    return compositor_.isRunning() && visual_.depth == 32;
}

void XOverlayWindows::onBlend(std::function<void()> changed) {
    changed_ = std::move(changed);
}

void XOverlayWindows::flush() {
    server_.flush();
}
