#include "tests/fuzz/Readers.h"

#include "platform/CoreFoundation/CFPropertyList.h"
#include "platform/IconServices/IconFamily.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>

namespace {

void require(bool holds, const char* rule) {
    if (holds)
        return;
    std::fprintf(stderr, "Broken: %s\n", rule);
    std::abort();
}

CFRef<CFData> makeData(std::span<const UInt8> bytes) {
    return CFRef<CFData>::adopt(new CFData(std::vector<UInt8>(bytes.begin(), bytes.end())));
}

} // namespace

void read_propertylist(std::span<const UInt8> bytes) {
    const auto list = CFPropertyListCreateFromXMLData(makeData(bytes).get());
    if (!list)
        return;
    const std::string written = CFPropertyListToXML(list.get());
    if (written.empty()) // larger than may be read
        return;
    const std::span<const char> text(written);
    const auto again = CFPropertyListCreateFromXMLData(
        makeData({reinterpret_cast<const UInt8*>(text.data()), text.size()}).get());
    require(CFEqual(again.get(), list.get()), "what is written reads as the same");
}

void read_iconfamily(std::span<const UInt8> bytes) {
    IconImages images = imagesOfIconFamily(makeData(bytes));
    const bool any = images.anyDecodes();
    for (const int side : {1024, 256, 128, 48, 32, 16, 1}) {
        const QImage image = images.atLeast(side);
        require(image.isNull() != any, "an image of any size is there if one decodes");
        require(image.isNull() || image.format() == QImage::Format_ARGB32_Premultiplied,
                "images are ready to be drawn");
    }
}
