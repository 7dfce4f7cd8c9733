#include "platform/AppKit/NSView.h"

#include "platform/AppKit/KeyboardFocus.h"

#include <QWidget>

namespace {

NSRect toNSRect(const QRect& rect) {
    return {static_cast<float>(rect.x()), static_cast<float>(rect.y()),
            static_cast<float>(rect.width()), static_cast<float>(rect.height())};
}

} // namespace

void NSView::attachWidget(QWidget* widget) {
    widget_ = widget;
}

NSView* NSView::superview() const {
    return detached_ ? nullptr : superview_;
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

NSRect NSView::frame() const {
    return toNSRect(widget_->geometry());
}

NSRect NSView::bounds() const {
    return toNSRect(widget_->rect());
}

void NSView::setNeedsDisplay(bool needsDisplay) {
    if (needsDisplay)
        widget_->update();
}
