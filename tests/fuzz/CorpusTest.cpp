#include "platform/CoreFoundation/CFPropertyList.h"
#include "platform/IconServices/detail/IconFamily.h"
#include "tests/platform/CoreFoundation/TestFiles.h"
#include "tests/support/TestIcons.h"

#include <gtest/gtest.h>

#include <map>

namespace {

void require(bool holds, const char* rule) {
    if (!holds) {
        std::fprintf(stderr, "Broken: %s\n", rule);
        std::abort();
    }
}

void readPropertyList(std::string_view bytes) {
    const auto list = CFPropertyListCreateFromXMLData(makeData(bytes).get());
    const std::string written = list ? CFPropertyListToXML(list.get()) : "";
    if (!written.empty()) // else nothing, or larger than may be read
        require(CFEqual(CFPropertyListCreateFromXMLData(makeData(written).get()).get(), list.get()),
                "what is written reads as the same");
}

void readIconFamily(std::string_view bytes) {
    IconImages images = imagesOfIconFamily(makeData(bytes));
    const bool any = images.anyDecodes();
    for (const int side : {1024, 256, 128, 48, 32, 16, 1}) {
        const QImage image = images.atLeast(side);
        require(image.isNull() != any, "an image of any size is there if one decodes");
        require(image.isNull() || image.format() == QImage::Format_ARGB32_Premultiplied,
                "images are ready to be drawn");
    }
}

/// Each reads any bytes as a file of its kind and ends the process with a message when what it
/// gives contradicts itself.
const std::map<std::string, void (*)(std::string_view bytes)> kReaders = {
    {"propertylist", readPropertyList}, {"iconfamily", readIconFamily}};

} // namespace

#ifdef READER
extern "C" int LLVMFuzzerTestOneInput(const UInt8* bytes, std::size_t size);

extern "C" int LLVMFuzzerTestOneInput(const UInt8* bytes, std::size_t size) {
    kReaders.at(READER)({reinterpret_cast<const char*>(bytes), size});
    return 0;
}
#else
/// Reads every file of each folder, and again with its end cut off at some hundred lengths.
TEST(CorpusTest, IsReadWithoutAFault) {
    for (const auto& [folder, read] : kReaders) {
        int files = 0;
        for (const auto& file : std::filesystem::directory_iterator(CORPUS + ('/' + folder))) {
            const std::string text = readFile(file.path());
            read(text);
            for (std::size_t length = 0; length < text.size(); length += 1 + text.size() / 100)
                read(text.substr(0, length));
            ++files;
        }
        EXPECT_GT(files, 0) << folder;
    }
}
#endif
