// SPDX-License-Identifier: MIT
#include "src/files/ptrutil.h"

#include "src/files/imageutil.h"

#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <limits>
#include <optional>

namespace {

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
    return title.empty() ? name : title;
}
