// SPDX-License-Identifier: MIT
#include "platform/HIToolbox/detail/CarbonWindow.h"

#include "platform/CoreGraphics/detail/DisplayPlaces.h"

#include <QGuiApplication>
#include <QWindow>

namespace {

constexpr int kTryIntervalMs = 50;
constexpr int kMostTries = 100;

} // namespace

CarbonWindow::CarbonWindow(std::unique_ptr<QWidget> widget) : widget_(std::move(widget)) {
    QObject::connect(&tryAgain_, &QTimer::timeout, &tryAgain_, [this] { tryToTakeKeyboard(); });
}

CarbonWindow::~CarbonWindow() {
    endModal(noErr);
    if (areWindowsLeft)
        leaveWidget();
    if (!widget_)
        return;
    widget_->hide();
    widget_.release()->deleteLater();
}

void CarbonWindow::show() {
    widget_->show();
    send({kEventClassWindow, kEventWindowShown});
}

void CarbonWindow::setBounds(const QRect& bounds) {
    widget_->winId(); // makes Qt choose the window's display
    const DisplayPlace main(*QGuiApplication::primaryScreen());
    widget_->setGeometry(toQtUnits(bounds, main, DisplayPlace(*widget_->screen())));
    if (bounds == bounds_)
        return;
    bounds_ = bounds;
    send({kEventClassWindow, kEventWindowBoundsChanged});
}

OSStatus CarbonWindow::runModal() {
    QEventLoop loop;
    modalLoop_ = &loop;
    return loop.exec();
}

void CarbonWindow::endModal(OSStatus result) {
    if (modalLoop_)
        modalLoop_->exit(result);
}

void CarbonWindow::takeKeyboard() {
    triesLeft_ = kMostTries;
    tryAgain_.start(kTryIntervalMs);
    tryToTakeKeyboard();
}

void CarbonWindow::tryToTakeKeyboard() {
    if (!widget_->isVisible() || takeKeyboardOnce()) {
        tryAgain_.stop();
    } else if (--triesLeft_ == 0) {
        tryAgain_.stop();
        endModal(errCouldntSetUserFocus);
    }
}

bool CarbonWindow::takeKeyboardOnce() {
    if (QGuiApplication::platformName() == QLatin1String("xcb"))
        return widget_->windowHandle()->setKeyboardGrabEnabled(true);
    widget_->activateWindow();
    return true;
}

void DisposeWindow(WindowRef window) {
    delete window;
}

OSStatus SetWindowTitleWithCFString(WindowRef window, const CFString* title) {
    const QString name = QString::fromStdU16String(title->text());
    window->widget().setWindowTitle(name);
    window->widget().setAccessibleName(name);
    return noErr;
}

void ShowWindow(WindowRef window) {
    window->show();
}

void SelectWindow(WindowRef window) {
    if (areWindowsLeft)
        return;
    window->widget().raise();
    window->widget().activateWindow();
}

void MoveWindow(WindowRef window, SInt16 h, SInt16 v, bool front) {
    window->setBounds({QPoint(h, v), window->bounds().size()});
    if (front)
        SelectWindow(window);
}

void SizeWindow(WindowRef window, SInt16 width, SInt16 height, bool update) {
    window->setBounds({window->bounds().topLeft(), QSize(width, height)});
    if (update)
        window->widget().update();
}

GrafPtr GetWindowPort(WindowRef window) {
    return window->port();
}

EventTargetRef GetWindowEventTarget(WindowRef window) {
    return &window->target();
}

OSStatus RunAppModalLoopForWindow(WindowRef window) {
    return window->runModal();
}

OSStatus QuitAppModalLoopForWindow(WindowRef window) {
    window->endModal(noErr);
    return noErr;
}

OSStatus SetUserFocusWindow(WindowRef window) {
    window->takeKeyboard();
    return noErr;
}
