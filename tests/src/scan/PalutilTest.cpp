// SPDX-License-Identifier: MIT
#include "src/scan/palutil.h"

#include "platform/QuickDraw/detail/GrafPort.h"
#include "src/link/Daemon.h"
#include "src/store/prefs.h"
#include "tests/platform/CoreFoundation/TestFiles.h"
#include "tests/support/ProcessTest.h"

#include <QApplication>

namespace {

constexpr UInt32 kBoth = kButtonContentIcon | kButtonContentName;
constexpr UInt8 kClick = 20;
const fs::path kBuilt = KORVEX_BUNDLE "/Contents/Linux/Korvex Agent.app";

/// Draws buttons into pictures, with the resources of the built agent's bundle or of one that the
/// test writes.
class PalutilTest : public ApplicationTest<QApplication> {
protected:
    PalutilTest() {
        writeFile(bundle_ / "Contents/Info.plist", dictionaryFile(""));
        prefs.on = 0; // nothing is launched
        begin(kBuilt);
    }

    ~PalutilTest() override { end(); }

    /// Begins another visit with that list of actions in the test's bundle.
    void beginAgain(const std::string& root) {
        end();
        writeFile(resources_ / "btn_icons_std.plist",
                  "<plist version=\"1.0\">" + root + "</plist>");
        begin(bundle_);
    }

    QImage draw(UInt8 action, const Rect& bounds, UInt32 shape, UInt32 content,
                UInt8 selected = 0) {
        QImage image(200, 120, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::white);
        QPainter painter(&image);
        const GrafPort port(painter, widget_);
        palutilDrawBtnAs(action, selected, bounds, shape, content);
        return image;
    }

    /// Where the button differs from a blank one. Null when it doesn't.
    QRect contentOf(UInt8 action, const Rect& bounds, UInt32 content) {
        const QImage a = draw(action, bounds, 0, content);
        const QImage b = draw(kEmptyAction, bounds, 0, content);
        QRect found;
        for (int y = 0; y < a.height(); ++y)
            for (int x = 0; x < a.width(); ++x)
                if (a.pixel(x, y) != b.pixel(x, y))
                    found |= QRect(x, y, 1, 1);
        return found;
    }

    fs::path bundle_ = makeSandboxFolder("Test Agent.app");
    fs::path resources_ = bundle_ / "Contents/Resources";
    QWidget widget_;

private:
    static void begin(const fs::path& agent) {
        daemonSetup(createFromUTF8(agent.string()).get());
        palutilSetup();
    }

    static void end() {
        palutilCleanup();
        daemonCleanup();
    }
};

TEST_F(PalutilTest, IconAndTitleStandWhereTheirRoomAllows) {
    const struct {
        Rect bounds; ///< top, left, bottom, right
        QRect square;
    } cases[] = {
        // The frame is two points on each side. The centre is rounded down.
        {{10, 20, 50, 61}, {24, 14, 32, 32}},
        {{0, 0, 36, 100}, {42, 10, 16, 16}},
        {{0, 0, 40, 15}, {2, 14, 11, 11}},
    };

    for (const auto& [bounds, square] : cases) {
        SCOPED_TRACE(bounds.right);
        const QRect drawn = contentOf(kClick, bounds, kButtonContentIcon);
        EXPECT_TRUE(square.contains(drawn)) << drawn.x() << ' ' << drawn.y();
        EXPECT_GE(drawn.width(), square.width() / 2);
    }

    // A long title is shortened and doesn't reach the neighbour.
    EXPECT_TRUE(QRect(0, 0, 24, 80).contains(contentOf(30, {0, 0, 80, 24}, kButtonContentName)));
}

TEST_F(PalutilTest, WhateverIsWrongWithTheListYieldsLessContent) {
    const std::string entry = "<dict><key>title</key><string>Go</string></dict>";
    const QString many = QString::fromStdString(entry).repeated(500);

    const struct {
        std::string root, titles; ///< of the actions 0, 1, 2, 39, 40 and 255: whether there is one
    } cases[] = {
        {entry, "000000"},
        {"<array>" + many.toStdString() + "</array>", "111100"},
        {"<array><string>no</string><dict><key>title</key><integer>1</integer></dict>" + entry +
             "<dict><key>icon</key><true/></dict></array>",
         "001000"},
    };

    for (const auto& [root, expected] : cases) {
        beginAgain(root);
        std::string titles;
        for (const UInt8 action : std::initializer_list<UInt8>{0, 1, 2, 39, 40, 255}) {
            titles += palutilActionTitle(action) ? '1' : '0';
            draw(action, {0, 0, 40, 40}, 0, kBoth);
        }
        EXPECT_EQ(titles, expected) << root.substr(0, 80);
    }
}

} // namespace
