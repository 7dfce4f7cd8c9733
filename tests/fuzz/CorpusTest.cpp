#include "tests/fuzz/Readers.h"
#include "tests/platform/CoreFoundation/TestFiles.h"

#include <gtest/gtest.h>

namespace {

/// Reads every file of the folder, and again with its end cut off at some hundred lengths.
void readAll(const std::string& folder, void (*read)(std::span<const UInt8> bytes)) {
    int files = 0;
    for (const auto& file : std::filesystem::directory_iterator(CORPUS + ('/' + folder))) {
        SCOPED_TRACE(file.path());
        const std::string text = readFile(file.path());
        const std::vector<UInt8> bytes(text.begin(), text.end());
        read(bytes);
        for (std::size_t length = 0; length < bytes.size(); length += 1 + bytes.size() / 100)
            read(std::vector<UInt8>(bytes.begin(), bytes.begin() + static_cast<long>(length)));
        ++files;
    }
    EXPECT_GT(files, 0);
}

TEST(CorpusTest, PropertyLists) {
    readAll("propertylist", read_propertylist);
}

TEST(CorpusTest, IconFamilies) {
    readAll("iconfamily", read_iconfamily);
}

} // namespace
