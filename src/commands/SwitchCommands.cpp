// SPDX-License-Identifier: MIT
#include "src/commands/command.h"

#include "platform/CoreServices/Processes.h"
#include "platform/HIToolbox/CarbonEvents.h"
#include "platform/Support/EventMoment.h"
#include "platform/Support/ScanCodes.h"
#include "src/commands/store.h"
#include "src/scan/switchevent.h"

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <fstream>
#include <iterator>
#include <unistd.h>

namespace {

constexpr OSType kAgentSignature = fourCharCode("Krvx");
constexpr OSType kWindowSignature = fourCharCode("sprf");
constexpr SInt32 kPatience = 60; ///< ticks

constexpr const char* kNames[] = {"on-off", "scan", "cancel", "settings", "second-scan"};
static_assert(std::size(kNames) == kNumHotKeys);
constexpr UInt32 kScanKey = 1;

constexpr std::pair<UInt32, const char*> kModifiers[] = {
    {controlKey, "Ctrl"}, {shiftKey, "Shift"}, {optionKey, "Mod1"}, {cmdKey, "Mod4"}};

double secondsOf(clockid_t clock) {
    timespec time{};
    clock_gettime(clock, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
}

/// When this process was started, on monotonicNow's clock, as exactly as the kernel tells it: to a
/// hundredth of a second. The shortcut was pressed then, not when this program had been loaded.
double startMoment() {
    constexpr int kFieldsBefore = 19; // of proc(5)'s start time, after the program's name
    std::ifstream file("/proc/self/stat");
    std::string text((std::istreambuf_iterator<char>(file)), {});
    std::size_t at = text.rfind(')') + 1;
    for (int field = 0; field < kFieldsBefore; ++field)
        at = text.find(' ', at + 1);
    const double ticks = std::strtod(text.c_str() + at, nullptr);
    const double perSecond = static_cast<double>(sysconf(_SC_CLK_TCK));
    const double age = secondsOf(CLOCK_BOOTTIME) - (ticks + 0.5) / perSecond;
    return monotonicNow() - std::max(age, 0.0);
}

int tell(const CommandLine& line, bool isDown) {
    UInt32 key = kScanKey;
    if (!line.operands.empty()) {
        const auto* const found = std::ranges::find(kNames, line.operands[0]);
        if (found == std::end(kNames))
            return commandFailed(
                filled(localized("Commands", "there is no key \"%1\", but %2"),
                       {line.operands[0], joined(Joint::Items, {kNames, std::end(kNames)})}));
        key = static_cast<UInt32>(found - kNames);
    }
    const SwitchEvent told{key, isDown, startMoment()};
    const ProcessSerialNumber agent = findApplication(kAgentSignature);
    const ProcessSerialNumber window = findApplication(kWindowSignature);
    if (window != kNoProcess) { // it may be trying the switch
        const AppleEvent event = switchEventTo(window, told);
        AESend(&event, nullptr, kAENoReply, kAEDefaultTimeout);
    }
    if (agent == kNoProcess)
        return commandFailed(localized("Commands", "Korvex isn't running"));
    const AppleEvent event = switchEventTo(agent, told);
    switch (AESend(&event, nullptr, kAEWaitReply, kPatience)) {
    case noErr:
        return kCommandDone;
    case errAEEventNotHandled:
        return commandFailed(localized(
            "Commands", "Korvex hears the keys itself in this session, or can't scan in it"));
    default:
        return commandFailed(localized("Commands", "Korvex doesn't answer"));
    }
}

} // namespace

std::span<const char* const> hotKeyNames() {
    return kNames;
}

int runPress(const CommandLine& line) {
    return tell(line, true);
}

int runRelease(const CommandLine& line) {
    return tell(line, false);
}

/// Keys are named by their place, as the record has them: the layout doesn't matter.
int runShortcuts(const CommandLine&) {
    const PrefsRecord record = currentSettings();
    std::printf("# ~/.config/sway/config\n");
    for (std::size_t i = 0; i < kNumHotKeys; ++i) {
        const HotKey& hotKey = record.hotKeys[i];
        if (hotKey.keyCode < 0 || hotKey.keyCode >= kNoKeyCode)
            continue;
        std::string modifiers;
        for (const auto& [bit, name] : kModifiers)
            if (hotKey.modifiers & bit)
                modifiers += std::string(name) + "+";
        for (const std::uint32_t code : scanCodes(static_cast<std::uint16_t>(hotKey.keyCode))) {
            std::printf("bindcode --no-repeat %s%u exec korvex-preferences press %s\n",
                        modifiers.c_str(), code, kNames[i]);
            std::printf("bindcode --release %s%u exec korvex-preferences release %s\n",
                        modifiers.c_str(), code, kNames[i]);
        }
    }
    return kCommandDone;
}
