// SPDX-License-Identifier: MIT
#include "platform/AppKit/NSView.h"

#include "platform/AppKit/NSEvent.h"
#include "platform/AppKit/detail/Announcement.h"
#include "platform/AppKit/detail/KeyboardFocus.h"
#include "platform/AppKit/detail/SectionFrame.h"
#include "platform/AppKit/detail/ViewWidget.h"

#include <QScrollArea>
#include <QStackedWidget>
#include <QWidget>

void NSView::attachWidget(QWidget* widget) {
    widget_ = widget;
    if (auto* own = dynamic_cast<ViewWidget*>(widget))
        own->setView(this);
}

NSView* NSView::superview() const {
    return detached_ ? nullptr : superview_;
}

NSWindow NSView::window() const {
    return NSWindow(widget_->window());
}

void NSView::removeFromSuperview() {
    if (!superview())
        return;
    moveFocusOutOf(widget_);
    QSizePolicy policy = widget_->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    widget_->setSizePolicy(policy);
    widget_->hide();
    detached_ = true;
}

void NSView::addSubview(NSView* view) {
    QWidget* subwidget = view->widget_;
    if (view->superview_ != this) {
        const QRect place = subwidget->geometry();
        subwidget->setParent(widget_);
        subwidget->setGeometry(place);
        view->superview_ = this;
    }
    view->detached_ = false;
    subwidget->raise();
    subwidget->show();
}

void NSView::setHidden(bool hidden) {
    if (hidden)
        moveFocusOutOf(widget_);
    widget_->setHidden(hidden);
}

NSSize NSView::fittingSize() const {
    for (auto* part : widget_->findChildren<QWidget*>())
        if (auto* sections = dynamic_cast<SectionFrame*>(part))
            sections->measure();
    const QSize size = widget_->sizeHint();
    return {static_cast<float>(size.width()), static_cast<float>(size.height())};
}

void NSView::setFrameSize(const NSSize& size) {
    widget_->setMinimumSize(static_cast<int>(size.width), static_cast<int>(size.height));
}

NSRect NSView::bounds() const {
    return {0, 0, static_cast<float>(widget_->width()), static_cast<float>(widget_->height())};
}

void NSView::setNeedsDisplay(bool needsDisplay) {
    if (needsDisplay)
        widget_->update();
}

void NSView::setNeedsDisplayInRect(const NSRect& rect) {
    widget_->update(QRectF(rect.x, rect.y, rect.width, rect.height).toAlignedRect());
}

NSPoint NSView::convertPoint(NSPoint point, const NSView* view) const {
    const QWidget* from = view ? view->widget_ : widget_->window();
    const QPointF own = widget_->mapFromGlobal(from->mapToGlobal(QPointF(point.x, point.y)));
    return {static_cast<float>(own.x()), static_cast<float>(own.y())};
}

std::string NSView::accessibilityLabel() const {
    return widget_->accessibleName().toStdString();
}

void NSView::setAccessibilityLabel(std::string_view label) {
    const QString name = QString::fromUtf8(label.data(), static_cast<qsizetype>(label.size()));
    if (name != widget_->accessibleName()) // else it would be told twice
        widget_->setAccessibleName(name);
}

void NSView::setAccessibilityHelp(std::string_view help) {
    const auto text = QString::fromUtf8(help.data(), static_cast<qsizetype>(help.size()));
    if (text == widget_->accessibleDescription())
        return;
    widget_->setAccessibleDescription(text);
    announceDescription(*widget_);
}

bool NSView::isFirstResponder() const {
    return widget_->hasFocus();
}

void NSView::drawRect(const NSRect&) {}

void NSView::mouseDown(NSEvent* event) {
    event->passOn();
}

void NSView::keyDown(NSEvent* event) {
    event->passOn();
}

void NSView::keyUp(NSEvent* event) {
    event->passOn();
}

void NSView::otherMouseUp(NSEvent* event) {
    event->passOn();
}

void NSView::otherMouseDown(NSEvent* event) {
    event->passOn();
}

void NSView::mouseUp(NSEvent* event) {
    event->passOn();
}

bool NSView::performKeyEquivalent(NSEvent*) {
    return false;
}

void NSView::flagsChanged(NSEvent* event) {
    event->passOn();
}

bool NSView::becomeFirstResponder() {
    return true;
}

bool NSView::resignFirstResponder() {
    return true;
}

void NSView::scrollToVisible() {
    for (QWidget* leaf = widget_; QWidget* parent = leaf->parentWidget(); leaf = parent) {
        if (auto* stack = qobject_cast<QStackedWidget*>(parent))
            stack->setCurrentWidget(leaf);
        if (auto* area = qobject_cast<QScrollArea*>(parent))
            area->ensureWidgetVisible(widget_);
    }
}
