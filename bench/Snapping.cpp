// SPDX-License-Identifier: MIT
// What snapping is worth. Simulated users aim at buttons of real programs, at places that the
// agent's own modules ask the programs for. The presses are sums, not waited for: a slow line takes
// minutes.

#include "src/scan/snapping.h"
#include "agent/Accessibility.h"
#include "agent/Targets.h"
#include "agent/x11/XWindows.h"
#include "bench/SimulatedUser.h"
#include "bench/SnappingAtWork.h"

#include <QCoreApplication>
#include <QProcess>
#include <QThreadPool>

#include <cmath>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <map>

namespace {

constexpr int kWidth = 1920, kHeight = 1080;                   ///< of the screen
constexpr int kWindowWidth = 1000, kWindowHeight = 700;        ///< about, of a program
constexpr int kGap = 40;                                       ///< pixels between two buttons
constexpr int kClicks = 400;                                   ///< for each program and size
constexpr double kMillimetresAPoint = 25.4 / 96, kDelay = 0.5; ///< seconds, before line and pointer
constexpr double kUsual = 10, kSlowest = 60;                   ///< seconds
constexpr int kLongestStart = 60'000;                          ///< ms
constexpr unsigned kSeed = 27;
const QStringList kOpenbox = {QStringLiteral("--config-file"),
                              QStringLiteral("/etc/xdg/openbox/rc.xml")};

const SimulatedUser kUsers[] = {
    {"even", {0.05, 0.05}}, {"less even", {0.05, 0.1}}, {"shaky", {0.05, 0.2}}};

/// A program full of buttons.
struct Program {
    QProcess process;
    std::vector<Area> buttons;

    /// On the desktop, or else on this process's.
    Program(const QString& path, int size, const AgentDesktop* desktop = nullptr);
    ~Program();
};

Program::Program(const QString& path, int size, const AgentDesktop* desktop) {
    const QStringList arguments = {QString::number(kWindowWidth), QString::number(kWindowHeight),
                                   QString::number(size), QString::number(size + kGap)};
    if (desktop)
        desktop->start(process, path, arguments);
    else
        process.start(path, arguments);
    while (process.canReadLine() || process.waitForReadyRead(kLongestStart)) {
        if (!process.canReadLine())
            continue;
        const QList<QByteArray> words = process.readLine().trimmed().split(' ');
        if (words[0] == "ready")
            break;
        if (words[0] == "box")
            buttons.push_back(
                {words[1].toDouble(), words[2].toDouble(), double(size), double(size)});
    }
}

Program::~Program() {
    process.terminate();
    process.waitForFinished();
}

/// What the agent finds of a program's buttons.
class Finder {
public:
    Finder(XServer& server, const std::vector<Area>& buttons)
        : windows_(server), buttons_(buttons) {}

    /// What a click at the place hits. `distance` 0: it doesn't snap.
    const Area* hit(Place place, double distance) {
        if (distance > 0)
            if (const auto target =
                    snap(place, targetsAlong(std::floor(place.y), distance), distance))
                place = target->middle();
        for (const Area& button : buttons_)
            if (button.contains(place))
                return &button;
        return nullptr;
    }

private:
    /// As Snapping asks for them.
    const std::vector<Target>& targetsAlong(double y, double distance) {
        auto& known = known_[{y, distance}];
        if (!known) {
            targets_.lookFor(windows_.shown(), {0, y - distance, kWidth, 2 * distance});
            QThreadPool::globalInstance()->waitForDone();
            QCoreApplication::processEvents();
            known = targets_.found();
        }
        return *known;
    }

    XWindows windows_;
    Targets targets_;
    const std::vector<Area>& buttons_;
    std::map<std::pair<double, double>, std::optional<std::vector<Target>>> known_;
};

/// What came of the clicks.
struct Outcome {
    int clicks = 0, misses = 0, neighbours = 0;
    double seconds = 0;

    void add(const Outcome& other) {
        clicks += other.clicks, misses += other.misses, neighbours += other.neighbours;
        seconds += other.seconds;
    }

