// SPDX-License-Identifier: MIT
#pragma once

#include <QTimer>

#include <deque>
#include <functional>

/// Steps one after the other, with time between them. The first is taken at once.
class Sequence {
public:
    Sequence();

    /// `pause` is seconds from this step to the next; kUntilNext: until next() is called, which may
    /// be in the step itself.
    void add(std::function<void()> step, double pause = 0);
    static constexpr double kUntilNext = -1;
    void next();

    /// Drops the steps that are left.
    void clear();

private:
    struct Step {
        std::function<void()> act;
        double pause;
    };

    void run();

    std::deque<Step> steps_;
    bool isBusy_ = false; ///< a step is taken, or its pause isn't over
    QTimer timer_;
};
