// SPDX-License-Identifier: MIT
// A Qt 6 window full of buttons, for bench/Snapping.cpp: as gtk.py.

#include <QApplication>
#include <QPushButton>
#include <QTimer>

#include <cstdio>

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    if (argc != 5)
        return 1;
    const auto number = [&](int place) { return QByteArray(argv[place]).toInt(); };
    const int width = number(1), height = number(2), size = number(3), pitch = number(4);
    QWidget window;
    for (int top = pitch / 2; top < height - pitch; top += pitch)
        for (int left = pitch / 2; left < width - pitch; left += pitch)
            (new QPushButton(&window))->setGeometry(left, top, size, size);
    window.resize(width, height);
    window.show();
    QTimer::singleShot(1000, [&] {
        for (const auto* button : window.findChildren<QPushButton*>()) {
            const QPoint place = button->mapToGlobal(QPoint(0, 0));
            std::printf("box %d %d\n", place.x(), place.y());
        }
        std::puts("ready");
        std::fflush(stdout);
    });
    return QApplication::exec();
}
