// SPDX-License-Identifier: MIT
// The least program that loads and shows a form.

#include <QApplication>
#include <QFile>
#include <QUiLoader>
#include <QWidget>

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QFile file(QString::fromLocal8Bit(argc > 1 ? argv[1] : ""));
    if (!file.open(QIODevice::ReadOnly))
        return 1;
    QWidget* form = QUiLoader().load(&file);
    form->show();
    return QApplication::exec();
}
