// SPDX-License-Identifier: MIT
#include "platform/AppKit/NSColorWell.h"

#include "platform/AppKit/detail/ColorPage.h"
#include "platform/AppKit/detail/ColorWellButton.h"
#include "platform/CoreFoundation/Localization.h"

#include <QCoreApplication>

#include <algorithm>

namespace {

QColor toQColor(const NSColor& color) {
    const auto part = [](double component) {
        return std::clamp(static_cast<float>(component), 0.0F, 1.0F);
    };
    return QColor::fromRgbF(part(color.redComponent()), part(color.greenComponent()),
                            part(color.blueComponent()));
}

NSColor toNSColor(const QColor& color) {
    return NSColor::colorWithDeviceRed(color.red() / 255.0, color.green() / 255.0,
                                       color.blue() / 255.0, 1.0);
}

QString inWords(const QColor& color) {
    return QCoreApplication::translate("NSColorWell", "Red %1, green %2, blue %3, each of 255")
        .arg(color.red())
        .arg(color.green())
        .arg(color.blue());
}

} // namespace

void NSColorWell::attachWidget(QWidget* widget) {
    NSControl::attachWidget(widget);
    auto* button = static_cast<ColorWellButton*>(widget);
    description_ = button->accessibleDescription().toStdString();
    setColor(color_);
    QObject::connect(button, &QPushButton::clicked, button, [this] { openChooser(); });
}

void NSColorWell::setColor(const NSColor& color) {
    auto* button = static_cast<ColorWellButton*>(widget());
    color_ = color;
    button->setColor(toQColor(color));
    const QString words = inWords(button->color());
    button->setAccessibleDescription(
        QString::fromStdString(joined(Joint::Value, {words.toStdString(), description_})));
}

void NSColorWell::choose(const NSColor& color) {
    setColor(color);
    sendAction();
}

void NSColorWell::openChooser() {
    auto* page = widget()->findChild<QDialog*>({}, Qt::FindDirectChildrenOnly);
    if (!page) {
        page = new ColorPage(
            toQColor(color_), [this](const QColor& tried) { choose(toNSColor(tried)); }, widget());
        page->setAttribute(Qt::WA_DeleteOnClose);
    }
    page->show();
    page->raise();
    page->activateWindow();
}
