// SPDX-License-Identifier: MIT
#include "platform/CoreServices/LaunchServices.h"
#include "platform/IconServices/Icons.h"
#include "platform/IconServices/detail/IconImages.h"
#include "tests/support/TestApplications.h"
#include "tests/support/TestIcons.h"

#include <QIcon>

namespace {

using ApplicationIconTest = ApplicationsTest;

/// Looks up the application and takes its icon, like the palette. Null when there is none.
CFRef<Icon> iconNow() {
    constexpr OSType code = fourCharCode("TEST");
    LSFindApplicationForInfo(code, CFSTR("org.example.keys"), nullptr, nullptr, nullptr);
    CFRef<Icon> icon;
    const OSErr error = GetIconRef(kOnSystemDisk, code, fourCharCode("APPL"), &icon);
    EXPECT_EQ(error, icon ? noErr : noSuchIconErr);
    return icon;
}

/// The colour of the image for that many pixels. Invalid without an icon.
QColor colourAt(int side) {
    const auto icon = iconNow();
    const QImage image = icon ? icon->images().atLeast(side) : QImage();
    return image.isNull() ? QColor() : image.pixelColor(image.rect().center());
}

TEST_F(ApplicationIconTest, EntriesNameTheirIcons) {
    writeFile(folder_ / "my icon.png", pngBytes(48, 48, Qt::red));
    QIcon::setThemeName("Own");
    writeFile(home_ / "icons/hicolor/32x32/apps/drawn.png", pngBytes(32, 32, Qt::yellow));
    writeFile(far_ / "icons/Own/apps/scalable/drawn.svg",
              "<svg xmlns='http://www.w3.org/2000/svg' width='8' height='8'>"
              "<path d='M0 0h8v8H0' fill='#f0f'/></svg>");
    writeFile(far_ / "pixmaps/damaged.png", "\x89PNG");
    writeFile(near_ / "icons/hicolor/32x32/apps/keys.png", pngBytes(32, 32, Qt::blue));
    writeFile(far_ / "icons/hicolor/32x32/apps/keys.png", pngBytes(32, 32, Qt::yellow));
    const std::string escaping = "../../../icons/hicolor/32x32/apps/keys";
    const std::pair<std::string, QColor> cases[] = {
        {"keys", Qt::blue},     {folder_ / "my\\sicon.png", Qt::red},
        {"drawn", Qt::magenta}, {"damaged", {}},
        {escaping, {}},         {"", {}}};
    for (const auto& [icon, colour] : cases) {
        installEntry(home_, "org.example.keys", "Icon=" + icon + '\n');
        EXPECT_EQ(colourAt(32), colour) << icon;
    }
}

TEST_F(ApplicationIconTest, FollowsInstallationChangeAndRemoval) {
    const auto theme = near_ / "icons/hicolor";
    EXPECT_EQ(colourAt(32), QColor());
    installEntry(near_, "org.example.keys", "Icon=keys\n");
    EXPECT_EQ(colourAt(32), QColor()) << "its icon isn't installed yet";
    writeFile(theme / "32x32/apps/keys.png", pngBytes(32, 32, Qt::red));
    EXPECT_EQ(colourAt(64), QColor(Qt::red));
    writeFile(theme / "64x64/apps/keys.png", pngBytes(64, 64, Qt::blue));
    EXPECT_EQ(colourAt(64), QColor(Qt::blue));
    writeFile(theme / "32x32/apps/keys.png", pngBytes(32, 32, Qt::green));
    waitUntilSettled(theme / "32x32/apps/keys.png");
    EXPECT_EQ(colourAt(32), QColor(Qt::green));

    const auto held = iconNow();
    EXPECT_EQ(iconNow().get(), held.get()) << "it didn't change";
    fs::remove(near_ / "applications/org.example.keys.desktop");
    EXPECT_EQ(colourAt(32), QColor());
    EXPECT_EQ(held->images().atLeast(32).width(), 32) << "the caller's own";
    installBundle(near_, "Keys.app", "TEST", "org.example.keys");
    writeFile(near_ / "applications/Keys.app/Contents/Resources/Icon.icns",
              pngFamily({{32, Qt::yellow}}));
    EXPECT_EQ(colourAt(32), QColor(Qt::yellow));
}

} // namespace
