// SPDX-License-Identifier: MIT
#include "platform/AppKit/detail/ListAccessibility.h"

#include "platform/AppKit/NSAccessibility.h"

#include <QWidget>

namespace {

class ElementInterface final : public QAccessibleInterface, public QAccessibleActionInterface {
public:
    ElementInterface(ListInterface& list, int index) : list_(list), index_(index) {}

    // A list may have become shorter.
    bool isValid() const override { return index_ < list_.childCount(); }

    QObject* object() const override { return nullptr; }

    QAccessibleInterface* parent() const override { return &list_; }

    QAccessibleInterface* child(int) const override { return nullptr; }

    QAccessibleInterface* childAt(int, int) const override { return nullptr; }

    int childCount() const override { return 0; }

    int indexOfChild(const QAccessibleInterface*) const override { return -1; }

    QAccessible::Role role() const override { return list_.elementRole(); }

    QAccessible::State state() const override;
    QString text(QAccessible::Text kind) const override;

    void setText(QAccessible::Text, const QString&) override {}

    QRect rect() const override;

    void* interface_cast(QAccessible::InterfaceType type) override {
        return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this)
                                                    : nullptr;
    }

    QStringList actionNames() const override {
        return element().isEnabled ? QStringList(pressAction()) : QStringList();
    }

    void doAction(const QString& name) override {
        if (name == pressAction())
            list_.list().accessibilityPress(index_);
    }

    QStringList keyBindingsForAction(const QString&) const override { return {}; }

private:
    NSAccessibilityElement element() const { return list_.list().accessibilityElement(index_); }

    ListInterface& list_;
    int index_;
};

QAccessible::State ElementInterface::state() const {
    QAccessible::State state;
    state.selectable = true;
    state.selected = element().isSelected;
    state.focusable = true;
    state.focused = list_.focusChild() == this;
    state.invisible = !list_.widget()->isVisible();
    state.disabled = !list_.widget()->isEnabled() || !element().isEnabled;
    return state;
}

QString ElementInterface::text(QAccessible::Text kind) const {
    return kind == QAccessible::Name          ? QString::fromStdString(element().label)
           : kind == QAccessible::Description ? QString::fromStdString(element().help)
                                              : QString();
}

QRect ElementInterface::rect() const {
    const NSRect frame = element().frame;
    const QRect own = QRectF(frame.x, frame.y, frame.width, frame.height).toAlignedRect();
    return own.translated(list_.widget()->mapToGlobal(QPoint()));
}

} // namespace

ListInterface::ListInterface(QWidget& widget, NSAccessibilityList& list, QAccessible::Role role,
                             QAccessible::Role elementRole)
    : QAccessibleWidget(&widget, role), list_(list), elementRole_(elementRole) {}

ListInterface::~ListInterface() {
    for (const QAccessible::Id id : elements_)
        QAccessible::deleteAccessibleInterface(id);
}

QAccessibleInterface* ListInterface::parent() const {
    return QAccessible::queryAccessibleInterface(widget()->parentWidget());
}

int ListInterface::childCount() const {
    return list_.accessibilityCount();
}

QAccessibleInterface* ListInterface::child(int index) const {
    if (index < 0 || index >= childCount())
        return nullptr;
    while (static_cast<int>(elements_.size()) <= index) {
        auto* element = new ElementInterface(*const_cast<ListInterface*>(this),
                                             static_cast<int>(elements_.size()));
        elements_.push_back(QAccessible::registerAccessibleInterface(element));
    }
    return QAccessible::accessibleInterface(elements_[static_cast<std::size_t>(index)]);
}

int ListInterface::indexOfChild(const QAccessibleInterface* element) const {
    for (int i = 0; i < childCount(); ++i)
        if (child(i) == element)
            return i;
    return -1;
}

QAccessibleInterface* ListInterface::childAt(int x, int y) const {
    for (int i = 0; i < childCount(); ++i)
        if (child(i)->rect().contains(x, y))
            return child(i);
    return nullptr;
}

QAccessibleInterface* ListInterface::focusChild() const {
    return widget()->hasFocus() ? child(list_.accessibilityFocusedIndex()) : nullptr;
}
