// SPDX-License-Identifier: MIT
#include "agent/Sequence.h"

#include <cmath>
#include <utility>

Sequence::Sequence() {
    timer_.setSingleShot(true);
    timer_.setTimerType(Qt::PreciseTimer);
    QObject::connect(&timer_, &QTimer::timeout, [this] { next(); });
}

void Sequence::add(std::function<void()> step, double pause) {
    steps_.push_back({std::move(step), pause});
    run();
}

void Sequence::next() {
    isBusy_ = false;
    run();
}

void Sequence::run() {
    while (!isBusy_ && !steps_.empty()) {
        const Step step = std::move(steps_.front());
        steps_.pop_front();
        isBusy_ = step.pause != 0;
        if (step.pause > 0)
            timer_.start(static_cast<int>(std::lround(step.pause * 1000)));
        step.act();
    }
}

void Sequence::clear() {
    timer_.stop();
    steps_.clear();
    isBusy_ = false;
}
