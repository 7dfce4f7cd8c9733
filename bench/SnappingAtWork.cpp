// SPDX-License-Identifier: MIT
#include "bench/SnappingAtWork.h"

#include "agent/x11/XServer.h"
#include "bench/Threads.h"

#include <algorithm>
#include <cmath>
#include <random>

namespace {

constexpr double kSweepTime = 5, kDelay = 0.5, kSettling = 2; ///< seconds
constexpr int kScans = 20;
constexpr double kBeside = 5; ///< pixels beside a button
constexpr unsigned kSeed = 27;

PrefsRecord recordOf(bool snaps) {
    PrefsRecord record = scanKeyRecord();
    record.preScanDelay = kDelay;
    record.lineScanTime = record.pointerScanTime = kSweepTime;
    record.clickDuration = 10;
    std::ranges::fill(record.buttonActions, 0); // no palette covers a button
    record.snapping = snaps;
    return record;
}

bool isMiddleOf(const Area& button, const AgentDesktop::Told& click) {
    const Place middle = button.middle();
    return std::abs(click.x - middle.x) < 1 && std::abs(click.y - middle.y) < 1;
}

} // namespace

AtWork scanBeside(AgentDesktop& desktop, const std::vector<Area>& buttons, const Area& screen,
                  qint64 program, bool snaps) {
    AtWork result;
    if (!desktop.startAgent(recordOf(snaps)))
        return result;
    std::mt19937 random(kSeed);
    std::vector<double> clicks;
    const auto used = [&] { return processorSeconds(desktop.agent()) + processorSeconds(program); };
    sleepUntil(XServer::now() + kSettling);
    const double usedBefore = used(), began = XServer::now();
    for (int i = 0; i < kScans; ++i) {
        const Area& button = buttons[random() % buttons.size()];
        const auto wait = [](const AgentDesktop::Span& since, double share) {
            sleepUntil(since.middle() + kDelay + share * kSweepTime);
        };
        const auto start = desktop.press();
        wait(start, button.middle().y / screen.height);
        const auto line = desktop.press();
        wait(line, (button.right() + kBeside) / screen.width);
        const auto pointer = desktop.key(AgentDesktop::kScanKey, true);
        const auto click = desktop.next(XCB_BUTTON_PRESS);
        desktop.key(AgentDesktop::kScanKey, false);
        if (!click || !desktop.next(XCB_BUTTON_RELEASE))
            continue;
        clicks.push_back(click->moment - pointer.from);
        result.moved += isMiddleOf(button, *click);
    }
    result.processor = (used() - usedBefore) / (XServer::now() - began);
    result.clicks = static_cast<int>(clicks.size());
    if (!clicks.empty()) {
        const auto middle = clicks.begin() + result.clicks / 2;
        std::ranges::nth_element(clicks, middle);
        result.delay = *middle;
    }
    return result;
}
