// SPDX-License-Identifier: MIT
#include "bench/SimulatedUser.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <vector>

// Whether the speed that a try suggests keeps its promise, for users of whom everything is known.
// Each follows the advice, trying again where it says so and after each change, until the line's
// time is kept or out of reach.

namespace {

constexpr double kFloor = 0.95;

struct Total {
    int advised = 0, kept = 0, changed = 0, changeKept = 0, held = 0, tries = 0, told = 0;
    double time = 0, pointerTime = 0;
};

Total runAll(const SimulatedUser& user, bool accelerates, int runs, std::mt19937& random) {
    tryout::Conditions conditions = simulatedConditions();
    conditions.sweep.accelerates = conditions.pointer->accelerates = accelerates;
    Total total;
    for (int i = 0; i < runs; ++i) {
        const SimulatedRun run = simulateRun(user, conditions, random);
        total.advised += run.advised;
        total.kept += run.kept;
        total.changed += run.isChanged;
        total.changeKept += run.isChanged && run.isChangeKept;
        total.held += run.isChangeKept && run.kept == run.advised;
        total.tries += run.tries;
        total.told += user.verdict == run.first;
        total.time += run.advised ? run.time : 0;
        total.pointerTime += run.pointerTime;
    }
    return total;
}

double share(double part, int all) {
    return all == 0 ? 1 : part / all;
}

/// Prints the user's line; whether the promises are kept often enough, among those made and in all.
bool report(const SimulatedUser& user, bool accelerates, int runs, std::mt19937& random) {
    const Total total = runAll(user, accelerates, runs, random);
    std::printf("%-24s %-8s ", user.who, accelerates ? "speeding" : "steady");
    if (user.verdict) {
        std::printf("%66s %7.3f\n", "", share(total.told, runs));
        return true;
    }
    const double held = share(total.held, runs), kept = share(total.kept, total.advised);
    const double changeKept = share(total.changeKept, total.changed);
    std::printf("%6.0f %6.0f %7.3f %7.4f %7.4f %7.4f %5.2f %6.1f %7.1f\n",
                user.timing.lateness * 1000, user.timing.spread * 1000, share(total.advised, runs),
                held, kept, changeKept, share(total.tries, runs), share(total.time, total.advised),
                share(total.pointerTime, total.advised));
    return std::min({held, kept, changeKept}) >= kFloor;
}

} // namespace

/// `korvex_tryout_simulation [runs]`; ends with 1 when in fewer than 95 % of a user's runs all that
/// was promised is true, or in fewer of those with a promise, at the end or at the first change.
int main(int count, char** arguments) {
    const int runs = count > 1 ? std::atoi(arguments[1]) : 10000;
    std::mt19937 random(20261);
    std::printf("%-24s %-8s %6s %6s %7s %7s %7s %7s %5s %6s %7s %7s\n", "user", "line", "late",
                "spread", "advised", "held", "kept", "change", "tries", "time", "pointer", "told");
    bool good = true;
    for (const bool accelerates : {false, true})
        for (const SimulatedUser& user : kSimulatedUsers)
            good = report(user, accelerates, runs, random) && good;
    return good ? 0 : 1;
}
