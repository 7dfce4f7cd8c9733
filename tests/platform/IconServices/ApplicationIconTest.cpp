#include "platform/CoreServices/LaunchServices.h"
#include "platform/IconServices/IconImages.h"
#include "platform/IconServices/Icons.h"
#include "tests/support/TestApplications.h"
#include "tests/support/TestIcons.h"

#include <gmock/gmock.h>

namespace fs = std::filesystem;

namespace {

constexpr OSType kCode = fourCharCode("TEST");
constexpr OSType kType = fourCharCode("APPL");

class ApplicationIconTest : public ApplicationsTest {
protected:
    /// Looks the application up and takes its icon, as the palette does; null when there is none.
    static CFRef<Icon> iconNow() {
        CFRef<Icon> icon;
        if (LSFindApplicationForInfo(kCode, CFSTR("org.example.keys"), nullptr, nullptr, nullptr) ==
            noErr) {
            const OSErr error = GetIconRef(kOnSystemDisk, kCode, kType, &icon);
            EXPECT_EQ(error, icon ? noErr : noSuchIconErr);
        }
        return icon;
    }

    /// The colour of the image for that many pixels; no colour without an icon.
    static QColor colourAt(int side) {
        const auto icon = iconNow();
        const QImage image = icon ? icon->images().atLeast(side) : QImage();
        return image.isNull() ? QColor() : image.pixelColor(image.width() / 2, image.height() / 2);
    }

    static void writeThemeIcon(const fs::path& data, int side, QColor colour) {
        const std::string size = std::to_string(side) + "x" + std::to_string(side);
        writeFile(data / "icons/hicolor" / size / "apps/keys.png", pngBytes(side, side, colour));
    }

    static inline const QColor kNone;
};

TEST_F(ApplicationIconTest, BundlesAndEntriesNameTheirIcons) {
    const std::string svg = R"(<svg xmlns="http://www.w3.org/2000/svg" width="8" height="8">)"
                            R"(<rect width="8" height="8" fill="#00ff00"/></svg>)";
    const std::string xpm = "/* XPM */\nstatic char *x[] = {\"1 1 1 1\",\"a c #ff00ff\",\"a\"};\n";
    writeFile(folder_ / "my icon.png", pngBytes(48, 48, Qt::red));
    writeFile(folder_ / "file.txt", "x");
    writeFile(home_ / "icons/hicolor/scalable/apps/drawn.svg", svg);
    writeFile(far_ / "pixmaps/old.xpm", xpm);
    writeFile(far_ / "pixmaps/damaged.png", "\x89PNG");
    writeThemeIcon(near_, 32, Qt::blue);
    writeThemeIcon(far_, 32, Qt::yellow);

    const struct {
        std::string icon;
        QColor colour;
    } cases[] = {
        {"keys", Qt::blue},
        {folder_ / "my\\sicon.png", Qt::red},
        {"drawn", QColor(0, 255, 0)},
        {"old", QColor(255, 0, 255)},
        {"damaged", kNone},
        {"none", kNone},
        {"", kNone},
        {"../../../icons/hicolor/32x32/apps/keys", kNone},
        {folder_ / "file.txt", kNone},
        {folder_, kNone},
    };

    for (const auto& row : cases) {
        installEntry(home_, "org.example.keys", "Icon=" + row.icon + '\n');
        EXPECT_EQ(colourAt(32), row.colour) << row.icon;
    }
}

TEST_F(ApplicationIconTest, FollowsInstallationChangeAndRemoval) {
    CFRef<Icon> icon;
    EXPECT_EQ(GetIconRef(kOnSystemDisk, kCode, kType, &icon), noSuchIconErr);
    EXPECT_EQ(colourAt(32), kNone);
    installEntry(near_, "org.example.keys", "Icon=keys\n");
    EXPECT_EQ(colourAt(32), kNone) << "its icon isn't installed yet";
    writeThemeIcon(near_, 32, Qt::red);
    EXPECT_EQ(colourAt(32), QColor(Qt::red));
    EXPECT_EQ(colourAt(64), QColor(Qt::red));
    writeThemeIcon(near_, 64, Qt::blue);
    EXPECT_EQ(colourAt(32), QColor(Qt::red));
    EXPECT_EQ(colourAt(64), QColor(Qt::blue));
    writeThemeIcon(near_, 32, Qt::green);
    EXPECT_EQ(colourAt(32), QColor(Qt::green));

    const auto held = iconNow();
    fs::remove(near_ / "applications/org.example.keys.desktop");
    EXPECT_EQ(colourAt(32), kNone);
    EXPECT_EQ(GetIconRef(kOnSystemDisk, kCode, kType, &icon), noSuchIconErr);
    EXPECT_EQ(held->images().atLeast(32).width(), 32) << "the caller's own";

    installBundle(near_, "Keys.app", "TEST", "org.example.keys");
    writeFile(near_ / "applications/Keys.app/Contents/Resources/Icon.icns",
              pngFamily({{32, Qt::yellow}}));
    EXPECT_EQ(colourAt(32), QColor(Qt::yellow));
}

TEST_F(ApplicationIconTest, WhatDidNotChangeIsTheSameIcon) {
    installEntry(near_, "org.example.keys", "Icon=keys\n");
    writeThemeIcon(near_, 32, Qt::red);
    waitUntilSettled(near_ / "icons/hicolor/32x32/apps/keys.png");
    const auto first = iconNow();
    ASSERT_TRUE(first);
    EXPECT_EQ(iconNow().get(), first.get());
    EXPECT_EQ(first->retainCount(), 2) << "the caller's and the kept one";
}

} // namespace
