// SPDX-License-Identifier: MIT
// Undo and a switch of profiles in the open pane, until the agent has them. Floor: a plain change
// of one number.

#include "bench/Figures.h"
#include "bench/OpenPane.h"
#include "bench/Peer.h"
#include "src/pane/PreferenceWrangler.h"
#include "src/store/profiles.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QCoreApplication>

#include <cstring>

namespace {

constexpr const char* kProfiles[] = {"Morning", "Tired"};

/// Finishes the drawing after the change before.
void comeToRest() {
    for (int i = 0; i < 3; ++i)
        QCoreApplication::processEvents();
}

QAbstractButton& button(const char* name) {
    return OpenPane::instance().part<QAbstractButton>(name);
}

/// Until the agent has what the press does. The button is in sight, and the window at rest.
double pressed(QAbstractButton& button) {
    OpenPane::instance().showSectionOf(button);
    comeToRest();
    return peer().oneWay([&] { button.click(); });
}

double plainChange() {
    static auto& less = button("lineScanTimeDecBtn");
    static auto& more = button("lineScanTimeIncBtn");
    return pressed(prefs.lineScanTime < 30 ? more : less);
}

double undoneChange() {
    static auto& undo = button("undoBtn");
    return plainChange() < 0 ? -1 : pressed(undo);
}

template <class Number>
void addOne(void* field) {
    Number value;
    std::memcpy(&value, field, sizeof value);
    value += 1;
    std::memcpy(field, &value, sizeof value);
}

/// The defaults with every setting changed.
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

/// Saves two profiles that differ in all settings of a profile.
bool saveProfiles() {
    const PrefsRecord records[] = {{}, everyOther()};
    for (int i = 0; i < 2; ++i)
        if (!saveProfile(kProfiles[i], records[i]).empty())
            return false;
    return (profileSettings() & ~differences(records[0], records[1])).none();
}

/// Both profiles, as the open window knows them.
bool knowProfiles() {
    if (!saveProfiles())
        return false;
    OpenPane::instance();
    theWrangler->beginHistory();
    return true;
}

/// Chooses the other profile in the list.
bool chooseOther() {
    static const bool known = knowProfiles();
    static int next = 0;
    static auto& list = OpenPane::instance().part<QWidget>("profileGrid");
    next = 1 - next;
    OpenPane::instance().showSectionOf(list);
    comeToRest();
    QAccessible::queryAccessibleInterface(&list)->child(next)->actionInterface()->doAction(
        QAccessibleActionInterface::pressAction());
    return known;
}

double switchedProfile() {
    static auto& use = button("useProfileBtn");
    return chooseOther() ? pressed(use) : -1;
}

} // namespace

void addChangeFigures() {
    addFigure("undo of a change until the agent has it", {Limit::Times, 1.2}, undoneChange,
              plainChange);
    addFigure("a switch of all settings until the agent has it", {Limit::Times, 2}, switchedProfile,
              plainChange);
}
