// SPDX-License-Identifier: MIT
#include "src/tryout/words.h"

#include "platform/CoreFoundation/Localization.h"

#include <algorithm>
#include <cmath>
#include <cstdarg>
#include <cstdio>

namespace tryout {

namespace {

[[gnu::format(printf, 1, 2)]] std::string format(const char* sentence, ...) {
    const std::string own = localized("Try", sentence);
    char text[1000];
    std::va_list values;
    va_start(values, sentence);
    std::vsnprintf(text, sizeof text, own.c_str(), values);
    va_end(values);
    return localizedNumbers(text);
}

/// In millimetres, with one decimal place unless it is 0: for %g.
double shownLength(double length) {
    return std::round(length * 10) / 10;
}

/// Tenths of a share, rounded down so that promises are kept. Ignores rounding errors in its last
/// digits.
int tenths(double share) {
    return static_cast<int>(share * 10 + 1e-9);
}

std::string howToPress(Trigger::Way way) {
    switch (way) {
    case Trigger::Way::Release:
        return localized("Try", "Press early, and let go when the line is on the mark.");
    case Trigger::Way::Hold:
        return localized(
            "Try", "Hold your switch down to start the line, and let go when it is on the mark.");
    case Trigger::Way::Step:
        return localized("Try", "As you have set it, each press moves the scan one step, and no "
                                "speed matters. Here you can try a line that sweeps: press when it "
                                "is on the mark.");
    case Trigger::Way::Press:
        break;
    }
    return localized("Try", "Press when the line is on the mark.");
}

std::string readyText(const Session& session, const Trigger& trigger) {
    const bool isHold = trigger.way == Trigger::Way::Hold;
    if (session.sweepIndex() == 0)
        return format(
            LOCALIZABLE("Try",
                        "A line will sweep from top to bottom. %s The first two sweeps are for "
                        "getting used to it. Press any key or button when you are ready."),
            howToPress(trigger.way).c_str());
    if (session.isFree())
        return format(
            isHold ? LOCALIZABLE("Try", "Ready. Hold for free sweep %d of %d, when you like.")
                   : LOCALIZABLE("Try", "Ready. Press for free sweep %d of %d, when you like."),
            session.sweepIndex() + 1, kFreeSweeps);
    return format(isHold ? LOCALIZABLE("Try", "Ready. Hold for sweep %d of %d, when you like.")
                         : LOCALIZABLE("Try", "Ready. Press for sweep %d of %d, when you like."),
                  session.sweepIndex() - kFreeSweeps + 1, kMeasuredSweeps);
}

std::string countingText(const Trigger& trigger) {
    const std::string shortest =
        trigger.shortest > 0
            ? format(LOCALIZABLE("Try", "It must last for %.1f seconds."), trigger.shortest)
            : "";
    return joined(Joint::Sentences,
                  {localized("Try", "Any key but Tab and Escape is a press, and any mouse button "
                                    "on the picture."),
                   shortest,
                   localized("Try", "Whether your switch arrives is shown by “First steps”, in the "
                                    "section “General”. Escape leaves.")});
}

static_assert(kUnansweredSweeps == 2); // as the next text says

std::string offerText(const Trigger& trigger) {
    return joined(
        Joint::Sentences,
        {format(LOCALIZABLE("Try", "Two sweeps went by without a press. To leave, press now. To go "
                                   "on, wait %.0f seconds."),
                kOfferTime),
         countingText(trigger)});
}

std::string hitsText(const Advice& advice, const Conditions& tried, const Measured& measured) {
    return format(LOCALIZABLE("Try", "You stopped within %g mm of the mark in %d of %zu sweeps."),
                  shownLength(tried.target / 2), advice.hits, measured.trials.size());
}

std::string evenText(const Advice& advice) {
    if (advice.timing.spread >= kFinestSpread)
        return {};
    return localized("Try",
                     "Your presses all came at the same moment, as far as this computer can tell.");
}

/// "9 in 10, at least 7": what to expect, and what is sure. Both are rounded down.
std::string sharesText(double expected, double promised) {
    return format(LOCALIZABLE("Try", "%d in 10, at least %d"), tenths(std::max(expected, promised)),
                  tenths(promised));
}

/// The speed of now has the same figures beside it.
std::string lineText(const Advice& advice, const Conditions& tried) {
    const std::string shares = sharesText(advice.expected, advice.promised);
    if (advice.verdict == Verdict::Keep)
        return format(LOCALIZABLE("Try", "%.1f seconds suits you: we expect %s."), advice.time,
                      shares.c_str());
    return format(LOCALIZABLE("Try", "At %.1f seconds we expect %s. At %.1f seconds, as it is now: "
                                     "%s."),
                  advice.time, shares.c_str(), tried.sweep.time,
                  sharesText(advice.expectedNow, advice.promisedNow).c_str());
}

/// The result with the pointer after the line.
std::string clicksText(const Advice& advice, const Conditions& tried) {
    if (!tried.pointer)
        return {};
    if (!advice.pointerTime)
        return localized("Try", "The pointer’s speed is too far from the line’s to say how many "
                                "clicks will hit.");
    const std::string shares = sharesText(advice.clicks, advice.clicksPromised);
    if (*advice.pointerTime == tried.pointer->time)
        return format(LOCALIZABLE("Try", "Line and pointer together, with the pointer at %.1f "
                                         "s: %s."),
                      *advice.pointerTime, shares.c_str());
    return format(LOCALIZABLE("Try", "Line and pointer together, with the pointer at %.1f s "
                                     "instead of %.1f: %s."),
                  *advice.pointerTime, tried.pointer->time, shares.c_str());
}

std::string snapText(const Conditions& tried) {
    return tried.point > 0 ? localized("Try", "This counts presses beside a button that stands "
                                              "alone: they click it, too.")
                           : "";
}

std::string tryAgainText(const Advice& advice, const Conditions& tried) {
    return format(advice.time > tried.sweep.time
                      ? LOCALIZABLE("Try", "A slower line is likely to suit you better. Try it at "
                                           "%.1f seconds, and we can tell.")
                      : LOCALIZABLE("Try", "A quicker line is likely to suit you better. Try it at "
                                           "%.1f seconds, and we can tell."),
                  advice.time);
}

std::string outOfReachText(const Advice& advice, const Conditions& tried) {
    // A smaller area wouldn't: it is swept at the same speed.
    return format(
        tried.pointer
            ? LOCALIZABLE("Try", "Even at %.0f seconds, the slowest, we can’t expect 3 clicks in 4 "
                                 "to hit. Targets of %.0f mm would make it so.")
            : LOCALIZABLE("Try", "Even at %.0f seconds, the slowest, we can’t expect 3 in 4. "
                                 "Targets of %.0f mm would make it so."),
        tried.times.max, std::ceil(tried.target * advice.enlargement));
}

std::string tooFewText(const Advice& advice, const Measured& measured) {
    return format(
        LOCALIZABLE("Try",
                    "You pressed in %d of %zu sweeps. From %d on we can suggest a speed. Try once "
                    "more when you like; a slower line gives you more time."),
        advice.presses, measured.trials.size(), kFewestTrials);
}

std::string unsteadyText(const Advice& advice, const Measured& measured) {
    const auto all = static_cast<std::size_t>(advice.presses) + measured.extras.size();
    return format(
        LOCALIZABLE("Try",
                    "%zu of %zu presses came when nothing asked for them. Before the speed, make "
                    "the presses steadier."),
        measured.extras.size(), all);
}

/// Settings that would steady the presses. Empty when nothing was measured.
std::string steadinessText(const Steadiness& steadiness) {
    std::vector<std::string> texts;
    if (steadiness.preScanDelay)
        texts.push_back(format(LOCALIZABLE("Try", "Ready for the next press after %.1f seconds."),
                               *steadiness.preScanDelay));
    if (steadiness.afterClickDelay)
        texts.push_back(format(
            LOCALIZABLE("Try",
                        "Ignoring presses for %.1f seconds after a click would catch most of those "
                        "that nothing asked for."),
            *steadiness.afterClickDelay));
    if (steadiness.minTriggerDuration)
        texts.push_back(format(LOCALIZABLE("Try", "A shortest press of %.1f seconds would, too."),
                               *steadiness.minTriggerDuration));
    if (steadiness.holdsOverlap)
        texts.push_back(localized(
            "Try",
            "They last as long as your other presses, so no shortest press tells them apart."));
    return joined(Joint::Sentences, texts);
}

std::string surestText(const Click& click) {
    if (click.pointer.time <= 0)
        return format(LOCALIZABLE("Try", "At least %d in 10 takes %.1f seconds."),
                      tenths(kSurestRate), click.line.time);
    return format(LOCALIZABLE("Try", "At least %d clicks in 10 takes %.1f seconds for the line and "
                                     "%.1f for the pointer."),
                  tenths(kSurestRate), click.line.time, click.pointer.time);
}

/// For tries with enough presses for advice.
std::string numbersText(const Advice& advice) {
    if (advice.presses < kFewestTrials)
        return {};
    const std::string text = format(
        LOCALIZABLE("Try", "Lateness %.0f ms, spread %.0f ms (%.0f ms at most), from %d presses."),
        advice.timing.lateness * 1000, advice.timing.spread * 1000, advice.cautious.spread * 1000,
        advice.presses);
    const std::string onMiss =
        advice.costOfMiss
            ? format(LOCALIZABLE("Try", "After a miss it took %.1f seconds to go on."),
                     *advice.costOfMiss)
            : "";
    return joined(Joint::Sentences,
                  {text, onMiss, advice.surest ? surestText(*advice.surest) : ""});
}

std::string verdictText(const Advice& advice, const Conditions& tried, const Measured& measured,
                        Trigger::Way way) {
    const auto withHits = [&](const std::string& text, const std::string& more = {}) {
        return joined(Joint::Sentences,
                      {hitsText(advice, tried, measured), evenText(advice), text, more});
    };
    switch (advice.verdict) {
    case Verdict::NothingPressed:
        return format(LOCALIZABLE("Try",
                                  "The line started, but nothing stopped it. %s Try once more "
                                  "when you like."),
                      howToPress(way).c_str());
    case Verdict::TooFew:
        return tooFewText(advice, measured);
    case Verdict::Unsteady:
        return unsteadyText(advice, measured);
    case Verdict::Random:
        return localized(
            "Try", "The presses came at other moments than the marks, so we can’t suggest a speed. "
                   "Wait for the line to reach the mark, then press.");
    case Verdict::Tired:
        return withHits(localized(
            "Try", "The presses became less even from sweep to sweep. Have a rest, then try "
                   "once more."));
    case Verdict::Keep:
    case Verdict::Change:
        return joined(
            Joint::Sentences,
            {withHits(lineText(advice, tried), clicksText(advice, tried)), snapText(tried)});
    case Verdict::TryAgain:
        return withHits(tryAgainText(advice, tried));
    case Verdict::OutOfReach:
        return withHits(outOfReachText(advice, tried));
    }
    return {};
}

} // namespace

std::string resultText(const Advice& advice, const Conditions& tried, const Measured& measured,
                       Trigger::Way way) {
    const std::string text = verdictText(advice, tried, measured, way);
    if (way != Trigger::Way::Step)
        return text;
    return joined(Joint::Sentences,
                  {text, localized("Try", "That is for a line that sweeps; as you have set it, it "
                                          "moves one step a press.")});
}

std::string sharedKeysText() {
    return localized("Try", "On this desktop no window can keep keys for itself, so your switch "
                            "may scan as well meanwhile.");
}

std::string leaveText(const Trigger& trigger) {
    const double seconds = std::ceil(kHoldToLeave + trigger.shortest);
    switch (trigger.way) {
    case Trigger::Way::Release:
        return format(LOCALIZABLE("Try", "To leave, hold your switch down for %.0f seconds between "
                                         "two sweeps."),
                      seconds);
    case Trigger::Way::Hold:
        return format(LOCALIZABLE("Try", "To leave, hold your switch down until the line has "
                                         "passed, and %.0f seconds more."),
                      seconds);
    default:
        return format(
            LOCALIZABLE("Try", "To leave at any time, hold your switch down for %.0f seconds."),
            seconds);
    }
}

std::string holdText(bool isEnough) {
    return isEnough ? localized("Try", "Let go, and you leave.")
                    : localized("Try", "Hold on to leave, or let go to stay.");
}

std::string noPressText(const Trigger& trigger) {
    return joined(Joint::Sentences,
                  {localized("Try", "No press has counted yet."), countingText(trigger)});
}

std::string restText() {
    return localized("Try", "You are having a rest, and your switch scans as ever. Press here to "
                            "go on.");
}

std::string targetText(double height, bool isPaletteButton) {
    return format(isPaletteButton ? LOCALIZABLE("Try", "Target: a palette button, %g mm high")
                                  : LOCALIZABLE("Try", "Target: %g mm"),
                  shownLength(height));
}

std::string detailsText(const Advice& advice, const Steadiness& steadiness) {
    return joined(Joint::Sentences, {numbersText(advice), steadinessText(steadiness)});
}

std::string lastText(const Session& session) {
    const Trial& last = session.last();
    if (!last.pressed)
        return localized("Try", "The line passed.");
    if (std::abs(last.miss) <= session.target() / 2)
        return localized("Try", "On the mark.");
    return format(last.miss < 0 ? LOCALIZABLE("Try", "%.0f mm before the mark.")
                                : LOCALIZABLE("Try", "%.0f mm past the mark."),
                  std::abs(last.miss));
}

std::string courseText(const Session& session, const Trigger& trigger) {
    switch (session.phase()) {
    case Session::Phase::Ready:
        return readyText(session, trigger);
    case Session::Phase::Delay:
        return localized("Try", "Wait for the line.");
    case Session::Phase::Sweeping:
        return localized("Try", "Go.");
    case Session::Phase::Stopped:
        return lastText(session);
    case Session::Phase::Offer:
        return offerText(trigger);
    case Session::Phase::Done:
    case Session::Phase::Left:
        break;
    }
    return {};
}

std::string chartText(double spread) {
    return format(LOCALIZABLE("Try", "Spread of your presses, up to %.0f ms"), spread * 1000);
}

std::string pastTryText(const PastTry& past) {
    return format(
        LOCALIZABLE("Try",
                    "%s: %.1f seconds, hits: %.0f, misses: %.0f, lateness %.0f ms, spread %.0f ms"),
        past.date.c_str(), past.sweepTime, past.hits, past.misses, past.lateness * 1000,
        past.spread * 1000);
}

std::string pastTryRow(const PastTry& past) {
    return format(LOCALIZABLE("Try", "%s | %.1f s | %.0f of %.0f | %.0f ms | %.0f ms"),
                  past.date.c_str(), past.sweepTime, past.hits, past.hits + past.misses,
                  past.lateness * 1000, past.spread * 1000);
}

std::string pastTryHeadings() {
    return localized("Try", "Date | Line | Hits | Lateness | Spread");
}

std::string_view cutCell(std::string_view& row) {
    constexpr std::string_view kBetween = " | ";
    const std::size_t end = std::min(row.find(kBetween), row.size());
    const std::string_view cell = row.substr(0, end);
    row.remove_prefix(std::min(end + kBetween.size(), row.size()));
    return cell;
}

} // namespace tryout
