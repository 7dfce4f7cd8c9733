// SPDX-License-Identifier: MIT
// A capture of a hot key in the real form. Floor: sending the change alone.

#include "bench/Figures.h"
#include "bench/OpenPane.h"
#include "src/link/Daemon.h"

#include <QApplication>
#include <QKeyEvent>
#include <QWidget>

#include <linux/input-event-codes.h>

namespace {

constexpr SInt32 kCaptured = 0x07;

void send(QEvent::Type type) {
    QWidget& window = OpenPane::instance().window();
    QWidget* focus = window.focusWidget() ? window.focusWidget() : &window;
    QKeyEvent event(type, Qt::Key_X, Qt::MetaModifier, KEY_X + 8, 0, 0);
    QCoreApplication::sendEvent(focus, &event);
}

/// Seconds from the key press of a capture until the change is sent. Negative when it isn't.
double captureUntilSent() {
    auto& hotKey = OpenPane::instance().part<QWidget>("scanKey");
    OpenPane::instance().showSectionOf(hotKey);
    hotKey.setFocus();
    QCoreApplication::processEvents(); // draws it
    prefs.hotKeys[1] = {};
    const double seconds = secondsOf([] {
        send(QEvent::ShortcutOverride);
        send(QEvent::KeyPress);
    });
    send(QEvent::KeyRelease);
    return prefs.hotKeys[1].keyCode == kCaptured ? seconds : -1;
}

double change() {
    return secondsOf([] {
        prefsWereChanged();
        daemonSendChanges(kChangeHotKeys, true);
    });
}

} // namespace

void addHotKeyFigures() {
    addFigure("a hot key's capture until the change is sent", {Limit::Plus, 0.002},
              captureUntilSent, change);
}
