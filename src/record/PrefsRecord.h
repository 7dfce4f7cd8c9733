// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CoreFoundation/CFBase.h"

#include <cstddef>

/// The groups of settings in a change.
using ChangeMask = UInt32;

enum : ChangeMask {
    kChangeScanLineLook = 0x1,
    kChangeGuideLineLook = 0x2,
    kChangePointer = 0x4,
    kChangePalette = 0x8,
    kChangeSounds = 0x10,
    kChangeHotKeys = 0x20,
    kChangeTriggers = 0x100,
    kChangeScanSpeed = 0x200,
    kChangeScanArea = 0x400,
    kChangeKeyboardMode = 0x800,
    kChangeOnOff = 0x1000,
    kChangeForceOnOff = 0x2000, ///< quit the agent when off, launch it when on
    kChangeLaunch = 0x8000,
    // Pending steps of the palette's button size. These three never leave the pane.
    kChangeButtonHeightBump = 0x20000000,
    kChangeButtonWidthBump = 0x40000000,
    kChangeButtonSizeBump = 0x80000000,
    kChangeButtonBumps = kChangeButtonHeightBump | kChangeButtonWidthBump | kChangeButtonSizeBump,
};

constexpr int kNumHotKeys = 5;
constexpr int kNumPaletteSlots = 9;
constexpr int kMinButtonSize = 20; ///< points, as is the next; of a palette button's side
constexpr int kMaxButtonSize = 100;

/// What a palette button shows: the bits of buttonContent.
enum : UInt32 {
    kButtonContentIcon = 0x1,
    kButtonContentName = 0x2,
};

// Doubles have 4-byte alignment in the record, as in the agent.
#pragma pack(push, 4)

/// A hot key. Its index in the record is its role.
struct HotKey {
    SInt32 keyCode;   ///< virtual key code; negative (bit 31 set): no key assigned
    UInt32 modifiers; ///< Carbon modifier bits: command, shift, option, control
};

/// A rectangle in global display coordinates. Empty when a side is zero or less.
struct ScanArea {
    float x, y, width, height;
};

struct LineColor {
    UInt16 red, green, blue; ///< 0 to 255 each
};

/// In points. Height comes first in memory, width first in the stored text.
struct ButtonSize {
    SInt16 height, width;
};

/// Every setting of the agent: 340 bytes, little-endian, with fixed offsets, and behind them what
/// the agent reads from the store. The agent gets the 340 bytes, padding included. Flags are 0
/// or 1. The initial values are the factory defaults.
struct PrefsRecord {
    UInt8 on = 1; ///< the agent's master switch
    UInt8 playClickSounds = 1;
    UInt8 reserved2 = 1;
    UInt8 playDragPrompts = 1;
    UInt8 priorityScheduling = 0;
    UInt8 launchAtLogin = 1;
    UInt8 activateAtLaunch = 1;
    UInt8 padding7 = 0;
    UInt32 soundLevel = 50; ///< 0 to 100
    UInt8 canScanMenuBar = 1;
    UInt8 padding13[3] = {};
    double minTriggerDuration = 0.0; ///< seconds, as are the next four
    double afterClickDelay = 0.0;
    double preScanDelay = 1.5;
    double inverseReleaseTime = 2.0;
    double stepScanCancelTime = 10.0;
    UInt8 wantHotKeyTrigger = 1;
    UInt8 wantMouseClickTrigger = 1;
    UInt8 triggerOnRelease = 0;
    UInt8 fakeMouse2SwitchMode = 1;
    SInt32 scanMode = 0; ///< 0 to 2
    ScanArea scanArea = {};
    UInt8 useScanArea = 0;
    UInt8 lineScanCanEndKybdMode = 1;
    UInt8 padding82[2] = {};
    double lineScanTime = 10.0;             ///< seconds
    double pointerScanTime = 10.0;          ///< seconds
    double menuScanSpeedScaleFactor = 60.0; ///< percent
    UInt8 useScanAcceleration = 1;
    UInt8 padding109[3] = {};
    double autoRepeatTime = 4.0;   ///< seconds
    double clickDuration = 70.0;   ///< milliseconds
    double interClickDelay = 10.0; ///< milliseconds; no control changes it
    LineColor lineColor = {100, 0, 0};
    UInt8 padding142[2] = {};
    SInt32 lineThickness = 7;               ///< points
    double lineTransparency = 5.0;          ///< percent
    double lineGhostTransparency = 75.0;    ///< percent
    char pointerImageName[100] = "default"; ///< NUL-terminated, Mac OS Roman
    HotKey hotKeys[kNumHotKeys] = {
        {0x07, 0x1200}, // on/off: control, shift, X
        {0x4C, 0x0100}, // scan: command, keypad enter
        {0x35, 0x0000}, // cancel scan: escape
        {0x07, 0x1A00}, // show preferences: control, option, shift, X
        {0x4C, 0x0800}, // second scan key: option, keypad enter
    };
    SInt32 borderGap = 4; ///< points
    SInt32 buttonGap = 6; ///< points
    ButtonSize buttonSize = {40, 40};
    UInt32 buttonShape = 0;   ///< 1: rounded bevel buttons
    UInt32 buttonContent = 3; ///< bit 0: the icon, bit 1: the name
    UInt8 buttonActions[kNumPaletteSlots] = {20, 21, 22, 1, 2, 0, 0, 0, 0};
    UInt8 padding333[3] = {};
    UInt32 reservedTail = 0xDA5EB020;

    // Beside the agent's record:
    UInt8 snapping = 1; ///< clicks hit the one button that they come near to
    UInt8 padding341[3] = {};
};

#pragma pack(pop)

/// What the agent gets, in bytes.
constexpr std::size_t kRecordSize = 340;
static_assert(offsetof(PrefsRecord, snapping) == kRecordSize);
static_assert(offsetof(ButtonSize, width) == 2);

/// Whether the area can be scanned: both sides are greater than zero.
inline bool isUsable(const ScanArea& area) {
    return area.width > 0 && area.height > 0;
}
