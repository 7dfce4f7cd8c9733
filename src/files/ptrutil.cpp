// SPDX-License-Identifier: MIT
#include "src/files/ptrutil.h"

#include "platform/CoreFoundation/Localization.h"
#include "src/files/imageutil.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <iterator>
#include <limits>
#include <optional>

namespace {

/// The titles of our own agent's pointers, which have translations. Any others are shown as they
/// are.
constexpr const char* kOwnTitles[] = {
    LOCALIZABLE("Pointers", "default"),
    LOCALIZABLE("Pointers", "Arrow small"),
    LOCALIZABLE("Pointers", "Arrow large"),
    LOCALIZABLE("Pointers", "Arrow large white"),
    LOCALIZABLE("Pointers", "Arrow huge yellow"),
    LOCALIZABLE("Pointers", "Arrow large see-through"),
    LOCALIZABLE("Pointers", "Crosshair small"),
    LOCALIZABLE("Pointers", "Crosshair large"),
    LOCALIZABLE("Pointers", "Crosshair large white"),
    LOCALIZABLE("Pointers", "Crosshair huge see-through"),
    LOCALIZABLE("Pointers", "Ring"),
    LOCALIZABLE("Pointers", "Target huge"),
};

/// Reads a decimal number of int's range and moves the text behind it.
std::optional<int> takeNumber(const char** text) {
    char* end;
    const long number = std::strtol(*text, &end, 10);
    using Limits = std::numeric_limits<int>;
    if (end == *text || number < Limits::min() || number > Limits::max())
        return std::nullopt;
    *text = end;
    return static_cast<int>(number);
}

/// The hot spot at the beginning of a text, as "+XxY".
std::optional<CGPoint> hotSpotIn(const char* suffix) {
    const char* text = suffix + 1;
    const auto x = takeNumber(&text);
    if (!x || *text++ != 'x')
        return std::nullopt;
    const auto y = takeNumber(&text);
    if (!y)
        return std::nullopt;
    return CGPoint{static_cast<CGFloat>(*x), static_cast<CGFloat>(*y)};
}

/// The hot spot after the name's last '+', if it has one.
std::optional<CGPoint> hotSpotOf(const char* name) {
    const char* suffix = std::strrchr(name, '+');
    return suffix ? hotSpotIn(suffix) : std::nullopt;
}

/// Whether the folder itself has a regular file of that name. A link could lead outside.
bool isPointer(const CFBundle* bundle, const CFString* name) {
    if (name->text().find(u'/') != std::u16string::npos)
        return false;
    const auto url = CFBundleCopyResourceURL(bundle, name, CFSTR("png"), CFSTR(kPointersFolder));
    std::error_code error;
    return url &&
           std::filesystem::is_regular_file(std::filesystem::symlink_status(url->path(), error));
}

} // namespace

bool ptrutilLoadPointerFromBundle(const CFBundle* bundle, const char* name, PointerImage* out) {
    const auto string = CFStringCreateWithCString(name, CFStringGetSystemEncoding());
    if (!bundle || !string || !isPointer(bundle, string.get()))
        return false;
    auto image = imageUtilLoadPNG(bundle, CFSTR(kPointersFolder), string.get());
    if (!image)
        return false;
    *out = {std::move(image), hotSpotOf(name).value_or(CGPoint{})};
    return true;
}

void ptrutilDisposePointer(PointerImage* pointer) {
    pointer->image = nullptr;
}

std::string ptrutilPointerTitle(const char* name) {
    std::string title = name;
    if (hotSpotOf(name))
        title.erase(title.rfind('+'));
    const auto* own = std::ranges::find(kOwnTitles, title);
    if (own != std::end(kOwnTitles))
        return localized("Pointers", *own);
    return title.empty() ? name : title;
}
