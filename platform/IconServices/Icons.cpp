// SPDX-License-Identifier: MIT
#include "platform/IconServices/Icons.h"

#include "platform/CoreFoundation/detail/FileReading.h"
#include "platform/IconServices/detail/ApplicationIcon.h"
#include "platform/IconServices/detail/IconFamily.h"

#include <map>
#include <utility>

namespace {

constexpr OSType kApplicationType = fourCharCode("APPL");

/// By creator and type.
std::map<std::pair<OSType, OSType>, CFRef<Icon>>& registeredIcons() {
    // Never destroyed: icons are given back while the program exits.
    static auto& icons = *new std::map<std::pair<OSType, OSType>, CFRef<Icon>>;
    return icons;
}

/// Null when nothing in the family decodes.
CFRef<Icon> makeIcon(CFRef<const CFData> family) {
    IconImages images = imagesOfIconFamily(std::move(family));
    return images.anyDecodes() ? CFRef<Icon>::adopt(new Icon(std::move(images))) : nullptr;
}

} // namespace

Icon::Icon(IconImages images) : images_(std::make_unique<IconImages>(std::move(images))) {}

Icon::~Icon() = default;

OSErr RegisterIconRefFromFSRef(OSType creator, OSType iconType, const FSRef* file, IconRef* icon) {
    const std::pair key(creator, iconType);
    if (registeredIcons().contains(key))
        return paramErr;
    const FileContents content = readRegularFile(file->path, kMaxIconFamilySize);
    if (!content.data)
        return fnfErr;
    CFRef<Icon> made = makeIcon(content.data);
    if (!made)
        return noSuchIconErr;
    *icon = made.get();
    registeredIcons().emplace(key, std::move(made));
    return noErr;
}

OSErr UnregisterIconRef(OSType creator, OSType iconType) {
    return registeredIcons().erase({creator, iconType}) > 0 ? noErr : noSuchIconErr;
}

OSErr GetIconRef(SInt16 volume, OSType creator, OSType iconType, CFRef<Icon>* icon) {
    *icon = nullptr;
    const auto registered = registeredIcons().find({creator, iconType});
    if (registered != registeredIcons().end())
        *icon = registered->second;
    else if (volume == kOnSystemDisk && iconType == kApplicationType)
        if (const auto application = findApplicationOfCreator(creator))
            *icon = iconOfApplication(*application);
    return *icon ? noErr : noSuchIconErr;
}

OSErr IconFamilyToIconSuite(const Handle& iconFamily, IconSelectorValue selector,
                            CFRef<IconSuite>* suite) {
    *suite = nullptr;
    if (selector != kSelectorAllAvailableData || !iconFamily)
        return paramErr;
    *suite = makeIcon(CFDataCreate(*iconFamily, GetHandleSize(iconFamily)));
    return *suite ? noErr : noSuchIconErr;
}
