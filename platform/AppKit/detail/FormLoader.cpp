#include "platform/AppKit/detail/FormLoader.h"

#include "platform/AppKit/detail/ColorWellButton.h"
#include "platform/AppKit/detail/PopUpButtonWidget.h"
#include "platform/AppKit/detail/SliderWidget.h"
#include "platform/AppKit/detail/ViewWidget.h"

#include <QWidget>

FormLoader::FormLoader() : knownWidgets_(availableWidgets()) {}

QWidget* FormLoader::createWidget(const QString& className, QWidget* parent, const QString& name) {
    QWidget* widget = nullptr;
    if (className == QLatin1String("QSlider"))
        widget = new SliderWidget(parent);
    else if (className == QLatin1String("NSColorWell"))
        widget = new ColorWellButton(parent);
    else if (className == QLatin1String("NSPopUpButton"))
        widget = new PopUpButtonWidget(parent);
    else if (knownWidgets_.contains(className))
        return QUiLoader::createWidget(className, parent, name);
    else {
        // Promoted to one of the pane's views, which draws it.
        widget = new ViewWidget(parent);
        widget->setProperty("customClass", className);
    }
    widget->setObjectName(name);
    return widget;
}
