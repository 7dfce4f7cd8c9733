#include "platform/AppKit/NSWindow.h"

#include "platform/AppKit/NSView.h"
#include "platform/HIToolbox/detail/HostedWindow.h"

#include <QWidget>

void NSWindow::makeFirstResponder(NSView* view) {
    if (view)
        view->widget()->setFocus(Qt::OtherFocusReason);
    else if (QWidget* focus = window_->focusWidget())
        focus->clearFocus();
}

WindowRef NSWindow::windowRef() const {
    return windowRefOf(window_);
}
