// SPDX-License-Identifier: MIT
#include "platform/HIToolbox/HotKeyMode.h"

#include "platform/HIToolbox/detail/HeldKeys.h"
#include "platform/HIToolbox/detail/KeyRepeats.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QPointer>
#include <QTimer>
#include <QWindow>

namespace {

constexpr int kLongestGrabMs = 30'000;

/// One use of the mode. It lasts until the keys that are down at its end have come up, then deletes
/// itself.
class HotKeyMode final : public QObject {
public:
    HotKeyMode() : QObject(qApp), window_(QGuiApplication::focusWindow()) {
        longestGrab_.setSingleShot(true);
        longestGrab_.setInterval(kLongestGrabMs);
        connect(&longestGrab_, &QTimer::timeout, this, &HotKeyMode::release);
        grab();
        qApp->installEventFilter(this);
        correctKeyRepeats(); // before this filter sees them
        connect(qApp, &QGuiApplication::focusWindowChanged, this, &HotKeyMode::follow);
    }

    ~HotKeyMode() override { release(); }

    void renew() {
        if (!isGrabbed_ && QGuiApplication::focusWindow() == window_)
            takeKeyboard();
        longestGrab_.start();
    }

    void end() {
        hasEnded_ = true;
        leaveWhenUp();
    }

    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::ShortcutOverride || event->type() == QEvent::KeyPress)
            return pressed(*static_cast<QKeyEvent*>(event));
        if (event->type() == QEvent::KeyRelease)
            return released(*static_cast<QKeyEvent*>(event));
        return false;
    }

private:
    /// Whether the event stops here.
    bool pressed(QKeyEvent& event) {
        // What is offered as a shortcut may be taken as one already. Some are offered without their
        // key.
        const quint32 key = event.nativeScanCode();
        const bool isNoted = event.type() == QEvent::KeyPress || key != 0;
        const bool isOld = hasEnded_ ? held_.contains(key)
                           : isNoted ? held_.isRepeat(event)
                                     : held_.wouldRepeat(event);
        if (isOld)
            event.accept(); // so that it is no shortcut, either
        return isOld;
    }

    bool released(const QKeyEvent& event) {
        const bool isOld = held_.ends(event) && hasEnded_;
        leaveWhenUp();
        return isOld || event.isAutoRepeat(); // half of a repetition is no release
    }

    void follow(const QWindow* focus) {
        if (focus == window_)
            grab();
        else if (hasEnded_)
            leave(); // the keys come up elsewhere
        else
            release();
    }

    void grab() {
        takeKeyboard();
        longestGrab_.start();
        held_.reset();
    }

    void takeKeyboard() {
        // Other platforms can't grab, and print a warning.
        const bool canGrab = QGuiApplication::platformName() == QLatin1String("xcb");
        if (canGrab && window_)
            isGrabbed_ = window_->setKeyboardGrabEnabled(true);
    }

    void release() {
        if (isGrabbed_ && window_)
            window_->setKeyboardGrabEnabled(false);
        isGrabbed_ = false;
    }

    void leaveWhenUp() {
        if (hasEnded_ && held_.isEmpty())
            leave();
    }

    void leave() {
        release();
        qApp->removeEventFilter(this);
        deleteLater();
    }

    QPointer<QWindow> window_;
    QTimer longestGrab_;
    HeldKeys held_;
    bool isGrabbed_ = false;
    bool hasEnded_ = false;
};

/// Null for a token of none. Those of an application that is gone went with it.
HotKeyMode* modeOf(void* token) {
    const bool isThere = qApp && qApp->children().contains(static_cast<QObject*>(token));
    return isThere ? static_cast<HotKeyMode*>(static_cast<QObject*>(token)) : nullptr;
}

} // namespace

void* PushSymbolicHotKeyMode(OptionBits options) {
    return options & kHIHotKeyModeAllDisabled ? static_cast<QObject*>(new HotKeyMode) : nullptr;
}

void RenewSymbolicHotKeyMode(void* token) {
    if (HotKeyMode* mode = modeOf(token))
        mode->renew();
}

void PopSymbolicHotKeyMode(void* token) {
    if (HotKeyMode* mode = modeOf(token))
        mode->end();
}

bool desktopKeepsItsShortcuts() {
    return !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY"); // also where XWayland is
}
