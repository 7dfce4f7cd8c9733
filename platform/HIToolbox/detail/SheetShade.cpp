// SPDX-License-Identifier: MIT
#include "platform/HIToolbox/detail/SheetShade.h"

#include "platform/HIToolbox/detail/CarbonWindow.h"

#include <QAccessibleWidget>
#include <QApplication>
#include <QPainter>
#include <QPushButton>
#include <QScreen>
#include <QShortcutEvent>
#include <QVariant>

namespace {

constexpr int kMargin = 16;     ///< around the sheet, in points
constexpr int kWidestText = 80; ///< of a sheet, in characters of average width
constexpr int kDimming = 110;   ///< of 255
constexpr int kRadius = 8;      ///< of the sheet's corners, in points

QAccessibleInterface* makeInterface(const QString&, QObject* object) {
    auto* shade = dynamic_cast<SheetShade*>(object);
    // Screen readers read out a notification when it appears, wherever the focus is.
    return shade ? new QAccessibleWidget(shade, QAccessible::Notification) : nullptr;
}

bool takesTab(const QWidget* widget) {
    return widget->isVisible() && widget->isEnabled() && (widget->focusPolicy() & Qt::TabFocus);
}

/// The next widget inside `group` that Tab reaches. Null when there is none.
QWidget* nextInside(const QWidget* group, QWidget* from, bool forward) {
    QWidget* next = from;
    do {
        next = forward ? next->nextInFocusChain() : next->previousInFocusChain();
        if (group->isAncestorOf(next) && takesTab(next))
            return next;
    } while (next != from);
    return nullptr;
}

/// The sheet's default button, else its first widget that takes focus.
QWidget* entryOf(QWidget* sheet) {
    for (auto* button : sheet->findChildren<QPushButton*>())
        if (button->isDefault())
            return button;
    return nextInside(sheet, sheet, true);
}

bool keepsKeyboard(const QWidget* widget) {
    return widget && widget->property("keepsKeyboard").toBool();
}

} // namespace

SheetShade::SheetShade(QWidget* window, QWidget* sheet) : QWidget(window), sheet_(sheet) {
    [[maybe_unused]] static const bool isKnown = [] {
        QAccessible::installFactory(makeInterface);
        return true;
    }();
    setAccessibleName(sheet->accessibleName());
    setAccessibleDescription(sheet->accessibleDescription());
    sheet->setParent(this, Qt::Widget);
    sheet->show();

    setGeometry(window->rect());
    const QSize space(2 * kMargin, 2 * kMargin);
    const QSize needed = (sheetSize() + space).boundedTo(window->screen()->availableSize() - space);
    window->resize(window->size().expandedTo(needed));
    place();
    qApp->installEventFilter(this);
    connect(qApp, &QApplication::focusChanged, this,
            [this](QWidget*, QWidget* now) { focusMoved(now); });
    connect(sheet, &QObject::destroyed, this, &QObject::deleteLater);
    raise();
    show();
    entry_ = entryOf(sheet);
    if (QWidget* focus = window->focusWidget(); !keepsKeyboard(focus))
        takeKeyboardFrom(focus);
}

SheetShade::~SheetShade() {
    disconnect(qApp, nullptr, this, nullptr);
    if (!sheet_ || areWindowsLeft) // the sheet goes with the shade then
        return;
    sheet_->disconnect(this);
    giveKeyboardBack();
    sheet_->hide();
    sheet_->setParent(nullptr);
}

QSize SheetShade::sheetSize() const {
    const int widest =
        std::min(width() - 2 * kMargin, sheet_->fontMetrics().averageCharWidth() * kWidestText);
    const int sheetWidth = std::max(widest, sheet_->minimumSizeHint().width());
    return {sheetWidth, sheet_->hasHeightForWidth() ? sheet_->heightForWidth(sheetWidth)
                                                    : sheet_->sizeHint().height()};
}

void SheetShade::place() {
    setGeometry(parentWidget()->rect());
    const QSize size = sheetSize();
    sheet_->setGeometry({QPoint((width() - size.width()) / 2, kMargin), size});
}

bool SheetShade::eventFilter(QObject* watched, QEvent* event) {
    if (watched == parentWidget() && event->type() == QEvent::Resize && sheet_)
        place();
    const auto* widget = qobject_cast<QWidget*>(watched);
    if (event->type() != QEvent::Shortcut || !widget || widget->window() != window() || !sheet_)
        return false;
    // A button's letter, or Escape. If a covered widget has the same, Qt sends the event to both.
    const QKeySequence& key = static_cast<QShortcutEvent*>(event)->key();
    for (auto* button : sheet_->findChildren<QAbstractButton*>())
        if (button->shortcut() == key ||
            (key == Qt::Key_Escape && button->property("cancelButton").toBool()))
            button->animateClick();
    return true;
}

bool SheetShade::event(QEvent* event) {
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::Wheel:
    case QEvent::ContextMenu:
        event->accept();
        return true;
    default:
        return QWidget::event(event);
    }
}

void SheetShade::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), QColor(0, 0, 0, kDimming));
    if (!sheet_)
        return;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(sheet_->palette().window());
    painter.drawRoundedRect(sheet_->geometry(), kRadius, kRadius);
}

bool SheetShade::focusNextPrevChild(bool next) {
    QWidget* focus = window()->focusWidget();
    QWidget* heir = sheet_ ? nextInside(sheet_, focus ? focus : this, next) : nullptr;
    if (heir)
        heir->setFocus(next ? Qt::TabFocusReason : Qt::BacktabFocusReason);
    return heir != nullptr;
}

/// `focus` is null when focus went to another program or to nothing in this window.
void SheetShade::focusMoved(QWidget* focus) {
    const bool isInContent =
        focus ? focus->window() == window() && !isAncestorOf(focus) : window()->isActiveWindow();
    if (isInContent && !keepsKeyboard(focus))
        takeKeyboardFrom(focus);
}

void SheetShade::takeKeyboardFrom(QWidget* focus) {
    if (!formerFocus_)
        formerFocus_ = focus;
    if (entry_)
        entry_->setFocus(Qt::OtherFocusReason);
}

void SheetShade::giveKeyboardBack() {
    QWidget* focus = window()->focusWidget();
    if (!focus || !isAncestorOf(focus))
        return;
    if (formerFocus_)
        formerFocus_->setFocus(Qt::OtherFocusReason);
    else
        focus->clearFocus();
}
