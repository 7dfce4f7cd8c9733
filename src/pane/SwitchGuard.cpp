// SPDX-License-Identifier: MIT
#include "src/pane/SwitchGuard.h"

#include "platform/AppKit/UserMessages.h"
#include "platform/CoreFoundation/Localization.h"
#include "src/store/prefs.h"

#include <algorithm>
#include <utility>

namespace {

constexpr char kTopic[] = "switch";
constexpr EventTimerInterval kSecondsToAnswer = 30;
constexpr float kLeastSide = 44; ///< points of an own area: one target

/// What takes the switch from its user. They are bits.
enum Loss : unsigned {
    kNoTrigger = 1,
    kNoScanKey = 2,
    kTinyArea = 4,
};

constexpr std::size_t kScanKey = 1; ///< its place among the hot keys

bool hasKey(const HotKey& key) {
    return key.keyCode >= 0;
}

unsigned lossesOf(const PrefsRecord& record) {
    const auto& [x, y, width, height] = record.scanArea;
    unsigned losses = 0;
    if (!record.wantMouseClickTrigger && !record.wantHotKeyTrigger)
        losses |= kNoTrigger;
    else if (!record.wantMouseClickTrigger && !hasKey(record.hotKeys[kScanKey]))
        losses |= kNoScanKey;
    if (record.useScanArea && std::min(width, height) < kLeastSide)
        losses |= kTinyArea;
    return losses;
}

std::string question(unsigned losses) {
    if (losses & kNoTrigger)
        return localized("Switch", "Neither a key nor a mouse click starts a scan now. Keep this? "
                                   "It goes back in 30 seconds.");
    if (losses & kNoScanKey)
        return localized("Switch", "There is no scan key now, and mouse clicks don’t start a scan. "
                                   "Keep this? It goes back in 30 seconds.");
    return localized("Switch", "Only a tiny area is scanned now. Keep this? It goes back in 30 "
                               "seconds.");
}

/// `prefs` without those losses, as `safe` has it.
PrefsRecord without(unsigned losses, const PrefsRecord& safe) {
    PrefsRecord record = prefs;
    if (losses & (kNoTrigger | kNoScanKey)) {
        record.wantMouseClickTrigger = safe.wantMouseClickTrigger;
        record.wantHotKeyTrigger = safe.wantHotKeyTrigger;
        record.hotKeys[kScanKey] = safe.hotKeys[kScanKey];
    }
    if (losses & kTinyArea) {
        record.useScanArea = safe.useScanArea;
        record.scanArea = safe.scanArea;
    }
    return record;
}

} // namespace

bool hearsPresses(const PrefsRecord& record) {
    return record.wantMouseClickTrigger ||
           (record.wantHotKeyTrigger &&
            (hasKey(record.hotKeys[kScanKey]) || hasKey(record.hotKeys[4])));
}

SwitchGuard::~SwitchGuard() {
    forget();
}

void SwitchGuard::begin(PutBack putBack) {
    forget();
    putBack_ = std::move(putBack);
    safe_ = prefs;
    accepted_ = lossesOf(prefs);
}

void SwitchGuard::follow() {
    if (!putBack_)
        return; // nothing is loaded yet
    const unsigned losses = lossesOf(prefs);
    accepted_ &= losses; // what comes again is asked about again
    if (const unsigned lost = losses & ~accepted_)
        return ask(lost);
    forget();
    safe_ = prefs;
}

void SwitchGuard::ask(unsigned lost) {
    const bool isNew = lost != asked_;
    forget();
    asked_ = lost;
    InstallEventLoopTimer(GetMainEventLoop(), kSecondsToAnswer, 0,
                          NewEventLoopTimerUPP([](EventLoopTimerRef, void* self) {
                              static_cast<SwitchGuard*>(self)->putBack();
                          }),
                          this, &timer_);
    if (isNew)
        tellUser(kTopic,
                 {.text = question(lost),
                  .buttons = {{localized("Switch", "Keep this"),
                               [this] {
                                   accepted_ |= asked_;
                                   follow();
                               }},
                              {localized("Switch", "Put it back"), [this] { putBack(); }}}});
}

void SwitchGuard::putBack() {
    const PrefsRecord record = without(asked_, safe_);
    forget();
    putBack_(differences(prefs, record), record);
}

SettingSet SwitchGuard::settle() {
    const PrefsRecord record = without(asked_, safe_);
    const SettingSet changes = differences(prefs, record);
    copySettings(changes, record, prefs);
    asked_ = 0;
    return changes;
}

void SwitchGuard::forget() {
    if (timer_)
        RemoveEventLoopTimer(std::exchange(timer_, nullptr));
    if (std::exchange(asked_, 0))
        withdrawMessage(kTopic);
}