    double hitsAMinute() const { return 60 * (clicks - misses) / seconds; }
};

/// Times for line and pointer.
struct Times {
    double line, pointer;
};

/// What "Find my speed" leads the user to; the slowest if nothing is quick enough.
Times advised(const SimulatedUser& user, int size, bool snaps) {
    std::mt19937 random(kSeed);
    tryout::Conditions conditions = {
        .sweep = {.travel = kHeight * kMillimetresAPoint, .time = kUsual},
        .target = size * kMillimetresAPoint,
        .delay = 2 * kDelay,
        .pointer = Sweep{.travel = kWidth * kMillimetresAPoint, .time = kUsual},
        .across = size * kMillimetresAPoint,
        .point = snaps ? kMillimetresAPoint : 0};
    const SimulatedRun run = simulateRun(user, conditions, random);
    const double pointer =
        run.pointerTime > 0 ? run.pointerTime : kUsual; // too far from what was tried
    return run.time > 0 ? Times{run.time, pointer} : Times{kSlowest, kSlowest};
}

Outcome click(Finder& finder, const std::vector<Area>& buttons, const SimulatedUser& user,
              Times times, bool snaps, int clicks) {
    std::mt19937 random(kSeed);
    const Sweep down = {kHeight, times.line}, right = {kWidth, times.pointer};
    const double distance = snaps
                                ? snapDistance(user.timing.spread, {.area = {0, 0, kWidth, kHeight},
                                                                    .lineTime = times.line,
                                                                    .pointerTime = times.pointer})
                                : 0;
    const auto stop = [&](const Sweep& sweep, double place, double& seconds) {
        const double at = pressTime(user, sweep, sweep.timeAt(place), user.timing.spread, random);
        seconds += kDelay + at;
        return sweep.positionAt(std::clamp(at, 0.0, sweep.time));
    };
    Outcome outcome{.clicks = clicks};
    for (int i = 0; i < clicks; ++i) {
        const Area& wanted = buttons[random() % buttons.size()];
        const double y = stop(down, wanted.middle().y, outcome.seconds);
        const double x = stop(right, wanted.middle().x, outcome.seconds);
        const Area* hit = finder.hit({x, y}, distance);
        outcome.misses += hit != &wanted;
        outcome.neighbours += hit && hit != &wanted;
    }
    return outcome;
}

bool measure(XServer& server, const char* name, const QString& path, int size) {
    const Program program(path, size);
    Finder finder(server, program.buttons);
    if (program.buttons.empty()) {
        std::fprintf(stderr, "%s shows no buttons\n", name);
        return false;
    }
    Outcome without, with, advisedWith;
    for (const SimulatedUser& user : kUsers) {
        const int clicks = kClicks / 3 + (&user == kUsers ? kClicks % 3 : 0);
        const Times usual = advised(user, size, false), quicker = advised(user, size, true);
        without.add(click(finder, program.buttons, user, usual, false, clicks));
        with.add(click(finder, program.buttons, user, usual, true, clicks));
        advisedWith.add(click(finder, program.buttons, user, quicker, true, clicks));
    }
    const double gain = advisedWith.hitsAMinute() / without.hitsAMinute();
    const bool isGood =
        2 * with.misses <= without.misses && with.neighbours <= without.neighbours && gain >= 1.3;
    std::printf("| %s | %d | %d | %d | %d | %d | %.2f | %.2f | %.2f |\n", name, size,
                without.misses, with.misses, without.neighbours, with.neighbours,
                without.hitsAMinute(), advisedWith.hitsAMinute(), gain);
    std::fflush(stdout);
    return isGood;
}

/// On a screen with a window manager.
bool measureHits() {
    const XvfbServer display(kWidth, kHeight);
    QProcess openbox;
    openbox.start("openbox", kOpenbox);
    openbox.waitForStarted();
    std::string fault;
    const auto server = XServer::connect(fault);
    if (!server)
        return false;
    accessibility::wakePrograms();
    std::puts(
        "| Program | Points | Misses without | with | Neighbours without | with | Hits a minute "
        "without | with | Times |\n|---|---|---|---|---|---|---|---|---|");
    bool isGood = true;
    for (const auto& [name, path] : {std::pair("GTK 3", BENCH_TARGETS "/gtk.py"),
                                     {"Qt 6", TARGETS_QT},
                                     {"Firefox", BENCH_TARGETS "/page.py"}})
        for (const int size : {16, 24, 44})
            isGood = measure(*server, name, path, size) && isGood;
    openbox.kill();
    openbox.waitForFinished();
    return isGood;
}

/// The agent itself, in real time.
bool measureAtWork() {
    AgentDesktop desktop(kWidth, kHeight);
    QProcess openbox;
    desktop.start(openbox, "openbox", kOpenbox);
    const Program program(BENCH_TARGETS "/gtk.py", 24, &desktop);
    const Area screen = {0, 0, kWidth, kHeight};
    std::puts("\n| | Clicks | On the button | Press to click, ms | Processor, % of a core |\n"
              "|---|---|---|---|---|");
    const auto scan = [&](const char* name, bool snaps) {
        const AtWork result =
            scanBeside(desktop, program.buttons, screen, program.process.processId(), snaps);
        std::printf("| %s | %d | %d | %.2f | %.2f |\n", name, result.clicks, result.moved,
                    result.delay * 1000, result.processor * 100);
        std::fflush(stdout);
        return result;
    };
    const auto pid = static_cast<pid_t>(program.process.processId());
    const AtWork without = scan("Without", false), with = scan("With", true);
    kill(pid, SIGSTOP);
    const AtWork stopped = scan("With, the program stopped", true);
    kill(pid, SIGCONT);
    openbox.kill();
    openbox.waitForFinished();
    const auto isNotLater = [&](const AtWork& other) {
        return other.clicks == without.clicks && other.delay <= without.delay + 0.001;
    };
    return without.moved == 0 && with.moved == with.clicks && isNotLater(with) &&
           isNotLater(stopped) && with.processor <= without.processor + 0.01;
}

} // namespace

/// Prints two tables; ends with 1 if a row isn't as it must be.
int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    qputenv("QT_QPA_PLATFORM", "xcb");
    const bool hits = measureHits(), works = measureAtWork();
    return hits && works ? 0 : 1;
}
