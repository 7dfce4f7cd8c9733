// SPDX-License-Identifier: MIT
#include "platform/AppKit/detail/FormLoader.h"

#include "platform/AppKit/detail/CardColumns.h"
#include "platform/AppKit/detail/ColorWellButton.h"
#include "platform/AppKit/detail/HeaderBar.h"
#include "platform/AppKit/detail/NumberRow.h"
#include "platform/AppKit/detail/OptionRow.h"
#include "platform/AppKit/detail/PageArea.h"
#include "platform/AppKit/detail/PaneStyle.h"
#include "platform/AppKit/detail/PopUpButtonWidget.h"
#include "platform/AppKit/detail/PutBackButton.h"
#include "platform/AppKit/detail/SectionFrame.h"
#include "platform/AppKit/detail/SettingRow.h"
#include "platform/AppKit/detail/SliderWidget.h"
#include "platform/AppKit/detail/SwitchCell.h"
#include "platform/AppKit/detail/ViewWidget.h"
#include "platform/AppKit/detail/WrapRow.h"

#include <QWidget>

namespace {

template <class Widget>
QWidget* make(QWidget* parent) {
    return new Widget(parent);
}

const struct {
    const char* className;
    QWidget* (*make)(QWidget* parent);
} kOwnWidgets[] = {
    {"QSlider", make<SliderWidget>},
    {"NSColorWell", make<ColorWellButton>},
    {"NSPopUpButton", make<PopUpButtonWidget>},
    {"NumberRow", make<NumberRow>},
    {"CheckRow", make<CheckRow>},
    {"RadioRow", make<RadioRow>},
    {"SettingRow", make<SettingRow>},
    {"SwitchCell", make<SwitchCell>},
    {"WrapRow", make<WrapRow>},
    {"PutBackButton", make<PutBackButton>},
    {"HeaderBar", make<HeaderBar>},
    {"CardColumns", make<CardColumns>},
    {"PageArea", make<PageArea>},
    {"SectionFrame", make<SectionFrame>},
};

/// Makes Tab follow the order of the widgets, which screen readers use too.
QWidget* orderTabs(QWidget* widget, QWidget* previous) {
    for (QObject* child : widget->children()) {
        auto* next = qobject_cast<QWidget*>(child);
        if (!next || next->isWindow())
            continue;
        if (next->focusPolicy() != Qt::NoFocus) {
            QWidget::setTabOrder(previous, next);
            previous = next;
        }
        previous = orderTabs(next, previous);
    }
    return previous;
}

} // namespace

FormLoader::FormLoader() : knownWidgets_(availableWidgets()) {
    PaneStyle::install();
}

QWidget* FormLoader::loadForm(const QString& path) {
    QWidget* form = loadFile(path);
    if (!form)
        return nullptr;
    for (FormPart* part : parts_)
        part->build();
    for (auto* widget : form->findChildren<QWidget*>())
        widget->updateGeometry(); // or the layouts around it would remember its size before
    orderTabs(form, form);
    return form;
}

QWidget* FormLoader::createWidget(const QString& className, QWidget* parent, const QString& name) {
    QWidget* widget = nullptr;
    for (const auto& own : kOwnWidgets)
        if (className == QLatin1String(own.className))
            widget = own.make(parent);
    if (!widget && knownWidgets_.contains(className))
        return QUiLoader::createWidget(className, parent, name);
    if (!widget) {
        // Promoted to one of the pane's views, which draws it.
        widget = new ViewWidget(parent);
        widget->setProperty("customClass", className);
    }
    if (auto* part = dynamic_cast<FormPart*>(widget))
        parts_.push_back(part);
    widget->setObjectName(name);
    return widget;
}
