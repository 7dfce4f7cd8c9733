// SPDX-License-Identifier: MIT
#include "platform/HIToolbox/detail/NibWindow.h"

#include <QEvent>
#include <QShortcut>
#include <QVariant>

NibWindow::NibWindow(std::unique_ptr<QWidget> own) : CarbonWindow(std::move(own)) {
    widget().installEventFilter(this);
    for (auto* part : widget().findChildren<QWidget*>())
        part->installEventFilter(this);
    for (auto* button : widget().findChildren<QAbstractButton*>()) {
        controls_.push_back(std::make_unique<CarbonControl>(*button, target()));
        // Qt calls the key ambiguous when the surrounding window uses it too.
        if (button->property("cancelButton").toBool())
            new QShortcut(QKeySequence(Qt::Key_Escape), &widget(), button, &QAbstractButton::click,
                          &QAbstractButton::click, Qt::WidgetWithChildrenShortcut);
    }
}

// The widget lives a moment longer. Nothing from it may reach the controls any more.
NibWindow::~NibWindow() {
    for (const auto& control : controls_)
        control->button().disconnect();
}

bool NibWindow::eventFilter(QObject*, QEvent* event) {
    if (event->type() == QEvent::KeyPress)
        send({kEventClassKeyboard, kEventRawKeyDown});
    else if (event->type() == QEvent::MouseButtonPress)
        send({kEventClassMouse, kEventMouseDown});
    return false;
}

OSStatus GetControlByID(WindowRef window, const ControlID* id, ControlRef* control) {
    if (const auto* nibWindow = dynamic_cast<const NibWindow*>(window)) {
        for (const auto& each : nibWindow->controls()) {
            if (each->id() == *id) {
                *control = each.get();
                return noErr;
            }
        }
    }
    return errControlNotFound;
}
