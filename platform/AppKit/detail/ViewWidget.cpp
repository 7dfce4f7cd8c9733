// SPDX-License-Identifier: MIT
#include "platform/AppKit/detail/ViewWidget.h"

#include "platform/AppKit/NSAccessibility.h"
#include "platform/AppKit/NSEvent.h"
#include "platform/AppKit/NSView.h"
#include "platform/AppKit/detail/ViewAccessibility.h"
#include "platform/HIToolbox/detail/KeyRepeats.h"
#include "platform/HIToolbox/detail/ModifierKeys.h"
#include "platform/QuickDraw/detail/GrafPort.h"
#include "platform/Support/EventMoment.h"
#include "platform/Support/ScanCodes.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QToolTip>
#include <QVariant>

#include <algorithm>
#include <utility>

namespace {

constexpr const char* kAspectRatio = "aspectRatio";

/// The character of a key. 0 when the layer knows none.
char16_t characterOf(const QKeyEvent& event) {
    static constexpr struct {
        int key;
        char16_t character;
    } kTable[] = {
        {Qt::Key_Up, NSUpArrowFunctionKey},          {Qt::Key_Down, NSDownArrowFunctionKey},
        {Qt::Key_Left, NSLeftArrowFunctionKey},      {Qt::Key_Right, NSRightArrowFunctionKey},
        {Qt::Key_Home, NSHomeFunctionKey},           {Qt::Key_End, NSEndFunctionKey},
        {Qt::Key_Return, NSCarriageReturnCharacter}, {Qt::Key_Enter, NSEnterCharacter},
        {Qt::Key_Escape, NSEscapeCharacter},
    };

    for (const auto& row : kTable)
        if (row.key == event.key())
            return row.character;
    return event.text().isEmpty() ? u'\0' : event.text().front().unicode();
}

UInt32 modifierFlagsOf(const QKeyEvent& event) {
    static constexpr struct {
        Qt::KeyboardModifier modifier;
        UInt32 flag;
    } kTable[] = {
        {Qt::ShiftModifier, NSShiftKeyMask},   {Qt::ControlModifier, NSControlKeyMask},
        {Qt::AltModifier, NSAlternateKeyMask}, {Qt::GroupSwitchModifier, NSAlternateKeyMask},
        {Qt::MetaModifier, NSCommandKeyMask},
    };

    constexpr quint32 kLockMask = 1 << 1; // of X11's modifiers

    UInt32 flags = event.nativeModifiers() & kLockMask ? NSAlphaShiftKeyMask : 0u;
    for (const auto& row : kTable)
        flags |= event.modifiers().testFlag(row.modifier) ? row.flag : 0u;
    return flags;
}

NSEvent keyEventOf(const QKeyEvent& event) {
    const EventKey key{.character = characterOf(event),
                       .code = virtualKeyCode(event.nativeScanCode()),
                       .modifierFlags = modifierFlagsOf(event),
                       .isARepeat = event.isAutoRepeat()};
    return NSEvent::key(key, momentOf(event.timestamp()));
}

} // namespace

ViewWidget::ViewWidget(QWidget* parent) : QWidget(parent) {
    installViewAccessibility();
    correctKeyRepeats();
    setFocusPolicy(Qt::StrongFocus); // or else the form's tab order would leave it out
}

void ViewWidget::setView(NSView* view) {
    view_ = view;
    renewAccessibility(*this);
    if (!view->acceptsFirstResponder())
        setFocusPolicy(Qt::NoFocus);
}

bool ViewWidget::hasHeightForWidth() const {
    return property(kAspectRatio).isValid();
}

int ViewWidget::heightForWidth(int width) const {
    return std::max(minimumHeight(), static_cast<int>(width / property(kAspectRatio).toDouble()));
}

void ViewWidget::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    GrafPort port(painter, *this);
    port_ = &port;
    const QRect dirty = event->rect();
    view_->drawRect({static_cast<float>(dirty.x()), static_cast<float>(dirty.y()),
                     static_cast<float>(dirty.width()), static_cast<float>(dirty.height())});
    port_ = nullptr;
}

