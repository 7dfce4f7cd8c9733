#include "platform/HIToolbox/CarbonWindow.h"

CarbonWindow::CarbonWindow(std::unique_ptr<QWidget> widget) : widget_(std::move(widget)) {}

CarbonWindow::~CarbonWindow() {
    if (!widget_)
        return;
    widget_->hide();
    widget_.release()->deleteLater();
}

void CarbonWindow::select() {
    widget_->raise();
    widget_->activateWindow();
}

void DisposeWindow(WindowRef window) {
    delete window;
}

void ShowWindow(WindowRef window) {
    window->widget().show();
}

void SelectWindow(WindowRef window) {
    window->select();
}

void MoveWindow(WindowRef window, SInt16 h, SInt16 v, bool front) {
    window->moveTo({h, v});
    if (front)
        window->select();
}

void SizeWindow(WindowRef window, SInt16 width, SInt16 height, bool update) {
    window->resizeTo({width, height});
    if (update)
        window->widget().update();
}

GrafPtr GetWindowPort(WindowRef window) {
    return window->port();
}

EventTargetRef GetWindowEventTarget(WindowRef window) {
    return &window->target();
}
