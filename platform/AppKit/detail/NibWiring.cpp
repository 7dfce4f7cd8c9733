// SPDX-License-Identifier: MIT
#include "platform/AppKit/detail/NibWiring.h"

#include "platform/AppKit/ClassRegistry.h"
#include "platform/AppKit/NSButton.h"
#include "platform/AppKit/NSColorWell.h"
#include "platform/AppKit/NSMatrix.h"
#include "platform/AppKit/NSPopUpButton.h"
#include "platform/AppKit/NSSlider.h"
#include "platform/AppKit/NSTabView.h"
#include "platform/AppKit/NSTextField.h"
#include "platform/AppKit/detail/ColorWellButton.h"
#include "platform/AppKit/detail/PopUpButtonWidget.h"
#include "platform/AppKit/detail/SliderWidget.h"

#include <QLabel>
#include <QLineEdit>
#include <QStackedWidget>
#include <QVariant>

#include <algorithm>
#include <cstdlib>
#include <cxxabi.h>

namespace {

/// The class's name without namespaces.
QString className(const std::type_info& type) {
    int status = 0;
    char* name = abi::__cxa_demangle(type.name(), nullptr, nullptr, &status);
    const QString result = QString::fromUtf8(name ? name : type.name());
    std::free(name);
    return result.mid(result.lastIndexOf(QLatin1Char(':')) + 1);
}

QString className(const NSObject& object) {
    return className(typeid(object));
}

/// A dynamic property of the form as text. Null when the widget has none.
QString formText(const QWidget* widget, const char* property) {
    return widget->property(property).toString();
}

NSView* makeStandardView(const QWidget* widget) {
    if (dynamic_cast<const SliderWidget*>(widget))
        return new NSSlider;
    if (dynamic_cast<const ColorWellButton*>(widget))
        return new NSColorWell;
    if (dynamic_cast<const PopUpButtonWidget*>(widget))
        return new NSPopUpButton;
    if (qobject_cast<const QAbstractButton*>(widget))
        return new NSButton;
    if (qobject_cast<const QLabel*>(widget) || qobject_cast<const QLineEdit*>(widget))
        return new NSTextField;
    if (qobject_cast<const QStackedWidget*>(widget))
        return new NSTabView;
    return new NSView;
}

} // namespace

NibWiring::NibWiring(NSObject& owner, std::vector<std::unique_ptr<NSObject>>& objects)
    : objects_(objects), enclosing_{&owner} {
    named_.push_back({&owner, className(owner)});
}

NSView* NibWiring::wireForm(QWidget* form) {
    NSView* view = wire(form, nullptr);
    for (const Named& named : named_)
        checkOutlets(*named.object, named.name);
    if (errors_.isEmpty())
        for (const Named& named : named_)
            checkLayout(*named.object, named.name);
    return view;
}

NSView* NibWiring::wire(QWidget* widget, NSView* superview) {
    const QString custom = formText(widget, "customClass");
    NSObject* object = custom.isEmpty() ? nullptr : makeCustomObject(widget, custom);
    NSView* view = makeView(widget, superview, object);
    if (!object)
        object = view;
    connectOutlet(widget, *object);
    connectAction(widget, *view);

    const bool encloses = object != view;
    if (encloses)
        enclosing_.push_back(object);
    for (QObject* child : widget->children()) {
        auto* childWidget = qobject_cast<QWidget*>(child);
        if (childWidget && !childWidget->isWindow())
            wire(childWidget, view);
    }
    if (encloses)
        enclosing_.pop_back();
    return view;
}

NSObject* NibWiring::makeCustomObject(QWidget* widget, const QString& className) {
    NSObject* object = nullptr;
    if (className == QLatin1String("NSMatrix"))
        object = new NSMatrix;
    else if (const RegisteredClass* entry = NSClassFromString(className.toStdString()))
        object = entry->make();
    if (!object) {
        report(widget, QStringLiteral("no class %1").arg(className));
        return nullptr;
    }
    objects_.emplace_back(object);
    named_.push_back({object, QStringLiteral("%1 '%2'").arg(className, widget->objectName())});
    return object;
}

// An object that is no view gets a plain view for its widget.
NSView* NibWiring::makeView(QWidget* widget, NSView* superview, NSObject* object) {
    auto* view = dynamic_cast<NSView*>(object);
    if (!view) {
        view = makeStandardView(widget);
        objects_.emplace_back(view);
    }
    view->superview_ = superview;
    view->attachWidget(widget);
    if (const auto* slider = dynamic_cast<NSSlider*>(view);
        slider && !(slider->minValue() < slider->maxValue()))
        report(widget, QStringLiteral("minValue isn't below maxValue"));
    if (const auto* matrix = dynamic_cast<NSMatrix*>(view))
        checkCells(widget, *matrix);
    return view;
}

void NibWiring::connectOutlet(const QWidget* widget, NSObject& object) {
    const QString name = formText(widget, "outlet");
    if (name.isEmpty())
        return;
    NSObject& target = *enclosing_.back();
    const std::string key = name.toStdString();
    const auto outlets = target.outlets();
    const auto outlet = std::find_if(outlets.begin(), outlets.end(),
                                     [&](const Outlet& each) { return each.name == key; });
    if (outlet == outlets.end())
        report(widget, QStringLiteral("%1 has no outlet '%2'").arg(className(target), name));
    else if (!connected_.emplace(&target, outlet->name).second)
        report(widget,
               QStringLiteral("outlet '%1' of %2 is filled already").arg(name, className(target)));
    else if (!outlet->connect(target, object))
        report(widget,
               QStringLiteral("outlet '%1' of %2 takes %3, not %4")
                   .arg(name, className(target), className(*outlet->type), className(object)));
}

void NibWiring::connectAction(const QWidget* widget, NSView& view) {
    const QString name = formText(widget, "action");
    if (name.isEmpty())
        return;
    auto* control = dynamic_cast<NSControl*>(&view);
    if (!control) {
        report(widget, QStringLiteral("%1 can't send the action '%2'").arg(className(view), name));
        return;
    }
    for (auto target = enclosing_.rbegin(); target != enclosing_.rend(); ++target) {
        const SEL action = (*target)->selector(name.toStdString());
        if (!action)
            continue;
        control->setTarget(*target);
        control->setAction(action);
        if (!action->accepts(view))
            report(widget, QStringLiteral("action '%1' of %2 takes %3, not %4")
                               .arg(name, className(**target), className(*action->senderType),
                                    className(view)));
        return;
    }
    report(widget, QStringLiteral("no object around it has the action '%1'").arg(name));
}

void NibWiring::checkCells(const QWidget* widget, const NSMatrix& matrix) {
    for (const auto& cell : matrix.cells()) {
        if (matrix.cellWithTag(cell->tag()) != cell.get())
            report(widget, QStringLiteral("two cells have the tag %1").arg(cell->tag()));
    }
}

void NibWiring::checkOutlets(const NSObject& object, const QString& name) {
    for (const Outlet& outlet : object.outlets()) {
        if (!outlet.isConnected(object))
            errors_ << QStringLiteral("outlet '%1' of %2 is empty")
                           .arg(QString::fromUtf8(outlet.name.data(),
                                                  static_cast<qsizetype>(outlet.name.size())),
                                name);
    }
}

void NibWiring::checkLayout(const NSObject& object, const QString& name) {
    for (const std::string& fault : object.layoutFaults())
        errors_ << name + QStringLiteral(": ") + QString::fromStdString(fault);
}

void NibWiring::report(const QWidget* widget, const QString& message) {
    errors_ << QStringLiteral("widget '%1': %2").arg(widget->objectName(), message);
}
