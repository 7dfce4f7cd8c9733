// SPDX-License-Identifier: MIT
// Whether the built agent keeps what a try promises. A simulated user makes tries, follows their
// advice, and then clicks targets of the try's size at random places, in real time.

#include "bench/AgentDesktop.h"
#include "bench/SimulatedUser.h"
#include "src/record/palactions.h"
#include "src/tryout/session.h"
#include "src/tryout/tryconditions.h"

#include <QCoreApplication>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <numeric>
#include <thread>
#include <vector>

namespace {

constexpr int kWidth = 800, kHeight = 600;
constexpr double kMillimetresAPixel = 25.4 / 96; ///< as Xvfb says
constexpr tryout::TargetChoice kTarget = 30;     ///< mm; large, so that the sweeps are short
constexpr int kTargets = 200;
constexpr int kDesktops = 20; ///< that work at the same time
constexpr int kMostTries = 10;
constexpr double kPress = 0.1;  ///< seconds that a press of a try takes
constexpr double kRest = 1;     ///< seconds between the sweeps of a try
constexpr double kAfter = 0.03; ///< seconds; a press comes no sooner after the end of another
/// A promise that is just true may fail this test with that probability.
constexpr double kRisk = 0.01;
constexpr int kEscape = 9;
constexpr unsigned kSeed = 20261;

/// A promise, and what it is made for.
struct Promise {
    tryout::Conditions conditions; ///< with the times that were advised
    double share = 0;              ///< of the clicks; 0: nothing was promised
    int tries = 0;
};

PrefsRecord recordOfUser() {
    PrefsRecord record = scanKeyRecord();
    record.preScanDelay = 0.5;
    record.lineScanTime = record.pointerScanTime = 4; // at first
    record.clickDuration = 10;
    record.snapping = 0;                                   // the targets are no buttons
    std::ranges::fill(record.buttonActions, kEmptyAction); // no palette covers a target
    return record;
}

/// A whole try, by the page's own code. Its moments are told, not waited for.
tryout::Measured makeTry(const SimulatedUser& user, const tryout::Conditions& conditions,
                         std::mt19937& random) {
    using enum tryout::Session::Phase;
    const Sweep& sweep = conditions.sweep;
    tryout::Session session(sweep, conditions.target, conditions.delay, {},
                            static_cast<unsigned>(random()));
    const auto press = [&](double moment) {
        session.press(moment);
        session.release(moment + kPress);
        return moment;
    };
    double now = 0;
    while (session.phase() != Done) {
        session.advance(now += kRest);
        if (session.phase() != Ready)
            continue;
        const double started = press(now) + conditions.delay;
        const double crossing = sweep.timeAt(session.mark());
        const double wanted = pressTime(user, sweep, crossing, user.timing.spread, random);
        now = press(std::max(started + wanted, now + kPress + kAfter)) + kPress;
    }
    return session.measured();
}

Promise followAdvice(const SimulatedUser& user, std::mt19937& random) {
    const tryout::Extent points = {kWidth, kHeight};
    const tryout::Extent size = {kWidth * kMillimetresAPixel, kHeight * kMillimetresAPixel};
    Promise promise = {.conditions = tryout::conditionsOf(recordOfUser(), points, size, kTarget)};
    tryout::Conditions& conditions = promise.conditions;
    tryout::Earlier earlier;
    while (promise.tries++ < kMostTries) {
        tryout::Measured measured = makeTry(user, conditions, random);
        measured.earlier = earlier;
        const tryout::Advice advice = tryout::advise(measured, conditions);
        if (advice.verdict == tryout::Verdict::Keep && advice.pointerTime) {
            conditions.pointer->time = *advice.pointerTime;
            promise.share = advice.clicksPromised;
            return promise;
        }
        remember(earlier, measured, conditions);
        conditions.sweep.time = advice.time;
    }
    return promise;
}

/// One user before one desktop. Lengths are in millimetres.
class Clicking {
public:
    Clicking(AgentDesktop& desktop, const SimulatedUser& user, const tryout::Conditions& conditions,
             unsigned seed)
        : desktop_(desktop), user_(user), conditions_(conditions), random_(seed) {}

