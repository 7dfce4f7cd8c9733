// SPDX-License-Identifier: MIT
#include "host/Sections.h"

#include "platform/CoreFoundation/UserFiles.h"

#include <QFile>
#include <QFileInfo>
#include <QStackedWidget>

namespace {

constexpr char kLast[] = "last";
constexpr qint64 kLongestName = 100;

std::string fileOfLast() {
    return userStateFolder() + "/korvex/section";
}

QString lastSection() {
    QFile file(QString::fromStdString(fileOfLast()));
    return QFileInfo(file).isFile() && file.open(QIODevice::ReadOnly)
               ? QString::fromUtf8(file.read(kLongestName))
               : QString();
}

/// As it is named to a user's commands. Empty for a page that is no section.
QString nameOf(const QWidget* page) {
    return page->property("section").toString().replace(' ', '-').toLower();
}

/// Shows the page in every stack around it.
void turnTo(QWidget* page) {
    for (QWidget* leaf = page; QWidget* around = leaf->parentWidget(); leaf = around)
        if (auto* stack = qobject_cast<QStackedWidget*>(around))
            stack->setCurrentWidget(leaf);
}

} // namespace

bool showSection(QWidget* pane, const QString& name) {
    const bool isLast = name == QLatin1String(kLast);
    const QString wanted = isLast ? lastSection() : name.toLower();
    for (QWidget* page : pane->findChildren<QWidget*>())
        if (const QString section = nameOf(page); !section.isEmpty() && section == wanted) {
            turnTo(page);
            return true;
        }
    return isLast;
}

void keepSection(QWidget* pane) {
    for (const QWidget* page : pane->findChildren<QWidget*>())
        if (const QString section = nameOf(page); !section.isEmpty() && page->isVisibleTo(pane))
            replaceUserFile(fileOfLast(), section.toStdString());
}
