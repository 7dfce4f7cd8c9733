// SPDX-License-Identifier: MIT
#pragma once

#include "agent/session/OnScreenKeyboard.h"
#include "agent/session/Windows.h"

#include <QDBusPendingCall>
#include <QTimer>

#include <functional>
#include <optional>
#include <string>

/// Typing with a keyboard on the screen. Nothing waits for it.
class Typing {
public:
    /// `keyboard` and `windows` must outlive it. Both others are called later: `shown` when the
    /// keyboard can be scanned, `cantDo` with the reason in a sentence.
    Typing(const OnScreenKeyboard& keyboard, const Windows& windows, std::function<void()> shown,
           std::function<void(const std::string&)> cantDo);

    /// Begins to type, or ends it.
    void toggle();
    void end();

    /// The keyboard's window while it is typed with. None when the user has closed it, or nobody
    /// tells.
    std::optional<Area> keyboard() const;

private:
    void begin();
    void lookForWindow();
    QDBusPendingCall call(bool isShown) const;
    std::string reasonOf(const QDBusError& error) const;

    const OnScreenKeyboard& keyboard_;
    const Windows& windows_;
    std::function<void()> shown_;
    std::function<void(const std::string&)> cantDo_;
    bool isTyping_ = false; ///< from when it is asked for
    double until_ = 0;      ///< when its window must be there
    QTimer look_;
};
