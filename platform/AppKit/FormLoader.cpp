#include "platform/AppKit/FormLoader.h"

#include "platform/AppKit/ColorWellButton.h"
#include "platform/AppKit/PopUpButtonWidget.h"
#include "platform/AppKit/SliderWidget.h"
#include "platform/AppKit/ViewWidget.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QWidget>

#include <utility>

namespace {

/// While it lives, what Qt's form reader would print as a warning goes into a list instead.
class DesignerWarnings {
public:
    DesignerWarnings() {
        collected.clear();
        previous = qInstallMessageHandler(collect);
    }

    ~DesignerWarnings() { qInstallMessageHandler(previous); }

    DesignerWarnings(const DesignerWarnings&) = delete;
    DesignerWarnings& operator=(const DesignerWarnings&) = delete;

    static QStringList take() { return std::exchange(collected, {}); }

private:
    static void collect(QtMsgType type, const QMessageLogContext& context, const QString& text) {
        const QString prefix = QStringLiteral("Designer: ");
        if (text.startsWith(prefix))
            collected << text.mid(prefix.size());
        else if (previous)
            previous(type, context, text);
    }

    static inline QStringList collected;
    static inline QtMessageHandler previous = nullptr;
};

} // namespace

QWidget* FormLoader::loadFile(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        errors_ << file.errorString();
        return nullptr;
    }
    knownWidgets_ = availableWidgets();
    setWorkingDirectory(QFileInfo(path).dir());
    const DesignerWarnings warnings;
    QWidget* form = load(&file);
    if (form)
        errors_ << DesignerWarnings::take();
    else
        errors_ << errorString();
    return form;
}

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
