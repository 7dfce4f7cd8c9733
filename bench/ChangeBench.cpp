// SPDX-License-Identifier: MIT
// Undo and the switch to a profile in the open pane, until the agent has them, against a plain
// change of one number.

#include "bench/Figures.h"
#include "bench/OpenPane.h"
#include "bench/Peer.h"
#include "src/prefpane/PreferenceWrangler.h"
#include "src/profiles.h"

#include <QAbstractButton>
#include <QCoreApplication>

#include <cstring>

namespace {

constexpr const char* kProfiles[] = {"Morning", "Tired"};

/// Draws what the change before did.
void comeToRest() {
    for (int i = 0; i < 3; ++i)
        QCoreApplication::processEvents();
}

void press(const char* button) {
    OpenPane::instance().part<QAbstractButton>(button).click();
}

void pressStep() {
    press(prefs.lineScanTime < 30 ? "lineScanTimeIncBtn" : "lineScanTimeDecBtn");
}

double plainChange() {
    OpenPane::instance().showSectionOf(
        OpenPane::instance().part<QAbstractButton>("lineScanTimeIncBtn"));
    comeToRest();
    return peer().oneWay(pressStep);
}

double undoneChange() {
    if (plainChange() < 0)
        return -1;
    comeToRest();
    return peer().oneWay([] { press("undoBtn"); });
}

template <class Number>
void addOne(void* field) {
    Number value;
    std::memcpy(&value, field, sizeof value);
    value += 1;
    std::memcpy(field, &value, sizeof value);
}

/// The defaults with every setting another one.
PrefsRecord everyOther() {
    PrefsRecord record;
    for (const Setting& setting : kSettings) {
        if (setting.notation == &kFlagNotation)
            *static_cast<UInt8*>(setting.in(record)) ^= 1;
        else if (setting.notation == &kRealNotation)
            addOne<double>(setting.in(record));
        else if (setting.notation == &kDecimalNotation)
            addOne<SInt32>(setting.in(record));
        else if (setting.notation == &kHexWordNotation)
            *static_cast<UInt8*>(setting.in(record)) ^= 1;
    }
    record.scanArea = {0, 0, 640, 480};
    record.lineColor = {0, 100, 0};
    std::strcpy(record.pointerImageName, "Ring+20x20");
    record.hotKeys[1] = {0x24, 0x0100};
    record.buttonSize = {60, 60};
    record.buttonActions[0] = 5;
    return record;
}

/// Both profiles, each of which differs from the other in all that a profile has.
bool saveProfiles() {
    const PrefsRecord records[] = {{}, everyOther()};
    for (int i = 0; i < 2; ++i)
        if (!saveProfile(kProfiles[i], records[i]).empty())
            return false;
    return (profileSettings() & ~differences(records[0], records[1])).none();
}

void use(const char* profile) {
    const SettingsOffer offer = readProfile(profile, prefs);
    theWrangler->adopt(offer.settings, offer.record);
}

double switchedProfile() {
    static const bool saved = saveProfiles();
    static int next = 0;
    if (plainChange() < 0 || !saved)
        return -1;
    use(kProfiles[next]);
    comeToRest();
    next = 1 - next;
    return peer().oneWay([] { use(kProfiles[next]); });
}

} // namespace

void addChangeFigures() {
    addFigure("undo of a change until the agent has it", {Limit::Times, 1.2}, undoneChange,
              plainChange);
    addFigure("a switch of all settings until the agent has it", {Limit::Times, 2}, switchedProfile,
              plainChange);
}
