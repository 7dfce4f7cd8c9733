// SPDX-License-Identifier: MIT
// The agent at work on a display of its own. Floor of a click: a bare program that has the key and
// clicks at once.

#include "agent/x11/XServer.h"
#include "bench/AgentDesktop.h"
#include "bench/Figures.h"
#include "bench/ShownLine.h"
#include "bench/Threads.h"
#include "src/scan/sweep.h"

#include <algorithm>
#include <cmath>
#include <csignal>
#include <fstream>
#include <random>
#include <unistd.h>
#include <vector>

namespace {

constexpr int kWidth = 1920, kHeight = 1080;
constexpr int kBareKey = 39; ///< S
constexpr int kScans = 100;
constexpr double kShortestWait = 0.05, kLongestWait = 0.2; ///< seconds, for a press in a sweep
constexpr double kSweepTime = 4, kRestTime = 20;           ///< seconds that are watched
constexpr double kSettling = 1;                            ///< seconds
constexpr double kMoreMemory = 8 << 20;                    ///< bytes: 30 MB in all, with Qt's 22
constexpr double kShare95 = 0.95, kShare99 = 0.99;

AgentDesktop& desktop() {
    static AgentDesktop instance(kWidth, kHeight);
    return instance;
}

/// As quick as it goes, so that a pixel is little time.
PrefsRecord quickRecord() {
    PrefsRecord record = scanKeyRecord();
    record.preScanDelay = 0;
    record.lineScanTime = record.pointerScanTime = 1;
    record.clickDuration = 10;
    return record;
}

double valueAt(std::vector<double> values, double share) {
    if (values.empty())
        return -1;
    const auto place =
        values.begin() + static_cast<long>(share * static_cast<double>(values.size() - 1));
    std::ranges::nth_element(values, place);
    return *place;
}

/// What a hundred scans showed, in seconds.
struct Scans {
    std::vector<double> clicks, bareClicks; ///< from a press until the window has its click
    std::vector<double> places;             ///< the line must go on so long to be where it should
    std::vector<double> lines;              ///< the same of the line on the screen

    bool add(double untilLine, double untilPointer);
    bool addBare();
};

double inTime(double pixels, const Sweep& sweep) {
    return std::abs(pixels) * sweep.time / sweep.travel;
}

bool Scans::add(double untilLine, double untilPointer) {
    const Sweep down = {kHeight, quickRecord().lineScanTime};
    const Sweep right = {kWidth, quickRecord().pointerScanTime};
    static ShownLine shown(kWidth, quickRecord().lineThickness);
    const auto start = desktop().press();
    for (double now = start.to; now < start.to + untilLine; now = XServer::now()) {
        if (const auto seen = shown.look())
            lines.push_back(
                inTime(seen->place - down.positionAt(seen->moment - start.middle()), down));
        sleepUntil(XServer::now() + 0.001);
    }
    const auto line = desktop().press();
    sleepUntil(line.to + untilPointer);
    const auto pointer = desktop().key(AgentDesktop::kScanKey, true);
    const auto click = desktop().next(XCB_BUTTON_PRESS);
    desktop().key(AgentDesktop::kScanKey, false);
    if (!click || !desktop().next(XCB_BUTTON_RELEASE))
        return false;
    clicks.push_back(click->moment - pointer.from);
    places.push_back(inTime(click->y - down.positionAt(line.middle() - start.middle()), down));
    places.push_back(inTime(click->x - right.positionAt(pointer.middle() - line.middle()), right));
    return true;
}

bool Scans::addBare() {
    const auto press = desktop().key(kBareKey, true);
    const auto click = desktop().next(XCB_BUTTON_PRESS);
    desktop().key(kBareKey, false);
    if (click)
        bareClicks.push_back(click->moment - press.from);
    return click && desktop().next(XCB_BUTTON_RELEASE);
}

/// The program with the bare key.
class BareAgent {
public:
    BareAgent() {
        desktop().start(program_, QStringLiteral(BARE_AGENT), {QString::number(kBareKey)});
        program_.waitForReadyRead();
    }

    ~BareAgent() {
        program_.kill();
        program_.waitForFinished();
    }