    /// The number of targets that were hit.
    int hits(int targets) {
        int hits = 0;
        for (int i = 0; i < targets; ++i)
            hits += isHit();
        return hits;
    }

private:
    bool isHit() {
        const Sweep& down = conditions_.sweep;
        const Sweep& right = *conditions_.pointer;
        const double y = placeOn(down, conditions_.target);
        const double x = placeOn(right, conditions_.across);
        aim(right, x, aim(down, y, desktop_.press()));
        const auto click = desktop_.next(XCB_BUTTON_PRESS);
        if (!click || !desktop_.next(XCB_BUTTON_RELEASE)) {
            desktop_.press(kEscape);
            return false;
        }
        return std::abs(click->y * kMillimetresAPixel - y) <= conditions_.target / 2 &&
               std::abs(click->x * kMillimetresAPixel - x) <= conditions_.across / 2;
    }

    /// The middle of a target that is all on the screen.
    double placeOn(const Sweep& sweep, double size) {
        return std::uniform_real_distribution<>(size / 2, sweep.travel - size / 2)(random_);
    }

    /// Stops what sets off after the last press.
    AgentDesktop::Span aim(const Sweep& sweep, double place, AgentDesktop::Span last) {
        const double wanted =
            pressTime(user_, sweep, sweep.timeAt(place), user_.timing.spread, random_);
        sleepUntil(std::max(last.middle() + conditions_.delay + wanted, last.to + kPress + kAfter));
        return desktop_.press();
    }

    AgentDesktop& desktop_;
    const SimulatedUser& user_;
    const tryout::Conditions& conditions_;
    std::mt19937 random_;
};

int clickAll(const std::vector<std::unique_ptr<AgentDesktop>>& desktops, const SimulatedUser& user,
             const tryout::Conditions& conditions, int targets) {
    std::vector<int> hits(desktops.size());
    std::vector<std::thread> threads;
    const auto all = static_cast<int>(desktops.size());
    for (int i = 0; i < all; ++i)
        threads.emplace_back([&, i] {
            const int share = targets / all + (i < targets % all);
            hits[i] = Clicking(*desktops[i], user, conditions, kSeed + i).hits(share);
        });
    for (std::thread& thread : threads)
        thread.join();
    return std::accumulate(hits.begin(), hits.end(), 0);
}

/// The least number of hits that isn't rarer than kRisk when each has this probability.
int leastHits(int targets, double share) {
    double term = std::pow(1 - share, targets), sum = term;
    int hits = 0;
    while (sum <= kRisk && hits < targets) {
        term *= (targets - hits) / (hits + 1.0) * share / (1 - share);
        sum += term;
        ++hits;
    }
    return hits;
}

/// What the user would hit with an agent without any fault.
double trueShare(const SimulatedUser& user, const tryout::Conditions& conditions) {
    return hitRate(conditions.sweep, conditions.target, user.timing) *
           hitRate(*conditions.pointer, conditions.across, user.timing);
}

bool isKept(const std::vector<std::unique_ptr<AgentDesktop>>& desktops, const SimulatedUser& user,
            int targets) {
    std::mt19937 random(kSeed);
    const Promise promise = followAdvice(user, random);
    PrefsRecord record = recordOfUser();
    record.lineScanTime = promise.conditions.sweep.time;
    record.pointerScanTime = promise.conditions.pointer->time;
    std::printf("%s, late %.0f ms, spread %.0f ms: after %d tries line %.1f s, pointer %.1f s, "
                "promised %.3f; ",
                user.who, user.timing.lateness * 1000, user.timing.spread * 1000, promise.tries,
                record.lineScanTime, record.pointerScanTime, promise.share);
    std::fflush(stdout);
    if (promise.share <= 0)
        return false;
    for (const auto& desktop : desktops)
        if (!desktop->startAgent(record))
            return false;
    const int hits = clickAll(desktops, user, promise.conditions, targets);
    const int least = leastHits(targets, promise.share);
    std::printf("%d of %d hit (%.3f, at best %.3f), %d at the least\n", hits, targets,
                double(hits) / targets, trueShare(user, promise.conditions), least);
    return hits >= least;
}

} // namespace

/// `korvex_promise [targets]`; ends with 1 when a user hits so few that a promise that is true
/// would lead to it in fewer than one of a hundred runs. Tries and presses are the same in each
/// run.
int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    const int targets = argc > 1 ? std::atoi(argv[1]) : kTargets;
    std::vector<std::unique_ptr<AgentDesktop>> desktops;
    for (int i = 0; i < kDesktops; ++i)
        desktops.push_back(std::make_unique<AgentDesktop>(kWidth, kHeight));
    bool good = true;
    for (const int user : {1, 4}) // even, and shaky
        good = isKept(desktops, kSimulatedUsers[user], targets) && good;
    return good ? 0 : 1;
}
