// SPDX-License-Identifier: MIT
#include "src/pane/SnappingRow.h"

#include "platform/AppKit/NSButton.h"
#include "platform/AppKit/RowMarks.h"
#include "platform/AppKit/UserMessages.h"
#include "platform/CoreFoundation/Localization.h"
#include "src/record/settingwords.h"
#include "src/scan/snapping.h"

namespace {

constexpr char kTopic[] = "snapping"; ///< the strip's
constexpr const char* kName = LOCALIZABLE("Settings", "Click the nearest button");

std::string inWords(bool isOn) {
    return isOn ? localized("Settings", "on") : localized("Settings", "off");
}

std::string changeText(bool isOn, const char* pattern) {
    return filled(localized("Changes", pattern),
                  {localized("Settings", kName), inWords(!isOn), inWords(isOn)});
}

} // namespace

SnappingRow::~SnappingRow() {
    withdrawMessage(kTopic); // its button acts on this object
}

void SnappingRow::load() {
    const bool isOn = readSnapSettings().isOn;
    check->setState(isOn ? NSOnState : NSOffState);
    setRowMark(*check, isOn ? "" : changeText(true, LOCALIZABLE("Changes", "Reset “%1” to %3")),
               [this] { set(true, kSettingBecomesAgain); });
}

void SnappingRow::changedSnapping() {
    set(check->state() == NSOnState, kSettingBecomes);
}

void SnappingRow::set(bool isOn, const char* pattern) {
    setSnapping(isOn);
    load();
    tellUser(kTopic, {.kind = UserMessage::Kind::Note,
                      .text = filled(localized("Changes", "%1.", "a sentence"),
                                     {changeText(isOn, pattern)}),
                      .buttons = {{localized("Changes", "Undo this"),
                                   [this, isOn] { set(!isOn, kSettingBecomesAgain); }}}});
}