    qint64 process() const { return program_.processId(); }

private:
    QProcess program_;
};

const BareAgent& bareAgent() {
    static const BareAgent instance;
    return instance;
}

/// Empty where something failed.
Scans makeScans() {
    Scans scans;
    bareAgent();
    if (!desktop().startAgent(quickRecord()))
        return {};
    std::mt19937 random(1);
    std::uniform_real_distribution<> wait(kShortestWait, kLongestWait);
    for (int i = 0; i < kScans; ++i)
        if (!scans.add(wait(random), wait(random)) || !scans.addBare())
            return {};
    return scans;
}

const Scans& scans() {
    static const Scans made = makeScans();
    return made;
}

/// The value of a line of /proc/…/status.
double statusValue(std::ifstream& file, const std::string& key) {
    for (std::string word; file >> word;)
        if (word == key + ":") {
            double value = 0;
            file >> value;
            return value;
        }
    return 0;
}

struct Processor {
    double agent = -1, all = -1; ///< shares
};

/// While a line sweeps, and nobody looks.
const Processor& processorInSweep() {
    static const Processor used = [] {
        PrefsRecord record = quickRecord();
        record.lineScanTime = kSweepTime + 1;
        if (!desktop().startAgent(record))
            return Processor{};
        desktop().press();
        const auto agent = [] { return processorSeconds(desktop().agent()); };
        const auto server = [] { return processorSeconds(desktop().server()); };
        const double agentBefore = agent(), serverBefore = server();
        const double began = XServer::now();
        sleepUntil(began + kSweepTime);
        const double seconds = XServer::now() - began;
        const double byAgent = (agent() - agentBefore) / seconds;
        if (byAgent <= 0)
            return Processor{}; // this kernel doesn't count
        return Processor{byAgent, byAgent + (server() - serverBefore) / seconds};
    }();
    return used;
}

/// How often the agent's threads went to sleep again while nothing happened.
double wakeUpsAtRest() {
    static const double count = [] {
        const auto sleeps = [] {
            double sum = 0;
            forEachThread(desktop().agent(), "status", [&](std::ifstream& file) {
                sum += statusValue(file, "voluntary_ctxt_switches");
            });
            return sum;
        };
        if (!desktop().startAgent(quickRecord()))
            return -1.0;
        sleepUntil(XServer::now() + kSettling);
        const double before = sleeps();
        sleepUntil(XServer::now() + kRestTime);
        return before > 0 ? sleeps() - before : -1.0;
    }();
    return count;
}

double residentBytes(qint64 process) {
    std::ifstream file("/proc/" + std::to_string(process) + "/status");
    return statusValue(file, "VmRSS") * 1024;
}

double agentMemory() {
    if (scans().clicks.empty())
        return -1;
    return residentBytes(desktop().agent());
}

double bareMemory() {
    return residentBytes(bareAgent().process());
}

/// From the end of an agent that holds a button until the window hears that it came up.
double killInClick() {
    PrefsRecord record = quickRecord();
    record.clickDuration = 500;
    if (!desktop().startAgent(record))
        return -1;
    for (int i = 0; i < 3; ++i) {
        desktop().press();
        sleepUntil(XServer::now() + kShortestWait);
    }
    if (!desktop().next(XCB_BUTTON_PRESS))
        return -1;
    const double killed = XServer::now();
    kill(desktop().agent(), SIGKILL);
    const auto release = desktop().next(XCB_BUTTON_RELEASE);
    return release ? release->moment - killed : -1;
}

} // namespace

void addAgentFigures() {
    const Measure median = [] { return valueAt(scans().clicks, 0.5); };
    const Measure bareMedian = [] { return valueAt(scans().bareClicks, 0.5); };
    addFigure("agent: a press until its click is in a window", {Limit::Times, 5}, median,
              bareMedian);
    addFigure("agent: that in seconds", {Limit::Seconds, 0.002}, median, bareMedian);
    addFigure(
        "agent: that of 99 in 100", {Limit::Seconds, 0.008},
        [] { return valueAt(scans().clicks, kShare99); },
        [] { return valueAt(scans().bareClicks, kShare99); });
    addFigure("agent: how far 95 in 100 clicks are off, in travel", {Limit::Seconds, 0.002},
              [] { return valueAt(scans().places, kShare95); });
    addFigure("agent: how far 99 in 100 looks find the line off", {Limit::Seconds, 0.0125},
              [] { return valueAt(scans().lines, kShare99); });
    addFigure("agent: resident memory", {Limit::Bytes, kMoreMemory}, agentMemory, bareMemory);
    addFigure("agent: processor in a sweep", {Limit::Share, 0.01},
              [] { return processorInSweep().agent; });
    addFigure("agent: that with the display server's", {Limit::Share, 0.025},
              [] { return processorInSweep().all; });
    addFigure("agent: wake-ups in 20 s at rest", {Limit::Count, 0}, wakeUpsAtRest);
    addFigure("agent: killed, until its button is up", {Limit::Seconds, 0.05}, killInClick);
}