void ViewWidget::mousePressEvent(QMouseEvent* event) {
    NSEvent down = mouseEventOf(*event);
    if (event->button() == Qt::LeftButton)
        view_->mouseDown(&down);
    else
        view_->otherMouseDown(&down);
    event->setAccepted(!down.isPassedOn());
}

void ViewWidget::mouseReleaseEvent(QMouseEvent* event) {
    NSEvent up = mouseEventOf(*event);
    if (event->button() == Qt::LeftButton)
        view_->mouseUp(&up);
    else
        view_->otherMouseUp(&up);
    event->setAccepted(!up.isPassedOn());
}

NSEvent ViewWidget::mouseEventOf(const QMouseEvent& event) const {
    const QPointF place = mapTo(window(), event.position());
    return NSEvent::mouseDown({static_cast<float>(place.x()), static_cast<float>(place.y())},
                              momentOf(event.timestamp()));
}

// For each press Qt first asks whether it is a shortcut.
bool ViewWidget::isKeyTaken(QEvent& event) {
    if (event.type() == QEvent::KeyPress)
        return std::exchange(isKeyTaken_, false);
    if (event.type() != QEvent::ShortcutOverride)
        return false;
    const auto& key = static_cast<const QKeyEvent&>(event);
    NSEvent down = keyEventOf(key);
    isKeyTaken_ = !isModifierKey(key) && view_->performKeyEquivalent(&down);
    return isKeyTaken_;
}

/// The pointer rests on an element of a list: its name is shown.
bool ViewWidget::showName(const QHelpEvent& help) {
    const auto* list = dynamic_cast<const NSAccessibilityList*>(view_);
    const NSPoint place = {static_cast<float>(help.pos().x()), static_cast<float>(help.pos().y())};
    for (int i = 0; list && i < list->accessibilityCount(); ++i) {
        const auto element = list->accessibilityElement(i);
        if (!NSPointInRect(place, element.frame))
            continue;
        QToolTip::showText(help.globalPos(), QString::fromStdString(element.label), this);
        return true;
    }
    return false;
}

bool ViewWidget::event(QEvent* event) {
    if (event->type() == QEvent::ToolTip && showName(static_cast<QHelpEvent&>(*event)))
        return true;
    if (!isKeyTaken(*event))
        return QWidget::event(event);
    event->accept();
    return true;
}

void ViewWidget::keyPressEvent(QKeyEvent* event) {
    constexpr auto kModifiers = Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
    NSEvent down = keyEventOf(*event);
    if (isModifierKey(*event))
        view_->flagsChanged(&down);
    else if (event->modifiers() & kModifiers)
        down.passOn(); // a shortcut of the window's or the desktop's
    else
        view_->keyDown(&down);
    event->setAccepted(!down.isPassedOn());
}

void ViewWidget::keyReleaseEvent(QKeyEvent* event) {
    NSEvent up = keyEventOf(*event);
    if (isModifierKey(*event))
        view_->flagsChanged(&up);
    else
        view_->keyUp(&up);
    event->setAccepted(!up.isPassedOn());
}

void ViewWidget::focusInEvent(QFocusEvent* event) {
    QWidget::focusInEvent(event); // which repaints, as does losing the focus
    updateFirstResponder();
    notifyFocusInside(*this);
}

void ViewWidget::focusOutEvent(QFocusEvent* event) {
    QWidget::focusOutEvent(event);
    updateFirstResponder();
}

// The focus also changes with the window's activation. The window keeps its first responder then.
void ViewWidget::updateFirstResponder() {
    const bool isFirst = window()->focusWidget() == this;
    if (std::exchange(isFirstResponder_, isFirst) == isFirst)
        return;
    if (isFirst) {
        view_->becomeFirstResponder();
        return;
    }
    // Otherwise it would get the focus again with its page.
    if (!(focusPolicy() & Qt::TabFocus))
        clearFocus();
    view_->resignFirstResponder();
}

void ViewWidget::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::FontChange ||
        event->type() == QEvent::StyleChange || event->type() == QEvent::ActivationChange)
        update();
}
