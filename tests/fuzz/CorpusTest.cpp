// SPDX-License-Identifier: MIT
#include "platform/CoreFoundation/CFPropertyList.h"
#include "platform/CoreServices/detail/DesktopEntry.h"
#include "platform/IconServices/detail/IconFamily.h"
#include "src/record/settings.h"
#include "tests/agent/ScanDriver.h"
#include "tests/platform/CoreFoundation/TestFiles.h"
#include "tests/support/TestIcons.h"

#include <cstring>
#include <map>
#include <sys/mman.h>
#include <unistd.h>

namespace {

bool readPropertyList(std::string_view bytes) {
    const auto list = CFPropertyListCreateFromXMLData(makeData(bytes).get());
    const std::string written = list ? propertyListToXML(list.get()) : "";
    if (!written.empty()) // else nothing, or larger than may be read
        require(CFEqual(CFPropertyListCreateFromXMLData(makeData(written).get()).get(), list.get()),
                "what is written reads as the same");
    return bool{list};
}

bool readIconFamily(std::string_view bytes) {
    IconImages images = imagesOfIconFamily(makeData(bytes));
    const bool any = images.anyDecodes();
    for (const int side : {1024, 256, 128, 48, 32, 16, 1}) {
        const QImage image = images.atLeast(side);
        require(image.isNull() != any, "an image of any size is there if one decodes");
        require(image.isNull() || image.format() == QImage::Format_ARGB32_Premultiplied,
                "images are ready to be drawn");
    }
    return any;
}

bool readDesktopFile(std::string_view bytes) {
    const int file = memfd_create("entry", 0);
    require(write(file, bytes.data(), bytes.size()) == std::ssize(bytes), "memory is a file");
    const DesktopEntry entry = readDesktopEntry("/proc/self/fd/" + std::to_string(file));
    close(file);
    for (const auto& [key, value] : entry)
        require(key.find_first_of("=\n") == key.npos && !key.ends_with(']'), "a key is a name");
    return !entry.empty();
}

/// The first byte chooses the setting; the others are its stored text.
bool readStoredText(std::string_view bytes) {
    if (bytes.empty())
        return false;
    const Setting& setting = kSettings[static_cast<UInt8>(bytes[0]) % kSettings.size()];
    const std::string text(bytes.substr(1));
    const auto stored = CFStringCreateWithCString(text.c_str(), kCFStringEncodingMacRoman);
    PrefsRecord record, again;
    const bool any = setting.notation->read(stored.get(), setting.in(record));
    const auto written = setting.notation->write(setting.in(record));
    if (written && setting.notation->read(written.get(), setting.in(again)))
        require(CFEqual(setting.notation->write(setting.in(again)).get(), written.get()),
                "what is stored is read and stored the same");
    std::memset(setting.in(record), 0, setting.size);
    std::memset(setting.in(again), 0, setting.size);
    require(std::memcmp(&record, &again, sizeof record) == 0, "no other field changes");
    return any;
}

/// Each reads bytes as a file of its kind. True when it contains anything. If the result
/// contradicts itself, the process ends with a message.
const std::map<std::string, bool (*)(std::string_view bytes)> kReaders = {
    {"propertylist", readPropertyList},
    {"iconfamily", readIconFamily},
    {"desktopentry", readDesktopFile},
    {"storedtext", readStoredText},
    {"scan", driveScan}};

} // namespace

#ifdef READER
extern "C" int LLVMFuzzerTestOneInput(const UInt8* bytes, std::size_t size);

extern "C" int LLVMFuzzerTestOneInput(const UInt8* bytes, std::size_t size) {
    kReaders.at(READER)({reinterpret_cast<const char*>(bytes), size});
    return 0;
}
#else
/// Reads every file of each folder, also cut off at about a hundred lengths. Files named "bad-…"
/// must give nothing.
TEST(CorpusTest, IsReadWithoutAFault) {
    for (const auto& [folder, read] : kReaders) {
        int files = 0;
        for (const auto& file : fs::directory_iterator(CORPUS + ('/' + folder))) {
            const std::string text = readFile(file.path());
            const bool isBad = file.path().filename().string().starts_with("bad-");
            EXPECT_FALSE(read(text) && isBad) << file.path();
            for (std::size_t length = 0; length < text.size(); length += 1 + text.size() / 100)
                read(text.substr(0, length));
            ++files;
        }
        EXPECT_GT(files, 0) << folder;
    }
}
#endif
