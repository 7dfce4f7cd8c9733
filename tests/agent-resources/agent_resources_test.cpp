// The built resources, read with the libraries that the pane reads them with.

#include <QImage>
#include <gtest/gtest.h>
#include <plist/plist.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <memory>
#include <string>
#include <vector>

extern "C" { // the header doesn't say so itself
#include <icns.h>
}

namespace {

namespace fs = std::filesystem;

const fs::path kResources = KORVEX_AGENT_RESOURCES;

struct Entry {
    std::string title, icon;
};

std::string stringOf(plist_t dictionary, const char* key) {
    const plist_t item = plist_dict_get_item(dictionary, key);
    return item ? plist_get_string_ptr(item, nullptr) : "";
}

std::vector<Entry> actionList() {
    std::ifstream file(kResources / "btn_icons_std.plist", std::ios::binary);
    const std::string text(std::istreambuf_iterator<char>(file), {});
    plist_t root = nullptr;
    plist_from_xml(text.data(), static_cast<uint32_t>(text.size()), &root);
    std::vector<Entry> entries;
    for (uint32_t i = 0; root && i < plist_array_get_size(root); ++i) {
        const plist_t entry = plist_array_get_item(root, i);
        entries.push_back({stringOf(entry, "title"), stringOf(entry, "icon")});
    }
    plist_free(root);
    return entries;
}

/// The icon in shades of grey over a light button, a byte a pixel; empty if it can't be decoded.
std::string greyIcon(const fs::path& path, icns_type_t type) {
    const std::unique_ptr<FILE, int (*)(FILE*)> file(std::fopen(path.c_str(), "rb"), &std::fclose);
    icns_family_t* family = nullptr;
    icns_image_t image{};
    std::string grey;
    if (!file || icns_read_family_from_file(file.get(), &family) != ICNS_STATUS_OK)
        return grey;
    if (icns_get_image32_with_mask_from_family(family, type, &image) == ICNS_STATUS_OK) {
        for (const icns_byte_t* p = image.imageData; p < image.imageData + image.imageDataSize;
             p += 4) {
            const int shade = (p[0] * 11 + p[1] * 16 + p[2] * 5) / 32;
            grey += static_cast<char>((shade * p[3] + 232 * (255 - p[3])) / 255);
        }
        icns_free_image(&image);
    }
    std::free(family);
    return grey;
}

/// How many pixels differ so much that an eye tells them apart.
int distance(const std::string& a, const std::string& b) {
    int count = 0;
    for (size_t i = 0; i < a.size(); ++i)
        count += std::abs(static_cast<unsigned char>(a[i]) - static_cast<unsigned char>(b[i])) > 64;
    return count;
}

std::string alphasOf(const QImage& image) {
    std::string alphas;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            alphas += static_cast<char>(qAlpha(image.pixel(x, y)));
    return alphas;
}

TEST(AgentResources, FortyActionsHaveTitlesAndIconsThatDifferWithoutColour) {
    const std::vector<Entry> actions = actionList();
    ASSERT_EQ(actions.size(), 40u);
    std::map<std::string, std::string> titleOf; // by title and by icon name: each stands once
    std::vector<std::string> small;
    for (const Entry& action : actions) {
        EXPECT_FALSE(action.title.empty());
        EXPECT_TRUE(titleOf.emplace("title " + action.title, action.title).second) << action.title;
        EXPECT_TRUE(titleOf.emplace("icon " + action.icon, action.title).second) << action.icon;
        const fs::path file = kResources / (action.icon + ".icns");
        EXPECT_EQ(greyIcon(file, ICNS_32x32_32BIT_DATA).size(), 32u * 32) << file;
        EXPECT_EQ(greyIcon(file, ICNS_128X128_32BIT_DATA).size(), 128u * 128) << file;
        small.push_back(greyIcon(file, ICNS_16x16_32BIT_DATA));
        ASSERT_EQ(small.back().size(), 16u * 16) << file;
        for (size_t other = 0; other + 1 < small.size(); ++other)
            EXPECT_GE(distance(small[other], small.back()), 8)
                << action.title << " looks like " << actions[other].title;
    }
}

TEST(AgentResources, PointersFitTheirHotSpotsAndTheStoredName) {
    int count = 0;
    for (const fs::directory_entry& file : fs::directory_iterator(kResources / "Pointers")) {
        const std::string name = file.path().stem().string();
        SCOPED_TRACE(name);
        ++count;
        EXPECT_LE(name.size(), 98u);
        const QImage image(QString::fromStdString(file.path().string()));
        int x = 0, y = 0;
        if (const size_t plus = name.rfind('+'); plus != std::string::npos) {
            ASSERT_EQ(std::sscanf(name.c_str() + plus, "+%dx%d", &x, &y), 2);
        }
        ASSERT_TRUE(image.valid(x, y));
        const int alpha = qAlpha(image.pixel(x, y));
        EXPECT_GT(alpha, 0) << "nothing is drawn at the hot spot";
        if (name.find("Arrow") != 0 && name != "default") {
            EXPECT_EQ(QPoint(2 * x + 1, 2 * y + 1), QPoint(image.width(), image.height()));
            EXPECT_EQ(distance(alphasOf(image), alphasOf(image.mirrored(true, true))), 0);
            EXPECT_EQ(alpha < 255, name.find("see-through") != std::string::npos);
        }
    }
    EXPECT_EQ(count, 12);
    EXPECT_TRUE(fs::exists(kResources / "Pointers/default.png"));
}

} // namespace
