// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CoreFoundation/Localization.h"
#include "src/record/PrefsRecord.h"
#include "src/record/prefsnotation.h"

#include <cstddef>
#include <span>
#include <string_view>

/// A number's limits, step and format.
struct SettingLimits {
    double minimum = 0;
    double maximum = 0;
    double step = 0;              ///< of the minus and plus buttons; 0: no steps
    const char* format = nullptr; ///< printf, exactly one double conversion; null: not a number
    const char* unit = "";        ///< in words; empty: none
    int pageSteps = 10;           ///< steps of the buttons for many steps
};

/// The type of the wrangler's outlet for the setting.
enum class SettingControl { other, slider, bumper, check };

/// Everything about one setting: its storage, its place in the record, what a change reports, its
/// name and its valid values. Everything else about settings is derived from the rows of kSettings.
/// Texts live as long as the process; an omitted one is null or empty. Names, formats, units and
/// choices are English; `localized` has translations in the marked tables.
struct Setting {
    const char* key;               ///< in the domain kAgentBundleID
    const PrefsNotation* notation; ///< of the stored text; implies the field's type
    std::size_t offset;            ///< of the field in PrefsRecord
    std::size_t size;              ///< of the field, in bytes
    ChangeMask changes;            ///< the groups that a change reports; 0 for none
    const char* name;              ///< in words, as in "Volume: 50"
    SettingLimits limits = {};
    std::span<const char* const> choices = {}; ///< the values of a choice in words, from 0
    SettingControl control = SettingControl::other;
    const char* outlet = nullptr; ///< the wrangler's, of the control; null for `other`, which has
                                  ///< an outlet outside of this table or none
    const char* action = nullptr; ///< what a check box sends; null for any other control

    bool isNumber() const { return limits.format != nullptr; }

    /// Hot keys or actions: its entries are set one by one.
    bool isList() const {
        return notation == &kHotKeyListNotation || notation == &kActionListNotation;
    }

    const void* in(const PrefsRecord& record) const {
        return reinterpret_cast<const UInt8*>(&record) + offset;
    }

    void* in(PrefsRecord& record) const { return reinterpret_cast<UInt8*>(&record) + offset; }
};

