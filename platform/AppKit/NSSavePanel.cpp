// SPDX-License-Identifier: MIT
#include "platform/AppKit/NSSavePanel.h"

#include "platform/AppKit/NSWindow.h"

#include <QFile>
#include <QFileDialog>
#include <QStandardPaths>

namespace {

using Chosen = std::function<void(const std::string& path)>;

QFileDialog* makeDialog(const NSWindow& window, const std::string& title, Chosen chosen) {
    auto* dialog =
        new QFileDialog(window.widget(), QString::fromStdString(title),
                        QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
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
