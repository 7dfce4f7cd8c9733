// SPDX-License-Identifier: MIT
#include "src/scan/switchevent.h"

#include "platform/Support/EventMoment.h"
#include "src/record/PrefsRecord.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr AEKeyword keyHotKey = fourCharCode("HKey");
constexpr AEKeyword keyMoment = fourCharCode("When");
constexpr DescType typeNanoseconds = fourCharCode("comp");
constexpr double kNanosecond = 1e-9;

template <class T>
OSErr read(const AppleEvent& event, AEKeyword keyword, DescType type, T& value) {
    std::size_t size = 0;
    const OSErr error = AEGetParamPtr(&event, keyword, type, nullptr, &value, sizeof value, &size);
    return error == noErr && size != sizeof value ? paramErr : error;
}

} // namespace

AppleEvent switchEventTo(const ProcessSerialNumber& process, const SwitchEvent& event) {
    const UInt8 isDown = event.isDown;
    const auto nanoseconds = static_cast<std::uint64_t>(std::llround(event.moment / kNanosecond));
    AEAddressDesc address;
    AppleEvent made;
    AECreateDesc(typeProcessSerialNumber, &process, sizeof process, &address);
    AECreateAppleEvent(kSwitchEventClass, kSwitchEventID, &address, kAutoGenerateReturnID,
                       kAnyTransactionID, &made);
    AEPutParamPtr(&made, keyDirectObject, typeBoolean, &isDown, sizeof isDown);
    AEPutParamPtr(&made, keyHotKey, typeUInt32, &event.key, sizeof event.key);
    AEPutParamPtr(&made, keyMoment, typeNanoseconds, &nanoseconds, sizeof nanoseconds);
    return made;
}

OSErr readSwitchEvent(const AppleEvent& event, SwitchEvent& result) {
    UInt8 isDown = 0;
    UInt32 key = 0;
    std::uint64_t nanoseconds = 0;
    if (const OSErr error = read(event, keyDirectObject, typeBoolean, isDown))
        return error;
    if (const OSErr error = read(event, keyHotKey, typeUInt32, key))
        return error;
    if (const OSErr error = read(event, keyMoment, typeNanoseconds, nanoseconds))
        return error;
    if (isDown > 1 || key >= kNumHotKeys)
        return paramErr;
    const double now = monotonicNow();
    result = {
        key, isDown != 0,
        std::clamp(static_cast<double>(nanoseconds) * kNanosecond, now - kSwitchEventDelay, now)};
    return noErr;
}
