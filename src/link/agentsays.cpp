// SPDX-License-Identifier: MIT
#include "src/link/agentsays.h"

#include "platform/AppKit/UserMessages.h"
#include "platform/CoreFoundation/CFString.h"
#include "src/store/settingsfile.h"

#include <algorithm>
#include <array>

namespace {

constexpr DescType typeUTF8Text = fourCharCode("utf8");
constexpr std::size_t kLongest = 500;   ///< bytes
constexpr char kTopic[] = "agent-says"; // "agent" is what the window says of it

} // namespace

OSErr showSaying(const AppleEvent& event) {
    std::array<char, kLongest> bytes;
    std::size_t size = 0;
    if (const OSErr error = AEGetParamPtr(&event, keyDirectObject, typeUTF8Text, nullptr,
                                          bytes.data(), bytes.size(), &size))
        return error;
    const auto text = size <= bytes.size() ? createFromUTF8({bytes.data(), size}) : nullptr;
    if (!text || std::ranges::any_of(text->text(), disturbsText))
        return paramErr;
    if (size == 0)
        withdrawSaying();
    else
        tellUser(kTopic, {.text = {bytes.data(), size}});
    return noErr;
}

void withdrawSaying() {
    withdrawMessage(kTopic);
}
