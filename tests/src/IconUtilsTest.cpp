#include "platform/IconServices/IconImages.h"
#include "src/iconutil.h"
#include "tests/support/TestBundle.h"
#include "tests/support/TestIcons.h"
#include "tests/support/TestPort.h"

#include <gmock/gmock.h>

namespace fs = std::filesystem;

namespace {

class IconUtilsTest : public testing::Test {
protected:
    IconUtilsTest() {
        bundle_.write("red.icns", pngFamily({{16, Qt::red}, {32, Qt::green}}));
        bundle_.write("blue.icns", pngFamily({{16, Qt::blue}}));
        bundle_.write("noise.icns", "icns and more");
        iconUtilSetup();
    }

    ~IconUtilsTest() override { iconUtilCleanup(); }

    IconRef get(const char* name) {
        return iconUtilGetBundlesResourceIcon(bundle_.get(), CFSTR(name));
    }

    /// The icon that is registered under that type, else null.
    static IconRef registeredAs(UInt32 type) {
        CFRef<Icon> icon;
        GetIconRef(kOnSystemDisk, fourCharCode("Krvx"), type, &icon);
        return icon.get();
    }

    TestBundle bundle_;
};

TEST_F(IconUtilsTest, EveryFileIsRegisteredOnceAndNoNumberTwice) {
    const IconRef red = get("red"); // type 1
    ASSERT_TRUE(red);
    EXPECT_EQ(get("red"), red);
    EXPECT_EQ(iconUtilGetIconFile(bundle_.resource("red.icns").get()), red);
    EXPECT_EQ(registeredAs(1), red);

    EXPECT_EQ(get("noise"), nullptr); // 2 and 3
    EXPECT_EQ(get("noise"), nullptr);
    EXPECT_EQ(get("none"), nullptr); // none
    const IconRef blue = get("blue");
    ASSERT_TRUE(blue);
    EXPECT_EQ(registeredAs(2), nullptr);
    EXPECT_EQ(registeredAs(3), nullptr);
    EXPECT_EQ(registeredAs(4), blue);

    bundle_.write("noise.icns", pngFamily({{16, Qt::black}}));
    const IconRef mended = get("noise");
    EXPECT_TRUE(mended) << "a failure isn't kept";
    EXPECT_EQ(registeredAs(5), mended);
    std::filesystem::remove_all(bundle_.resources());
    EXPECT_EQ(get("red"), nullptr) << "the bundle has it no more";
    EXPECT_EQ(red->images().atLeast(32).width(), 32) << "the file is read when it is registered";
    bundle_.write("red.icns", pngFamily({{16, Qt::red}}));

    iconUtilCleanup();
    for (UInt32 type = 1; type <= 5; ++type)
        EXPECT_EQ(registeredAs(type), nullptr) << type;
    iconUtilSetup();
    const IconRef again = get("red");
    ASSERT_TRUE(again);
    EXPECT_EQ(registeredAs(6), again);
    EXPECT_EQ(registeredAs(1), nullptr);
}

TEST_F(IconUtilsTest, WhatIsMissingIsNull) {
    EXPECT_EQ(iconUtilGetIconFile(nullptr), nullptr);
    EXPECT_EQ(iconUtilGetBundlesResourceIcon(bundle_.get(), nullptr), nullptr);
    EXPECT_EQ(iconUtilGetBundlesResourceIcon(nullptr, CFSTR("red")), nullptr);
    EXPECT_EQ(iconUtilGetResourceIcon(nullptr), nullptr);
    EXPECT_EQ(iconUtilGetResourceIcon(CFSTR("red")), nullptr) << "no main bundle";
    EXPECT_EQ(registeredAs(1), nullptr);
    const IconRef red = get("red");
    EXPECT_TRUE(red);
    EXPECT_EQ(registeredAs(1), red) << "no number was used up";
}

TEST_F(IconUtilsTest, PlotsAtTheRectanglesPlaceInThePort) {
    const Rect rect{.top = 10, .left = 20, .bottom = 26, .right = 36};
    const IconRef icon = get("red");
    for (const auto& [ratio, colour] : {std::pair{1, Qt::red}, {2, Qt::green}}) {
        const QImage picture = drawInPort({80, 100}, ratio, [&] {
            iconUtilPlotIcon(rect, kAlignAbsoluteCenter, kTransformNone, icon);
        });
        EXPECT_EQ(drawnArea(picture), QRect(20 * ratio, 10 * ratio, 16 * ratio, 16 * ratio));
        EXPECT_EQ(picture.pixelColor(28 * ratio, 18 * ratio), QColor(colour));
    }
    iconUtilPlotIcon(rect, kAlignAbsoluteCenter, kTransformNone, icon); // no port
    const QImage picture = drawInPort({80, 100}, 1, [&] {
        iconUtilPlotIcon(rect, kAlignAbsoluteCenter, kTransformNone, nullptr);
    });
    EXPECT_TRUE(drawnArea(picture).isEmpty());
}

TEST_F(IconUtilsTest, ButtonContentAndKeys) {
    ControlButtonContentInfo content;
    iconUtilSetControlButtonContentIcon(&content, get("red"));
    EXPECT_EQ(content.contentType, 132);
    EXPECT_EQ(content.iconRef, get("red"));
    iconUtilSetControlButtonContentIcon(&content, nullptr);
    EXPECT_EQ(content.contentType, 0);
    EXPECT_EQ(content.iconRef, nullptr);

    const auto url = bundle_.resource("red.icns");
    const auto key = createHashKeyForURL(url.get());
    EXPECT_EQ(key->integerValue(), static_cast<SInt32>(CFHash(url.get())));
    EXPECT_EQ(key->retainCount(), 1);
}

/// The agent's own icons, as the build makes them.
TEST_F(IconUtilsTest, ReadsAllOfTheAgentsIcons) {
    const fs::path agent = KORVEX_BUNDLE "/Contents/Linux/Korvex Agent.app";
    int icons = 0;
    for (const auto& file : fs::directory_iterator(agent / "Contents/Resources")) {
        if (file.path().extension() != ".icns")
            continue;
        SCOPED_TRACE(file.path());
        const IconRef icon = iconUtilGetIconFile(TestBundle::url(file.path()).get());
        ASSERT_TRUE(icon);
        for (const int side : {16, 32, 48, 128})
            EXPECT_EQ(icon->images().atLeast(side).size(), QSize(side, side));
        ++icons;
    }
    EXPECT_GT(icons, 40);
}

} // namespace
