// SPDX-License-Identifier: MIT
#include "platform/HIToolbox/detail/OverlayWindow.h"

#include "platform/CoreFoundation/detail/TextEncoding.h"
#include "platform/CoreGraphics/CGGeometry.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QScreen>

#include <optional>

namespace {

/// The Mac OS Roman character of a key. None when it has none.
std::optional<char> characterOf(const QKeyEvent& event) {
    static constexpr struct {
        int key;
        char character;
    } kTable[] = {
        {Qt::Key_Enter, kEnterCharCode},      {Qt::Key_Return, kReturnCharCode},
        {Qt::Key_Escape, kEscapeCharCode},    {Qt::Key_Left, kLeftArrowCharCode},
        {Qt::Key_Right, kRightArrowCharCode}, {Qt::Key_Up, kUpArrowCharCode},
        {Qt::Key_Down, kDownArrowCharCode},
    };

    for (const auto& row : kTable)
        if (row.key == event.key())
            return row.character;
    const auto bytes = encodeText(event.text().toStdU16String(), kCFStringEncodingMacRoman);
    return bytes && bytes->size() == 1 ? std::optional(bytes->front()) : std::nullopt;
}

} // namespace

/// Passes the window its events.
class OverlayWidget final : public QWidget {
public:
    OverlayWidget() {
        setWindowFlags(Qt::X11BypassWindowManagerHint | Qt::FramelessWindowHint |
                       Qt::WindowStaysOnTopHint);
        setAttribute(Qt::WA_TranslucentBackground);
        setAttribute(Qt::WA_OpaquePaintEvent); // the port clears what it draws on
        setWindowModality(Qt::ApplicationModal);
    }

    OverlayWindow* window = nullptr; ///< null once the window is gone

protected:
    bool event(QEvent* event) override {
        // Shortcuts belong to the other windows.
        if (event->type() == QEvent::ShortcutOverride)
            event->accept();
        return QWidget::event(event);
    }

    void paintEvent(QPaintEvent*) override {
        if (!window)
            return;
        QPainter painter(this);
        window->port_.setPaintEventPainter(&painter);
        window->send({kEventClassWindow, kEventWindowDrawContent});
        if (window)
            window->port_.setPaintEventPainter(nullptr);
    }

    void mousePressEvent(QMouseEvent* event) override { sendMouse(kEventMouseDown, *event); }

    void mouseDoubleClickEvent(QMouseEvent* event) override { sendMouse(kEventMouseDown, *event); }

    void mouseMoveEvent(QMouseEvent* event) override { sendMouse(kEventMouseDragged, *event); }

    void mouseReleaseEvent(QMouseEvent* event) override { sendMouse(kEventMouseUp, *event); }

    void keyPressEvent(QKeyEvent* event) override {
        if (!window)
            return;
        EventRecord key(kEventClassKeyboard,
                        event->isAutoRepeat() ? kEventRawKeyRepeat : kEventRawKeyDown);
        if (const auto character = characterOf(*event))
            key.with(kEventParamKeyMacCharCodes, typeChar, *character);
        window->send(std::move(key));
    }

private:
    void sendMouse(UInt32 kind, const QMouseEvent& event) {
        if (!window)
            return;
        const QPointF place =
            event.position() / window->port_.unitsAPoint() + window->bounds().topLeft();
        EventRecord mouse(kEventClassMouse, kind);
        mouse.with(kEventParamMouseLocation, typeHIPoint,
                   CGPoint{static_cast<CGFloat>(place.x()), static_cast<CGFloat>(place.y())});
        window->send(std::move(mouse));
    }
};

OverlayWindow::OverlayWindow() : CarbonWindow(std::make_unique<OverlayWidget>()), port_(widget()) {
    static_cast<OverlayWidget&>(widget()).window = this;
    followDisplays();
}

OverlayWindow::~OverlayWindow() {
    static_cast<OverlayWidget&>(widget()).window = nullptr;
    widget().hide();
    // Not every window manager then gives some window the focus.
    if (focusedBefore_ && focusedBefore_->isVisible())
        focusedBefore_->requestActivate();
}

bool OverlayWindow::isSupported() {
    const QString platform = QGuiApplication::platformName();
    return platform == QLatin1String("xcb") || platform == QLatin1String("offscreen");
}

void OverlayWindow::show() {
    if (!isDesktopComposited())
        takeDesktopPicture();
    focusedBefore_ = QGuiApplication::focusWindow();
    CarbonWindow::show();
    widget().raise(); // windows may have come in front since it was made
}

void OverlayWindow::followDisplays() {
    displaysChanged_.setSingleShot(true); // once all of a change has arrived
    displaysChanged_.setInterval(0);
    QObject::connect(&displaysChanged_, &QTimer::timeout, &displaysChanged_, [this] {
        if (!desktop_.image().isNull())
            takeDesktopPicture();
        send({kEventClassWindow, kEventWindowBoundsChanged});
    });
    const auto start = [this] { displaysChanged_.start(); };
    const auto follow = [this, start](QScreen* screen) {
        QObject::connect(screen, &QScreen::geometryChanged, &displaysChanged_, start);
    };
    for (QScreen* screen : QGuiApplication::screens())
        follow(screen);
    QObject::connect(qGuiApp, &QGuiApplication::screenAdded, &displaysChanged_, follow);
    for (const auto signal : {&QGuiApplication::screenAdded, &QGuiApplication::screenRemoved,
                              &QGuiApplication::primaryScreenChanged})
        QObject::connect(qGuiApp, signal, &displaysChanged_, start);
}

void OverlayWindow::takeDesktopPicture() {
    desktop_.take();
    QImage backdrop = desktop_.image();
    backdrop.setDevicePixelRatio(widget().devicePixelRatioF());
    port_.setBackdrop(std::move(backdrop));
}

OSStatus CreateNewWindow(WindowClass windowClass, WindowAttributes, const Rect* contentBounds,
                         WindowRef* window) {
    if (windowClass != kOverlayWindowClass || !OverlayWindow::isSupported())
        return errWindowClassNotSupported;
    *window = new OverlayWindow;
    (*window)->setBounds(toQRect(*contentBounds));
    return noErr;
}
