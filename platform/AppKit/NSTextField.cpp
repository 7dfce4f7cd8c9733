#include "platform/AppKit/NSTextField.h"

#include <QLabel>

void NSTextField::setStringValue(std::string_view utf8) {
    auto* label = static_cast<QLabel*>(widget());
    label->setTextFormat(Qt::PlainText);
    label->setText(QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size())));
}

std::string NSTextField::stringValue() const {
    return static_cast<const QLabel*>(widget())->text().toStdString();
}

void NSTextField::setDoubleValue(double value) {
    setStringValue(QString::number(value, 'g', 6).toStdString());
}
