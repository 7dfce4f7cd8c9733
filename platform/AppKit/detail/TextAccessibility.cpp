// SPDX-License-Identifier: MIT
#include "platform/AppKit/detail/TextAccessibility.h"

#include "platform/AppKit/NSAccessibility.h"
#include "platform/AppKit/NSView.h"
#include "platform/AppKit/detail/ViewWidget.h"

#include <QAccessibleWidget>

#include <algorithm>
#include <utility>

namespace {

/// A text that can be read but not edited or selected.
class TextAccessibility final : public QAccessibleWidget, public QAccessibleTextInterface {
public:
    TextAccessibility(ViewWidget& widget, NSAccessibilityStaticText& text)
        : QAccessibleWidget(&widget, QAccessible::EditableText), text_(text), told_(value()) {}

    void* interface_cast(QAccessible::InterfaceType type) override {
        return type == QAccessible::TextInterface ? static_cast<QAccessibleTextInterface*>(this)
                                                  : QAccessibleWidget::interface_cast(type);
    }

    QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        state.readOnly = true;
        return state;
    }

    QString text(QAccessible::Text kind) const override {
        if (kind == QAccessible::Value)
            return value();
        const QString status = QString::fromStdString(text_.accessibilityStatus());
        return kind == QAccessible::Description && !status.isEmpty()
                   ? status
                   : QAccessibleWidget::text(kind);
    }

    void tellOfChange() {
        QAccessibleTextUpdateEvent text(widget(), 0, told_, value());
        QAccessible::updateAccessibility(&text);
        told_ = value();
        QAccessibleEvent status(widget(), QAccessible::DescriptionChanged);
        QAccessible::updateAccessibility(&status);
    }

    int characterCount() const override { return static_cast<int>(value().size()); }

    QString text(int from, int to) const override { return value().mid(from, to - from); }

    int cursorPosition() const override { return 0; }

    QRect characterRect(int) const override { return rect(); }

    int offsetAtPoint(const QPoint&) const override { return -1; }

    QString attributes(int, int* from, int* to) const override {
        *from = 0;
        *to = characterCount();
        return {};
    }

    void selection(int, int* from, int* to) const override { *from = *to = 0; }

    int selectionCount() const override { return 0; }

    void addSelection(int, int) override {}

    void removeSelection(int) override {}

    void setSelection(int, int, int) override {}

    void setCursorPosition(int) override {}

    void scrollToSubstring(int, int) override {}

private:
    QString value() const { return QString::fromStdString(text_.accessibilityValue()); }

    NSAccessibilityStaticText& text_;
    QString told_; ///< the last reported value
};

} // namespace

QAccessibleInterface* makeTextAccessibility(ViewWidget& widget, NSAccessibilityStaticText& text) {
    return new TextAccessibility(widget, text);
}

void postValueChanged(const NSAccessibilityStaticText& view) {
    if (!QAccessible::isActive())
        return;
    auto* widget = dynamic_cast<const NSView&>(view).widget();
    if (auto* found =
            dynamic_cast<TextAccessibility*>(QAccessible::queryAccessibleInterface(widget)))
        found->tellOfChange();
}
