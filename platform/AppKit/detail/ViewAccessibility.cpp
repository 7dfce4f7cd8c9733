// SPDX-License-Identifier: MIT
#include "platform/AppKit/detail/ViewAccessibility.h"

#include "platform/AppKit/NSAccessibility.h"
#include "platform/AppKit/NSView.h"
#include "platform/AppKit/detail/ListAccessibility.h"
#include "platform/AppKit/detail/TextAccessibility.h"
#include "platform/AppKit/detail/ViewWidget.h"

#include <QAccessible>
#include <QAccessibleWidget>

namespace {

/// The view as a single button.
class ButtonInterface final : public QAccessibleWidget {
public:
    ButtonInterface(ViewWidget* widget, NSAccessibilityButton& button)
        : QAccessibleWidget(widget, QAccessible::Button), button_(button) {}

    QString text(QAccessible::Text kind) const override {
        if (kind == QAccessible::Name)
            return QString::fromStdString(button_.accessibilityTitle());
        const QString text = QAccessibleWidget::text(kind);
        if (kind != QAccessible::Description)
            return text;
        return QString::fromStdString(button_.accessibilityValue()) + QLatin1Char(' ') + text;
    }

    QStringList actionNames() const override {
        return QStringList(pressAction()) + QAccessibleWidget::actionNames();
    }

    void doAction(const QString& name) override {
        if (name == pressAction())
            button_.accessibilityPerformPress();
        else
            QAccessibleWidget::doAction(name);
    }

private:
    NSAccessibilityButton& button_;
};

QAccessibleInterface* makeInterface(const QString&, QObject* object) {
    auto* widget = dynamic_cast<ViewWidget*>(object);
    NSView* view = widget ? widget->view() : nullptr;
    if (auto* list = dynamic_cast<NSAccessibilityList*>(view))
        return new ListInterface(*widget, *list);
    if (auto* button = dynamic_cast<NSAccessibilityButton*>(view))
        return new ButtonInterface(widget, *button);
    if (auto* text = dynamic_cast<NSAccessibilityStaticText*>(view))
        return makeTextAccessibility(*widget, *text);
    return nullptr;
}

/// Sends the event of the element if somebody listens.
void post(QWidget* widget, int index, QAccessible::Event type) {
    if (!QAccessible::isActive())
        return;
    auto* list = QAccessible::queryAccessibleInterface(widget);
    if (auto* element = list ? list->child(index) : nullptr) {
        QAccessibleEvent event(element, type);
        QAccessible::updateAccessibility(&event);
    }
}

} // namespace

void installViewAccessibility() {
    [[maybe_unused]] static const bool installed = [] {
        QAccessible::installFactory(makeInterface);
        return true;
    }();
}

void renewAccessibility(ViewWidget& widget) {
    if (auto* former = QAccessible::queryAccessibleInterface(&widget))
        QAccessible::deleteAccessibleInterface(QAccessible::uniqueId(former));
}

void notifyFocusInside(ViewWidget& widget) {
    if (const auto* list = dynamic_cast<const NSAccessibilityList*>(widget.view()))
        post(&widget, list->accessibilityFocusedIndex(), QAccessible::Focus);
}

void NSAccessibilityPostNotification(NSView* view, int index, ElementNotification notification) {
    if (notification == NSAccessibilitySelectedChildrenChangedNotification)
        post(view->widget(), index, QAccessible::Selection);
    else if (view->isFirstResponder())
        post(view->widget(), index, QAccessible::Focus);
}

void NSAccessibilityPostNotification(NSView* view, ViewNotification notification) {
    if (!QAccessible::isActive())
        return;
    const bool isTitle = notification == NSAccessibilityTitleChangedNotification;
    QAccessibleEvent event(view->widget(),
                           isTitle ? QAccessible::NameChanged : QAccessible::DescriptionChanged);
    QAccessible::updateAccessibility(&event);
}
