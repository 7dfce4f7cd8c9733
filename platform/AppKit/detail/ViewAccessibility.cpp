// SPDX-License-Identifier: MIT
#include "platform/AppKit/detail/ViewAccessibility.h"

#include "platform/AppKit/NSAccessibility.h"
#include "platform/AppKit/NSView.h"
#include "platform/AppKit/detail/TextAccessibility.h"
#include "platform/AppKit/detail/ViewWidget.h"

#include <QAccessible>
#include <QAccessibleWidget>

#include <vector>

namespace {

class ListInterface;

/// One element of a list that a view draws.
class ElementInterface final : public QAccessibleInterface, public QAccessibleActionInterface {
public:
    ElementInterface(ListInterface& list, int index) : list_(list), index_(index) {}

    bool isValid() const override { return true; }

    QObject* object() const override { return nullptr; }

    QAccessibleInterface* parent() const override;

    QAccessibleInterface* child(int) const override { return nullptr; }

    QAccessibleInterface* childAt(int, int) const override { return nullptr; }

    int childCount() const override { return 0; }

    int indexOfChild(const QAccessibleInterface*) const override { return -1; }

    QAccessible::Role role() const override { return QAccessible::ListItem; }

    QAccessible::State state() const override;
    QString text(QAccessible::Text kind) const override;

    void setText(QAccessible::Text, const QString&) override {}

    QRect rect() const override;

    void* interface_cast(QAccessible::InterfaceType type) override {
        return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this)
                                                    : nullptr;
    }

    QStringList actionNames() const override { return {pressAction()}; }

    void doAction(const QString& name) override;

    QStringList keyBindingsForAction(const QString&) const override { return {}; }

private:
    ListInterface& list_;
    int index_;
};

/// The view itself, as the list of its elements.
class ListInterface final : public QAccessibleWidget {
public:
    ListInterface(ViewWidget* widget, NSAccessibilityList& list)
        : QAccessibleWidget(widget, QAccessible::List), widget_(*widget), list_(list) {}

    ~ListInterface() override {
        for (const QAccessible::Id id : elements_)
            QAccessible::deleteAccessibleInterface(id);
    }

    ViewWidget& widget() const { return widget_; }

    NSAccessibilityList& list() const { return list_; }

    int childCount() const override { return list_.accessibilityCount(); }

    QAccessibleInterface* child(int index) const override {
        if (index < 0 || index >= childCount())
            return nullptr;
        while (static_cast<int>(elements_.size()) <= index) {
            auto* element = new ElementInterface(*const_cast<ListInterface*>(this),
                                                 static_cast<int>(elements_.size()));
            elements_.push_back(QAccessible::registerAccessibleInterface(element));
        }
        return QAccessible::accessibleInterface(elements_[static_cast<std::size_t>(index)]);
    }

    int indexOfChild(const QAccessibleInterface* element) const override {
        for (int i = 0; i < childCount(); ++i)
            if (child(i) == element)
                return i;
        return -1;
    }

    QAccessibleInterface* childAt(int x, int y) const override {
        for (int i = 0; i < childCount(); ++i)
            if (child(i)->rect().contains(x, y))
                return child(i);
        return nullptr;
    }

    QAccessibleInterface* focusChild() const override {
        return widget_.hasFocus() ? child(list_.accessibilityFocusedIndex()) : nullptr;
    }

private:
    ViewWidget& widget_;
    NSAccessibilityList& list_;
    mutable std::vector<QAccessible::Id> elements_; ///< made when they are first asked for
};

QAccessibleInterface* ElementInterface::parent() const {
    return &list_;
}

QAccessible::State ElementInterface::state() const {
    QAccessible::State state;
    state.selectable = true;
    state.selected = list_.list().accessibilityElement(index_).isSelected;
    state.focusable = true;
    state.focused = list_.focusChild() == this;
    state.invisible = !list_.widget().isVisible();
    state.disabled = !list_.widget().isEnabled();
    return state;
}

QString ElementInterface::text(QAccessible::Text kind) const {
    return kind == QAccessible::Name
               ? QString::fromStdString(list_.list().accessibilityElement(index_).label)
               : QString();
}

QRect ElementInterface::rect() const {
    const NSRect frame = list_.list().accessibilityElement(index_).frame;
    const QRect own = QRectF(frame.x, frame.y, frame.width, frame.height).toAlignedRect();
    return own.translated(list_.widget().mapToGlobal(QPoint()));
}

void ElementInterface::doAction(const QString& name) {
    if (name == pressAction())
        list_.list().accessibilityPress(index_);
}

/// The view itself, as one button.
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
        return new ListInterface(widget, *list);
    if (auto* button = dynamic_cast<NSAccessibilityButton*>(view))
        return new ButtonInterface(widget, *button);
    if (auto* text = dynamic_cast<NSAccessibilityStaticText*>(view))
        return makeTextAccessibility(*widget, *text);
    return nullptr;
}

/// Sends the event of the element, if anybody listens.
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

void NSAccessibilityPostNotification(NSView* view, int index,
                                     NSAccessibilityNotification notification) {
    if (notification == NSAccessibilitySelectedChildrenChangedNotification)
        post(view->widget(), index, QAccessible::Selection);
    else if (view->isFirstResponder())
        post(view->widget(), index, QAccessible::Focus);
}

void NSAccessibilityPostNotification(NSView* view, NSAccessibilityViewNotification) {
    if (!QAccessible::isActive())
        return;
    QAccessibleEvent event(view->widget(), QAccessible::NameChanged);
    QAccessible::updateAccessibility(&event);
}
