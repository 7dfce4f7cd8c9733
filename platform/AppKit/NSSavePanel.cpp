// SPDX-License-Identifier: MIT
#include "platform/AppKit/NSSavePanel.h"

#include "platform/AppKit/NSWindow.h"

#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QScreen>
#include <QStandardPaths>

namespace {

constexpr QSize kFrame(16, 48); ///< room for the window manager's frame

using Chosen = std::function<void(const std::string& path)>;

QFileDialog* makeDialog(const NSWindow& window, const std::string& title, Chosen chosen) {
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    auto* dialog = new QFileDialog(window.widget(), QString::fromStdString(title),
                                   QDir(documents).exists() ? documents : QDir::homePath());
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setMaximumSize(dialog->screen()->availableSize() - kFrame); // or it opens larger
    QObject::connect(dialog, &QFileDialog::fileSelected, dialog,
                     [chosen = std::move(chosen)](const QString& path) {
                         chosen(QFile::encodeName(path).toStdString());
                     });
    return dialog;
}

} // namespace

void NSSavePanel::beginSheetModalForWindow(const NSWindow& window, Chosen chosen) {
    QFileDialog* dialog = makeDialog(window, title_, std::move(chosen));
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->selectFile(QString::fromStdString(name_));
    dialog->open();
}

void NSOpenPanel::beginSheetModalForWindow(const NSWindow& window, Chosen chosen) {
    QFileDialog* dialog = makeDialog(window, title_, std::move(chosen));
    dialog->setFileMode(QFileDialog::ExistingFile);
    dialog->open();
}
