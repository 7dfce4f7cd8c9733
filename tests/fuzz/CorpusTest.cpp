#include "tests/fuzz/Readers.h"
#include "tests/platform/CoreFoundation/TestFiles.h"

#include <gtest/gtest.h>

namespace {

struct Corpus {
    const char* folder;
    void (*read)(std::span<const UInt8> bytes);
};

class CorpusTest : public testing::TestWithParam<Corpus> {};

// A file is also read with its end cut off at every length, up to some hundred.
TEST_P(CorpusTest, ReadsEveryFile) {
    const auto& [folder, read] = GetParam();
    int files = 0;
    for (const auto& file :
         std::filesystem::directory_iterator(CORPUS + ('/' + std::string(folder)))) {
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

INSTANTIATE_TEST_SUITE_P(, CorpusTest,
                         testing::Values(Corpus{"propertylist", read_propertylist},
                                         Corpus{"iconfamily", read_iconfamily}),
                         [](const auto& test) { return std::string(test.param.folder); });

} // namespace
