// SPDX-License-Identifier: MIT
#include "platform/AppKit/detail/ValueField.h"

#include "platform/AppKit/detail/Announcement.h"

#include <QKeyEvent>
#include <QLabel>

#include <algorithm>

namespace {

constexpr int kMargin = 6;   // points beside the text
constexpr int kPadding = 32; // with the frame, both sides together

} // namespace

ValueField::ValueField(QWidget* parent) : QLineEdit(parent) {
    setAlignment(Qt::AlignRight);
    setTextMargins(kMargin, 0, kMargin, 0);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    connect(this, &QLineEdit::textEdited, this, &ValueField::withdrawRefusal);
}

void ValueField::showText(const QString& text) {
    if (text == shown_ && text == this->text())
        return;
    shown_ = text;
    setText(shown_);
    if (const int width = fontMetrics().horizontalAdvance(shown_); width > widest_) {
        widest_ = width; // for good, so that a value that changes moves nothing
        updateGeometry();
    }
    if (hasFocus())
        selectAll();
}

void ValueField::setExplanation(QLabel* label) {
    explanation_ = label;
}

void ValueField::refuse(const QString& why) {
    setText(shown_);
    selectAll();
    withdrawRefusal();
    setAccessibleDescription(why);
    if (explanation_) {
        reason_ = explanation_->text();
        explanation_->setText(QStringLiteral("<b>%1</b>").arg(why.toHtmlEscaped()));
    }
    announce(why);
}

void ValueField::withdrawRefusal() {
    if (reason_.isEmpty())
        return;
    explanation_->setText(reason_);
    setAccessibleDescription(reason_);
    reason_.clear();
}

QSize ValueField::sizeHint() const {
    const QSize own = QLineEdit::sizeHint();
    const int usual = fontMetrics().horizontalAdvance(QStringLiteral("000.0 sec"));
    return {std::max(usual, widest_) + kPadding, own.height()};
}

QSize ValueField::minimumSizeHint() const {
    return sizeHint();
}

// While nothing is typed, Ctrl+Z is the window's: there is nothing of the field's own to undo.
bool ValueField::event(QEvent* event) {
    if (event->type() != QEvent::ShortcutOverride || text() != shown_)
        return QLineEdit::event(event);
    const auto* key = static_cast<QKeyEvent*>(event);
    if (!key->matches(QKeySequence::Undo) && !key->matches(QKeySequence::Redo))
        return QLineEdit::event(event);
    event->ignore();
    return true;
}

std::optional<ValueField::Step> ValueField::stepOf(int key) {
    switch (key) {
    case Qt::Key_Up:
        return Step::More;
    case Qt::Key_Down:
        return Step::Less;
    case Qt::Key_PageUp:
        return Step::MuchMore;
    case Qt::Key_PageDown:
        return Step::MuchLess;
    default:
        return {};
    }
}

void ValueField::keyPressEvent(QKeyEvent* event) {
    if (const auto step = stepOf(event->key());
        step && onStep && event->modifiers() == Qt::NoModifier) {
        commit();
        return onStep(*step);
    }
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        commit();
        selectAll();
        break;
    case Qt::Key_Escape:
        setText(shown_);
        selectAll();
        withdrawRefusal();
        break;
    case Qt::Key_Space:
        // For one press too many on a button that is gone.
        if (selectedText() != text())
            QLineEdit::keyPressEvent(event);
        break;
    default:
        QLineEdit::keyPressEvent(event);
    }
}

void ValueField::focusInEvent(QFocusEvent* event) {
    QLineEdit::focusInEvent(event);
    if (event->reason() != Qt::ActiveWindowFocusReason && event->reason() != Qt::PopupFocusReason)
        QMetaObject::invokeMethod(this, &QLineEdit::selectAll, Qt::QueuedConnection);
}

void ValueField::focusOutEvent(QFocusEvent* event) {
    QLineEdit::focusOutEvent(event);
    if (event->reason() == Qt::ActiveWindowFocusReason || event->reason() == Qt::PopupFocusReason)
        return;
    commit();
    deselect();
}

void ValueField::commit() {
    if (text() != shown_ && onTyped)
        onTyped();
}