namespace settingrows {

constexpr SettingLimits seconds(double minimum, double maximum) {
    return {
        minimum, maximum, 0.5, LOCALIZABLE("Formats", "%5.1f sec"), LOCALIZABLE("Units", "seconds"),
        5};
}

constexpr SettingLimits percent(double minimum, double maximum, double step) {
    return {minimum,
            maximum,
            step,
            LOCALIZABLE("Formats", "%3.0f%%"),
            LOCALIZABLE("Units", "percent"),
            step > 1 ? 5 : 10};
}

constexpr SettingLimits points(double minimum, double maximum) {
    return {minimum, maximum, 1, LOCALIZABLE_COUNT("Formats", "%3.0f points"),
            LOCALIZABLE("Units", "points")};
}

inline constexpr SettingLimits kMilliseconds = {10, 300, 1, LOCALIZABLE("Formats", "%3.0f ms"),
                                                LOCALIZABLE("Units", "milliseconds")};
inline constexpr SettingLimits kVolume = {0, 100, 1, "%3.0f", ""};

inline constexpr const char* kScanModes[] = {
    LOCALIZABLE("Choices", "Press to start, press to choose"),
    LOCALIZABLE("Choices", "Hold to scan, let go to choose"),
    LOCALIZABLE("Choices", "Each press moves one step")};
inline constexpr const char* kPressOrRelease[] = {LOCALIZABLE("Choices", "When I press"),
                                                  LOCALIZABLE("Choices", "When I let go")};
inline constexpr const char* kScanAreas[] = {LOCALIZABLE("Choices", "The whole screen"),
                                             LOCALIZABLE("Choices", "Only my own area")};
inline constexpr const char* kCorners[] = {LOCALIZABLE("Choices", "Square"),
                                           LOCALIZABLE("Choices", "Rounded")};

inline constexpr ChangeMask kBothLines = kChangeScanLineLook | kChangeGuideLineLook;

// A row's key, notation, place and group.
#define SETTING(key, notation, field, changes)                                                     \
    key, &notation, offsetof(PrefsRecord, field), sizeof(PrefsRecord::field), changes
#define SLIDER(outlet) {}, SettingControl::slider, outlet
#define BUMPER(outlet) {}, SettingControl::bumper, outlet
#define CHECK(outlet, action) {}, {}, SettingControl::check, outlet, action
#define ACTION(action) {}, {}, SettingControl::other, nullptr, action

/// In the record's order, which is that of loading and saving, then what lies beside it.
// clang-format off
inline constexpr Setting kRows[] = {
    {SETTING("on", kFlagNotation, on, kChangeOnOff), LOCALIZABLE("Settings", "Scanning with Korvex")},
    {SETTING("playClickSounds", kFlagNotation, playClickSounds, kChangeSounds),
     LOCALIZABLE("Settings", "A sound for each click"), CHECK("playClickSoundsCheck", "changedPlayClickSounds:")},
    {SETTING("playDragPrompts", kFlagNotation, playDragPrompts, kChangeSounds),
     LOCALIZABLE("Settings", "Prompts while dragging"), CHECK("playDragPrompts", "changedPlayDragPrompts:")},
    {SETTING("priorityScheduling", kFlagNotation, priorityScheduling, 0), LOCALIZABLE("Settings", "Priority over other programs")},
    {SETTING("launchAtLogin", kFlagNotation, launchAtLogin, kChangeLaunch),
     LOCALIZABLE("Settings", "Start Korvex when you log in"), ACTION("changedLaunchAtLogin:")},
    {SETTING("activateAtLaunch", kFlagNotation, activateAtLaunch, kChangeLaunch),
     LOCALIZABLE("Settings", "Turn scanning on when Korvex starts"), ACTION("changedActivateAtLaunch:")},
    {SETTING("soundLevel", kHexWordNotation, soundLevel, kChangeSounds),
     LOCALIZABLE("Settings", "Volume"), kVolume, SLIDER("volume")},
    {SETTING("scanner.canScanMenuBar", kFlagNotation, canScanMenuBar, 0),
     LOCALIZABLE("Settings", "Scan the menu bar too"), CHECK("canScanMenuBarCheck", "changedCanScanMenuBar:")},
    {SETTING("scanner.minTriggerDuration", kRealNotation, minTriggerDuration, kChangeTriggers),
     LOCALIZABLE("Settings", "Shortest press that counts"), seconds(0, 5), SLIDER("minTriggerDuration")},
    {SETTING("scanner.afterClickDelay", kRealNotation, afterClickDelay, kChangeTriggers),
     LOCALIZABLE("Settings", "Ignore presses after a click for"), seconds(0, 10), SLIDER("afterClickDelay")},
    {SETTING("scanner.preScanDelay", kRealNotation, preScanDelay, kChangeTriggers),
     LOCALIZABLE("Settings", "Wait before the scan starts"), seconds(0, 10), SLIDER("preScanDelayTime")},
    {SETTING("scanner.inverseReleaseTime", kRealNotation, inverseReleaseTime, kChangeTriggers),
     LOCALIZABLE("Settings", "Wait after letting go"), seconds(0, 10), SLIDER("inverseReleaseTime")},
    {SETTING("scanner.stepScanCancelTime", kRealNotation, stepScanCancelTime, kChangeTriggers),
     LOCALIZABLE("Settings", "Stop without a press for"), seconds(1, 60), SLIDER("stepScanCancelTime")},
    {SETTING("scanner.wantHotKeyTrigger", kFlagNotation, wantHotKeyTrigger, kChangeTriggers),
     LOCALIZABLE("Settings", "Listen to hot keys"), CHECK("wantHotKeyTriggerCheck", "changedWantHotKeyTrigger:")},
    {SETTING("scanner.wantMouseClickTrigger", kFlagNotation, wantMouseClickTrigger, kChangeTriggers),
     LOCALIZABLE("Settings", "Listen to mouse clicks"), CHECK("wantMouseClickTriggerCheck", "changedWantMouseClickTrigger:")},
    {SETTING("scanner.triggerOnRelease", kFlagNotation, triggerOnRelease, kChangeTriggers),
     LOCALIZABLE("Settings", "A press counts"), {}, kPressOrRelease},
    {SETTING("scanner.fakeMouse2SwitchMode", kFlagNotation, fakeMouse2SwitchMode, 0),
     LOCALIZABLE("Settings", "Second mouse button as a second switch")},
    {SETTING("scanner.scanMode", kDecimalNotation, scanMode, kChangeTriggers),
     LOCALIZABLE("Settings", "Way of scanning"), {}, kScanModes},
    {SETTING("scanner.scanArea", kRectangleNotation, scanArea, kChangeScanArea), LOCALIZABLE("Settings", "My own area")},
    {SETTING("scanner.useScanArea", kFlagNotation, useScanArea, kChangeScanArea),
     LOCALIZABLE("Settings", "What is scanned"), {}, kScanAreas},
    {SETTING("scanner.lineScanCanEndKybdMode", kFlagNotation, lineScanCanEndKybdMode,
             kChangeKeyboardMode),
     LOCALIZABLE("Settings", "Line scan ends keyboard mode"),
     CHECK("lineScanCanEndKybdModeCheck", "changedLineScanCanEndKyndMode:")},
    {SETTING("scanner.lineScanTime", kRealNotation, lineScanTime, kChangeScanSpeed),
     LOCALIZABLE("Settings", "Line crosses the screen in"), seconds(1, 60), SLIDER("lineScanTime")},
    {SETTING("scanner.pointerScanTime", kRealNotation, pointerScanTime, kChangeScanSpeed),
     LOCALIZABLE("Settings", "Pointer crosses the screen in"), seconds(1, 60), SLIDER("pointerScanTime")},
    {SETTING("scanner.menuScanSpeedScaleFactor", kRealNotation, menuScanSpeedScaleFactor,
             kChangeScanSpeed),
     LOCALIZABLE("Settings", "Speed in menus"), percent(10, 200, 5), SLIDER("menuScanSpeedScaleFactor")},
    {SETTING("scanner.useScanAcceleration", kFlagNotation, useScanAcceleration, kChangeScanSpeed),
     LOCALIZABLE("Settings", "Start slowly, then speed up"),
     CHECK("useScanAccelerationCheck", "changedUseScanAcceleration:")},
    {SETTING("scanner.autoRepeatTime", kRealNotation, autoRepeatTime, kChangeScanSpeed),
     LOCALIZABLE("Settings", "Repeat an action every"), seconds(0.5, 20), SLIDER("autoRepeatTime")},
    {SETTING("scanner.clickDuration", kRealNotation, clickDuration, kChangeScanSpeed),
     LOCALIZABLE("Settings", "Length of a click"), kMilliseconds, SLIDER("clickTime")},
    {SETTING("scanner.interClickDelay", kRealNotation, interClickDelay, 0), LOCALIZABLE("Settings", "Pause between clicks")},
    {SETTING("scanner.lineColor", kColourNotation, lineColor, kBothLines), LOCALIZABLE("Settings", "Line colour")},
    {SETTING("scanner.lineThickness", kDecimalNotation, lineThickness, kBothLines),
     LOCALIZABLE("Settings", "Line thickness"), points(1, 50), BUMPER("lineThickness")},
    {SETTING("scanner.lineTransparency", kRealNotation, lineTransparency, kChangeScanLineLook),
     LOCALIZABLE("Settings", "Scan line transparency"), percent(0, 95, 1), SLIDER("lineTransparency")},
    {SETTING("scanner.lineGhostTransparency", kRealNotation, lineGhostTransparency,
             kChangeGuideLineLook),
     LOCALIZABLE("Settings", "Guide line transparency"), percent(0, 100, 1), SLIDER("guideTransparency")},
    {SETTING("scanner.pointerImageName", kTextNotation, pointerImageName, kChangePointer), LOCALIZABLE("Settings", "Pointer")},
    {SETTING("hotkeys.keys", kHotKeyListNotation, hotKeys, kChangeHotKeys), LOCALIZABLE("Settings", "Hot keys")},
    {SETTING("palette.borderGap", kDecimalNotation, borderGap, kChangePalette),
     LOCALIZABLE("Settings", "Space around the edge"), points(0, 100), BUMPER("borderGap")},
    {SETTING("palette.buttonGap", kDecimalNotation, buttonGap, kChangePalette),
     LOCALIZABLE("Settings", "Space between the buttons"), points(0, 100), BUMPER("buttonGap")},
    {SETTING("palette.buttonSize", kSizeNotation, buttonSize, kChangePalette),
     LOCALIZABLE("Settings", "Size of the buttons"), {kMinButtonSize, kMaxButtonSize, 0, nullptr, LOCALIZABLE("Units", "points")}},
    {SETTING("palette.buttonShape", kHexWordNotation, buttonShape, kChangePalette),
     LOCALIZABLE("Settings", "Corners of the buttons"), {}, kCorners},
    {SETTING("palette.buttonContent", kHexWordNotation, buttonContent, kChangePalette),
     LOCALIZABLE("Settings", "Shown on the buttons")},
    {SETTING("palette.buttonActions", kActionListNotation, buttonActions, kChangePalette),
     LOCALIZABLE("Settings", "Palette buttons")},
    {SETTING("snapping", kFlagNotation, snapping, 0),
     LOCALIZABLE("Settings", "Click the nearest button"), CHECK("snappingCheck", "changedSnapping:")},
};
// clang-format on

#undef SETTING
#undef SLIDER
#undef BUMPER
#undef CHECK
#undef ACTION

/// Whether each field comes after the one before.
consteval bool isInRecordOrder() {
    std::size_t end = 0;
    for (const Setting& row : kRows) {
        if (row.offset < end)
            return false;
        end = row.offset + row.size;
    }
    return true;
}

static_assert(isInRecordOrder());

} // namespace settingrows

inline constexpr std::span<const Setting> kSettings = settingrows::kRows;

/// The setting whose field is at that offset. There must be one.
constexpr const Setting& settingAt(std::size_t offset) {
    std::size_t row = 0;
    while (kSettings[row].offset != offset)
        ++row;
    return kSettings[row];
}

/// Null when no setting has that key.
inline const Setting* settingOfKey(std::string_view key) {
    for (const Setting& setting : kSettings)
        if (key == setting.key)
            return &setting;
    return nullptr;
}
