// SPDX-License-Identifier: MIT
// A capture of a hot key in the real form, against the sending of the change alone.

#include "bench/Figures.h"
#include "src/prefpane/Daemon.h"
#include "src/prefpane/VLDKorvexPane.h"

#include "platform/AppKit/NSView.h"

#include <QApplication>
#include <QKeyEvent>
#include <QTabWidget>

#include <linux/input-event-codes.h>

#include <cstdlib>
#include <string>
#include <vector>

namespace {

/// The pane, shown as the host shows it.
class OpenPane {
public:
    OpenPane()
        : bundle_(
              CFBundleCreate(CFURLCreateFromFileSystemRepresentation(KORVEX_BUNDLE, true).get())) {
        pane_.initWithBundle(bundle_.get());
        std::vector<std::string> errors;
        if (!pane_.loadMainView(errors))
            std::abort();
        pane_.mainViewDidLoad();
        window_ = pane_.mainView()->widget();
        hotKey_ = window_->findChild<QWidget*>(QStringLiteral("scanKey"));
        auto* tabs = window_->findChild<QTabWidget*>(QStringLiteral("prefsTabs"));
        window_->show();
        window_->activateWindow();
        while (!window_->isActiveWindow())
            QCoreApplication::processEvents();
        for (int i = 0; i < tabs->count(); ++i)
            if (tabs->widget(i)->isAncestorOf(hotKey_))
                tabs->setCurrentIndex(i);
    }

    /// Seconds from a key's press, of which the hot key's capture makes use, until the change is
    /// sent. Negative when it didn't.
    double capture() {
        hotKey_->setFocus();
        QCoreApplication::processEvents(); // draws it
        prefs.hotKeys[1] = {};
        const double seconds = secondsOf([this] {
            send(QEvent::ShortcutOverride);
            send(QEvent::KeyPress);
        });
        send(QEvent::KeyRelease);
        return prefs.hotKeys[1].keyCode == kCaptured ? seconds : -1;
    }

private:
    static constexpr SInt32 kCaptured = 0x07;

    void send(QEvent::Type type) {
        QWidget* focus = window_->focusWidget() ? window_->focusWidget() : window_;
        QKeyEvent event(type, Qt::Key_X, Qt::MetaModifier, KEY_X + 8, 0, 0);
        QCoreApplication::sendEvent(focus, &event);
    }

    CFRef<CFBundle> bundle_;
    VLDKorvexPane pane_;
    QWidget* window_;
    QWidget* hotKey_;
};

double captureUntilSent() {
    static auto* pane = new OpenPane; // lives as long as the application
    return pane->capture();
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
