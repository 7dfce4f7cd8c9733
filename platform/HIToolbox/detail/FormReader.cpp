// SPDX-License-Identifier: MIT
#include "platform/HIToolbox/detail/FormReader.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <utility>

namespace {

/// While it exists, warnings of Qt's form reader go into a list and aren't printed.
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

FormReader::WithoutPlugins::WithoutPlugins() : paths_(QCoreApplication::libraryPaths()) {
    QCoreApplication::setLibraryPaths({});
}

FormReader::WithoutPlugins::~WithoutPlugins() {
    QCoreApplication::setLibraryPaths(paths_);
}

QWidget* FormReader::loadFile(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        errors_ << file.errorString();
        return nullptr;
    }
    setWorkingDirectory(QFileInfo(path).dir());
    const DesignerWarnings warnings;
    QWidget* form = load(&file);
    if (form)
        errors_ << DesignerWarnings::take();
    else
        errors_ << errorString();
    return form;
}
