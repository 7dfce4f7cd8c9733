#include "src/tryout/words.h"

#include <cmath>
#include <cstdarg>
#include <cstdio>

namespace tryout {

namespace {

[[gnu::format(printf, 1, 2)]] std::string format(const char* form, ...) {
    char text[400];
    std::va_list values;
    va_start(values, form);
    std::vsnprintf(text, sizeof text, form, values);
    va_end(values);
    return text;
}

/// Of ten, rounded down: what is promised is kept. The last digits of a share aren't trusted.
int tenths(double share) {
    return static_cast<int>(share * 10 + 1e-9);
}

std::string hitsText(const Advice& advice, const Conditions& tried, const Measured& measured) {
    return format("You stopped within %.0f mm of the mark %d times in %zu. ", tried.target / 2,
                  advice.hits, measured.trials.size());
}

std::string evenText(const Advice& advice) {
    if (advice.timing.spread >= kFinestSpread)
        return {};
    return "Your presses all came at the same moment, as far as this computer can tell. ";
}

std::string expectationText(const Advice& advice) {
    const int expected = tenths(advice.expected), promised = tenths(advice.promised);
    if (expected <= promised)
        return format("we expect at least %d in 10.", promised);
    return format("we expect %d in 10, and at least %d.", expected, promised);
}

std::string tryAgainText(const Advice& advice, const Conditions& tried) {
    return format("A %s line is likely to suit you better. Try it at %.1f seconds, and we can "
                  "tell.",
                  advice.time > tried.sweep.time ? "slower" : "quicker", advice.time);
}

std::string outOfReachText(const Advice& advice, const Conditions& tried) {
    return format("Even at %.0f seconds, the slowest, we can't expect 3 in 4. Targets %.0f mm wide "
                  "would make it so, or a scan area only %.0f mm across.",
                  tried.times.max, std::ceil(advice.neededTarget), std::floor(advice.neededTravel));
}

std::string tooFewText(const Advice& advice, const Measured& measured) {
    return format("You pressed in %d of %zu sweeps. From %d on we can suggest a speed. Try once "
                  "more when you like; a slower line gives you more time.",
                  advice.presses, measured.trials.size(), kFewestTrials);
}

std::string unsteadyText(const Advice& advice, const Measured& measured) {
    const auto all = static_cast<std::size_t>(advice.presses) + measured.extras.size();
    return format("%zu of %zu presses came when nothing asked for them. Before the speed, make "
                  "the presses steadier.",
                  measured.extras.size(), all);
}

} // namespace

std::string resultText(const Advice& advice, const Conditions& tried, const Measured& measured) {
    const std::string hits = hitsText(advice, tried, measured) + evenText(advice);
    switch (advice.verdict) {
    case Verdict::NothingPressed:
        return "No press arrived. Look whether your switch is connected and counts as a trigger, "
               "then try once more.";
    case Verdict::TooFew:
        return tooFewText(advice, measured);
    case Verdict::Unsteady:
        return unsteadyText(advice, measured);
    case Verdict::Random:
        return "The presses came at other moments than the marks, so we can't suggest a speed. "
               "Wait for the line to reach the mark, then press.";
    case Verdict::Tired:
        return hits + "The presses became less even from sweep to sweep. Have a rest, then try "
                      "once more.";
    case Verdict::Keep:
        return hits + format("%.1f seconds suits you: ", advice.time) + expectationText(advice);
    case Verdict::Change:
        return hits + format("At %.1f seconds ", advice.time) + expectationText(advice);
    case Verdict::TryAgain:
        return hits + tryAgainText(advice, tried);
    case Verdict::OutOfReach:
        return hits + outOfReachText(advice, tried);
    }
    return {};
}

std::string steadinessText(const Steadiness& steadiness) {
    std::string text;
    if (steadiness.preScanDelay)
        text += format("Ready for the next press after %.1f seconds. ", *steadiness.preScanDelay);
    if (steadiness.afterClickDelay)
        text += format("Ignoring presses for %.1f seconds after a click would catch most of those "
                       "that nothing asked for. ",
                       *steadiness.afterClickDelay);
    if (steadiness.minTriggerDuration)
        text +=
            format("A shortest press of %.1f seconds would, too. ", *steadiness.minTriggerDuration);
    if (steadiness.holdsOverlap)
        text += "They last as long as your other presses, so no shortest press tells them apart. ";
    if (!text.empty())
        text.pop_back();
    return text;
}

std::string numbersText(const Advice& advice) {
    std::string text =
        format("Lateness %.0f ms, spread %.0f ms (%.0f ms at most), from %d presses.",
               advice.timing.lateness * 1000, advice.timing.spread * 1000,
               advice.cautious.spread * 1000, advice.presses);
    if (advice.surest)
        text += format(" %d in 10 takes %.1f seconds.", tenths(kSurestRate), *advice.surest);
    return text;
}

} // namespace tryout
