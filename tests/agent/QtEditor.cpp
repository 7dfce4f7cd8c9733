// SPDX-License-Identifier: MIT
// A Qt editor with a menu bar and two lines of text, which says the same as gtk_editor.py, as far
// as it is asked. It runs until it is killed.

#include <QApplication>
#include <QMainWindow>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QWindow>

#include <cstdio>

namespace {

void tell(const QString& text) {
    std::puts(text.toUtf8().constData());
    std::fflush(stdout);
}

void addMenus(QMenuBar& bar) {
    for (const char* title : {"File", "Edit"}) {
        QMenu* menu = bar.addMenu(QLatin1String(title));
        menu->addAction("Open");
        menu->addAction("Save");
        QObject::connect(menu, &QMenu::aboutToShow,
                         [title] { tell(QString("menu ") + QLatin1String(title)); });
    }
}

} // namespace

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    QMainWindow window;
    if (argc == 1)
        addMenus(*window.menuBar());
    auto& text = *new QPlainTextEdit("one two\nthree\n");
    window.setCentralWidget(&text);
    QObject::connect(&text, &QPlainTextEdit::textChanged,
                     [&] { tell("text " + text.toPlainText().replace('\n', '|')); });
    QObject::connect(&application, &QGuiApplication::focusWindowChanged, [] { tell("ready"); });
    window.resize(400, 300);
    window.show();
    return QApplication::exec();
}
