// SPDX-License-Identifier: MIT
// QtMenus menu|submenu|list: a Qt window that opens a menu, one inside of it too, or the list of a
// combo box. It ends when its standard input does.

#include <QApplication>
#include <QComboBox>
#include <QMenu>
#include <QSocketNotifier>
#include <QTimer>

#include <unistd.h>

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    const QString kind = QApplication::arguments().value(1);
    QComboBox choice;
    choice.addItems({QStringLiteral("One"), QStringLiteral("Two"), QStringLiteral("Three")});
    choice.setGeometry(50, 50, 300, 40);
    QMenu menu;
    menu.addAction(QStringLiteral("Open"));
    menu.addAction(QStringLiteral("Save"));
    QMenu* recent = menu.addMenu(QStringLiteral("Recent"));
    recent->addAction(QStringLiteral("First"));
    recent->addAction(QStringLiteral("Second"));
    choice.show();
    QTimer::singleShot(300, [&] {
        if (kind == QLatin1String("list"))
            return choice.showPopup();
        menu.popup({150, 150});
        if (kind == QLatin1String("submenu"))
            menu.setActiveAction(recent->menuAction());
    });
    QSocketNotifier ended(STDIN_FILENO, QSocketNotifier::Read);
    QObject::connect(&ended, &QSocketNotifier::activated, [] { QApplication::quit(); });
    return QApplication::exec();
}
