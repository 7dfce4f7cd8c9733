// SPDX-License-Identifier: MIT
#include "platform/CoreFoundation/CFPropertyList.h"
#include "platform/IconServices/detail/IconFamily.h"
#include "tests/platform/CoreFoundation/TestFiles.h"
#include "tests/support/TestIcons.h"

#include <set>

namespace {

const fs::path kResources = KORVEX_AGENT_RESOURCES;

TEST(AgentResources, FortyActionsHaveTitlesAndIcons) {
    std::set<std::string> titles, icons;
    const auto list = CFPropertyListCreateFromXMLData(
        makeData(readFile(kResources / "btn_icons_std.plist")).get());
    ASSERT_EQ(CFGetTypeID(list.get()), CFArrayGetTypeID());
    for (const auto& action : static_cast<const CFArray&>(*list).items()) {
        const auto text = [&](const CFString* key) {
            const auto* dictionary = dynamicCFCast<CFDictionary>(action.get());
            return toUTF8(dynamicCFCast<CFString>(CFDictionaryGetValue(dictionary, key)));
        };
        const std::string title = text(CFSTR("title")), icon = text(CFSTR("icon"));
        SCOPED_TRACE(title + ", " + icon);
        EXPECT_TRUE(!title.empty() && titles.insert(title).second);
        IconImages images = imagesOfIconFamily(makeData(readFile(kResources / (icon + ".icns"))));
        for (const int side : {16, 32, 48, 128})
            ASSERT_EQ(images.atLeast(side).size(), QSize(side, side));
        icons.insert(icon);
    }
    EXPECT_EQ(icons.size(), 40u);
}

TEST(AgentResources, PointersFitTheirHotSpotsAndTheStoredName) {
    int count = 0;
    for (const fs::directory_entry& file : fs::directory_iterator(kResources / "Pointers")) {
        const std::string name = file.path().stem();
        SCOPED_TRACE(name);
        ++count;
        EXPECT_LE(name.size(), 98u);
        const QImage image(QString::fromStdString(file.path()));
        int x = 0, y = 0;
        const size_t plus = name.rfind('+');
        ASSERT_TRUE(plus == std::string::npos ||
                    std::sscanf(name.c_str() + plus, "+%dx%d", &x, &y) == 2);
        ASSERT_TRUE(image.valid(x, y));
        EXPECT_GT(qAlpha(image.pixel(x, y)), 0) << "nothing is drawn at the hot spot";
    }
    EXPECT_EQ(count, 12);
}

} // namespace
