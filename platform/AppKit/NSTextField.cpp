#include "platform/AppKit/NSTextField.h"

#include <QEvent>
#include <QLabel>
#include <QVariant>

namespace {

constexpr float kSecondaryShare = 0.7F; // of the text's colour; 4.5 : 1 at least in usual palettes

/// Keeps a label's text between the palette's colours of text and background.
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
        const QPalette around = label->parentWidget()->palette();
        const QColor text = around.color(QPalette::WindowText);
        const QColor ground = around.color(QPalette::Window);
        const auto blend = [](float a, float b) {
            return a * kSecondaryShare + b * (1 - kSecondaryShare);
        };
        const QColor color = QColor::fromRgbF(blend(text.redF(), ground.redF()),
                                              blend(text.greenF(), ground.greenF()),
                                              blend(text.blueF(), ground.blueF()));
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
}

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
