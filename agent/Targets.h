// SPDX-License-Identifier: MIT
#pragma once

#include "agent/scan/Snap.h"
#include "agent/session/Windows.h"

#include <QObject>

#include <vector>

/// What can be pressed in a part of the screen, as the programs there tell assistive technologies.
/// They are asked in another thread, for a second at most: one that hangs delays nothing.
class Targets {
public:
    /// Looks for them. `windows` has all that are shown, the topmost first. What was found before
    /// is forgotten.
    void lookFor(const std::vector<Windows::Shown>& windows, const Area& part);

    /// What has been found until now; more may come. What another window covers isn't there.
    const std::vector<Target>& found() const { return found_; }

    void forget();

private:
    std::vector<Target> found_;
    int search_ = 0;  ///< the number of the present one: answers to others are late
    QObject context_; ///< of answers
};
