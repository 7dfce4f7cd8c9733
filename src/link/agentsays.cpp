// SPDX-License-Identifier: MIT
#include "src/link/agentsays.h"

#include "platform/AppKit/UserMessages.h"
#include "platform/CoreFoundation/CFString.h"

#include <algorithm>
#include <array>
#include <string>
#include <utility>

namespace {

constexpr DescType typeUTF8Text = fourCharCode("utf8");
constexpr std::size_t kLongest = 500; ///< bytes
constexpr char kTopic[] = "agent";

/// Whether it has characters that a line doesn't show, or that turn around those beside them.
bool hasControls(const CFString& text) {
    static constexpr std::array<std::pair<char16_t, char16_t>, 4> kControls = {
        {{0x0000, 0x001F}, {0x007F, 0x009F}, {0x2028, 0x202E}, {0x2066, 0x2069}}};
    return std::ranges::any_of(text.text(), [](char16_t unit) {
        return std::ranges::any_of(kControls, [unit](const auto& range) {
            return unit >= range.first && unit <= range.second;
        });
    });
}

} // namespace

OSErr showSaying(const AppleEvent& event) {
    std::array<char, kLongest> bytes;
    std::size_t size = 0;
    if (const OSErr error = AEGetParamPtr(&event, keyDirectObject, typeUTF8Text, nullptr,
                                          bytes.data(), bytes.size(), &size))
        return error;
    const auto text = size <= bytes.size() ? createFromUTF8({bytes.data(), size}) : nullptr;
    if (!text || hasControls(*text))
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
