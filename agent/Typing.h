// SPDX-License-Identifier: MIT
#pragma once

#include "agent/session/Windows.h"

#include <QTimer>

#include <functional>
#include <optional>
#include <string>

/// The on-screen keyboard: Onboard, which is shown and hidden over the session's bus, and started
/// by it. Nothing waits for it.
class Typing {
public:
    /// `windows` must outlive it. Both others are called later: `shown` when the keyboard can be
    /// scanned, `cantDo` with the reason in a sentence.
    Typing(const Windows& windows, std::function<void()> shown,
           std::function<void(const std::string&)> cantDo);

    /// Begins to type, or ends it.
    void toggle();
    void end();

    /// The keyboard's window while it is typed with. None when the user has closed it.
    std::optional<Area> keyboard() const;

    static constexpr double kPatience = 20; ///< seconds that it may take to start

private:
    void begin();
    void lookForWindow();

    const Windows& windows_;
    std::function<void()> shown_;
    std::function<void(const std::string&)> cantDo_;
    bool isTyping_ = false; ///< from when it is asked for
    double until_ = 0;      ///< when its window must be there
    QTimer look_;
};
