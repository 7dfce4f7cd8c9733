#include "platform/AppKit/ViewWidget.h"

#include "platform/AppKit/NSEvent.h"
#include "platform/AppKit/NSView.h"
#include "platform/AppKit/ViewAccessibility.h"
#include "platform/QuickDraw/GrafPort.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QVariant>

#include <algorithm>

namespace {

constexpr const char* kAspectRatio = "aspectRatio";

/// The character of a key, 0 for none that the layer knows.
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

} // namespace

ViewWidget::ViewWidget(QWidget* parent) : QWidget(parent) {
    installViewAccessibility();
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
    if (event->button() != Qt::LeftButton) {
        event->ignore();
        return;
    }
    const QPointF place = mapTo(window(), event->position());
    NSEvent down =
        NSEvent::mouseDown({static_cast<float>(place.x()), static_cast<float>(place.y())});
    view_->mouseDown(&down);
    event->setAccepted(!down.isPassedOn());
}

void ViewWidget::keyPressEvent(QKeyEvent* event) {
    constexpr auto kModifiers = Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
    NSEvent down = NSEvent::keyDown(characterOf(*event));
    if (event->modifiers() & kModifiers)
        down.passOn(); // a shortcut of the window's or the desktop's
    else
        view_->keyDown(&down);
    event->setAccepted(!down.isPassedOn());
}

void ViewWidget::focusInEvent(QFocusEvent* event) {
    QWidget::focusInEvent(event); // which repaints, as does losing the focus
    notifyFocusInside(*this);
}

void ViewWidget::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::FontChange ||
        event->type() == QEvent::StyleChange || event->type() == QEvent::ActivationChange)
        update();
}
