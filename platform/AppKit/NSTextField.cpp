// SPDX-License-Identifier: MIT
#include "platform/AppKit/NSTextField.h"

#include "platform/AppKit/detail/PaneColors.h"
#include "platform/AppKit/detail/ShownText.h"
#include "platform/AppKit/detail/ValueField.h"

#include <QEvent>
#include <QVariant>

namespace {

constexpr int kFieldMargin = 8; // points beside the text

/// Gives a label a weaker text colour than others, in every palette.
class SecondaryColor final : public QObject {
public:
    explicit SecondaryColor(QLabel* label) : QObject(label) {
        label->installEventFilter(this);
        follow(label);
    }

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::PaletteChange || event->type() == QEvent::ParentChange)
            follow(static_cast<QLabel*>(watched));
        return false;
    }

private:
    static void follow(QLabel* label) {
        const QColor color = PaneColors(label->parentWidget()->palette()).quietText;
        if (label->palette().color(QPalette::WindowText) == color)
            return;
        QPalette palette;
        palette.setColor(QPalette::WindowText, color);
        label->setPalette(palette);
    }
};

} // namespace

void NSTextField::attachWidget(QWidget* widget) {
    NSControl::attachWidget(widget);
    if (widget->property("textColor").toString() == QLatin1String("secondaryLabelColor"))
        new SecondaryColor(static_cast<QLabel*>(widget));
    if (auto* field = dynamic_cast<ValueField*>(widget))
        field->onTyped = [this] { sendAction(); };
    else if (auto* line = qobject_cast<QLineEdit*>(widget)) {
        line->setTextMargins(kFieldMargin, 0, kFieldMargin, 0);
        QObject::connect(line, &QLineEdit::returnPressed, line, [this] { sendAction(); });
    }
}

void NSTextField::setStringValue(std::string_view utf8) {
    const QString text = QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
    if (auto* field = dynamic_cast<ValueField*>(widget())) {
        field->showText(text);
        return;
    }
    if (auto* line = qobject_cast<QLineEdit*>(widget()))
        return line->setText(text);
    auto* label = static_cast<QLabel*>(widget());
    label->setTextFormat(Qt::PlainText);
    label->setText(keptInDirection(text));
    if (label->property("hidesWhenEmpty").toBool())
        label->setVisible(!text.isEmpty());
}

std::string NSTextField::stringValue() const {
    return shownText(widget()).toStdString();
}

void NSTextField::refuse(std::string_view why) {
    if (auto* field = dynamic_cast<ValueField*>(widget()))
        field->refuse(QString::fromUtf8(why.data(), static_cast<qsizetype>(why.size())));
}

void NSTextField::setDoubleValue(double value) {
    setStringValue(QString::number(value, 'g', 6).toStdString());
}
