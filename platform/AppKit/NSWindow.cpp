#include "platform/AppKit/NSWindow.h"

#include "platform/AppKit/NSView.h"

#include <QWidget>

void NSWindow::makeFirstResponder(NSView* view) {
    if (view)
        view->widget()->setFocus(Qt::OtherFocusReason);
    else if (QWidget* focus = window_->focusWidget())
        focus->clearFocus();
}
