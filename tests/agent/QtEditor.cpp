// SPDX-License-Identifier: MIT
// A Qt editor with a menu bar and two lines of text, which says the same as gtk_editor.py. It ends
// when its standard input does.

#include <QApplication>
#include <QMainWindow>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QSocketNotifier>

#include <cstdio>
#include <unistd.h>

namespace {

void tell(const QString& text) {
    std::puts(text.toUtf8().constData());
    std::fflush(stdout);
}

class Editor final : public QMainWindow {
public:
    Editor() {
        setWindowTitle(QStringLiteral("Qt editor"));
        if (QApplication::arguments().size() == 1)
            addMenus();
        setCentralWidget(&text_);
        text_.setPlainText(QStringLiteral("one two\nthree\n"));
        connect(&text_, &QPlainTextEdit::textChanged, this, [this] {
            tell(QStringLiteral("text ") + text_.toPlainText().replace(QChar('\n'), QChar('|')));
        });
        resize(400, 300);
    }

    void addMenus() {
        for (const char* title : {"File", "Edit"}) {
            QMenu* menu = menuBar()->addMenu(QLatin1String(title));
            menu->addAction(QStringLiteral("Open"));
            menu->addAction(QStringLiteral("Save"));
            connect(menu, &QMenu::aboutToShow, this,
                    [title] { tell(QStringLiteral("menu ") + QLatin1String(title)); });
        }
    }

    bool event(QEvent* event) override {
        if (event->type() == QEvent::WindowActivate)
            tell(QStringLiteral("ready"));
        return QMainWindow::event(event);
    }

    void closeEvent(QCloseEvent* event) override {
        tell(QStringLiteral("closed"));
        QMainWindow::closeEvent(event);
    }

private:
    QPlainTextEdit text_;
};

} // namespace

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    Editor editor;
    editor.show();
    const QSocketNotifier ended(STDIN_FILENO, QSocketNotifier::Read);
    QObject::connect(&ended, &QSocketNotifier::activated, &application,
                     [] { QApplication::quit(); });
    return QApplication::exec();
}
