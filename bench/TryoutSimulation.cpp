// SPDX-License-Identifier: MIT
#include "bench/SimulatedUser.h"

#include <cstdio>
#include <cstdlib>
#include <vector>

// Whether the speed that a try suggests keeps its promise, for users of whom everything is known.
// Each follows the advice, trying again where it says so, until it is kept or out of reach.

namespace {

constexpr double kFloor = 0.95;

struct Total {
    int advised = 0, kept = 0, tries = 0, told = 0;
    double time = 0;
};

Total runAll(const SimulatedUser& user, bool accelerates, int runs, std::mt19937& random) {
    tryout::Conditions conditions = simulatedConditions();
    conditions.sweep.accelerates = accelerates;
    Total total;
    for (int i = 0; i < runs; ++i) {
        const SimulatedRun run = simulateRun(user, conditions, random);
        total.advised += run.advised;
        total.kept += run.kept;
        total.tries += run.tries;
        total.told += user.verdict == run.first;
        total.time += run.time;
    }
    return total;
}

/// Prints the user's line; whether the promise is kept often enough.
bool report(const SimulatedUser& user, bool accelerates, int runs, std::mt19937& random) {
    const Total total = runAll(user, accelerates, runs, random);
    std::printf("%-24s %-8s ", user.who, accelerates ? "speeding" : "steady");
    if (user.verdict) {
        std::printf("%43s %8.3f\n", "", double(total.told) / runs);
        return true;
    }
    const double kept = total.advised == 0 ? 1 : double(total.kept) / total.advised;
    std::printf("%6.0f %6.0f %8.3f %8.4f %6.2f %6.1f\n", user.timing.lateness * 1000,
                user.timing.spread * 1000, double(total.advised) / runs, kept,
                double(total.tries) / runs, total.advised == 0 ? 0 : total.time / total.advised);
    return kept >= kFloor;
}

} // namespace

/// `korvex_tryout_simulation [runs]`; ends with 1 when a promise is kept in fewer than 95 % of
/// runs.
int main(int count, char** arguments) {
    const int runs = count > 1 ? std::atoi(arguments[1]) : 10000;
    std::mt19937 random(20261);
    std::printf("%-24s %-8s %6s %6s %8s %8s %6s %6s %8s\n", "user", "line", "late", "spread",
                "advised", "kept", "tries", "time", "told");
    bool good = true;
    for (const bool accelerates : {false, true})
        for (const SimulatedUser& user : kSimulatedUsers)
            good = report(user, accelerates, runs, random) && good;
    return good ? 0 : 1;
}
