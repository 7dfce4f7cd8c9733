#include "src/prefpane/palutil.h"

#include "platform/HIToolbox/Appearance.h"
#include "platform/QuickDraw/GrafPort.h"
#include "src/prefpane/Daemon.h"
#include "src/prefs.h"

#include <QApplication>
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>

namespace {

namespace fs = std::filesystem;

constexpr UInt32 kBoth = kButtonContentIcon | kButtonContentName;
constexpr UInt8 kClick = 20;

/// Draws buttons into pictures, with the resources of an agent's bundle: the built one, or one that
/// the test writes.
class PalutilTest : public testing::Test {
protected:
    PalutilTest() { prefs.on = 0; }

    ~PalutilTest() override { end(); }

    /// Begins a visit with the bundle at that path.
    void begin(const std::string& agent) {
        end();
        begun_ = true;
        daemonSetup(CFStringCreateWithUTF8(agent).get());
        palutilSetup();
    }

    void beginBuilt() { begin(KORVEX_BUNDLE "/Contents/Linux/Korvex Agent.app"); }

    void end() {
        if (!std::exchange(begun_, false))
            return;
        palutilCleanup();
        daemonCleanup();
    }

    /// An empty bundle of the test's own, without anything to launch.
    static fs::path makeBundle() {
        const fs::path bundle = fs::path(std::getenv("KORVEX_TEST_SANDBOX")) / "Test Agent.app";
        fs::remove_all(bundle);
        fs::create_directories(bundle / "Contents/Resources");
        write(bundle / "Contents/Info.plist", "<plist version=\"1.0\"><dict/></plist>");
        return bundle;
    }

    static void write(const fs::path& file, const std::string& text) {
        std::ofstream(file, std::ios::binary) << text;
    }

    static void writePlist(const fs::path& bundle, const std::string& root) {
        write(bundle / "Contents/Resources/btn_icons_std.plist",
              "<plist version=\"1.0\">" + root + "</plist>");
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

    /// Where two pictures differ; null where they don't.
    static QRect difference(const QImage& a, const QImage& b) {
        QRect found;
        for (int y = 0; y < a.height(); ++y)
            for (int x = 0; x < a.width(); ++x)
                if (a.pixel(x, y) != b.pixel(x, y))
                    found |= QRect(x, y, 1, 1);
        return found;
    }

    QRect contentOf(UInt8 action, const Rect& bounds, UInt32 content) {
        return difference(draw(action, bounds, 0, content), draw(kEmptyAction, bounds, 0, content));
    }

    static std::string title(UInt8 action) {
        const CFString* text = palutilActionTitle(action);
        return text ? CFStringToUTF8(text) : "(none)";
    }

private:
    int argc_ = 1;
    char name_[5] = "test";
    char* argv_[2] = {name_, nullptr};
    QApplication application_{argc_, argv_};
    bool begun_ = false;

protected:
    QWidget widget_;
};

TEST_F(PalutilTest, TheIconStandsInTheSquareThatItsRoomAllows) {
    beginBuilt();

    const struct {
        Rect bounds; ///< top, left, bottom, right
        QRect square;
    } cases[] = {
        // Two points of frame on each side; the middle is rounded down.
        {{0, 0, 40, 40}, {4, 4, 32, 32}},    {{10, 20, 50, 61}, {24, 14, 32, 32}},
        {{0, 0, 100, 60}, {14, 34, 32, 32}}, {{0, 0, 37, 37}, {2, 2, 32, 32}},
        {{0, 0, 36, 100}, {42, 10, 16, 16}}, {{0, 0, 20, 20}, {2, 2, 16, 16}},
        {{0, 0, 17, 30}, {8, 2, 13, 13}},    {{0, 0, 40, 15}, {2, 14, 11, 11}},
    };

    for (const auto& [bounds, square] : cases) {
        SCOPED_TRACE(testing::Message()
                     << bounds.right - bounds.left << " by " << bounds.bottom - bounds.top);
        const QRect drawn = contentOf(kClick, bounds, kButtonContentIcon);
        EXPECT_TRUE(square.contains(drawn)) << drawn.x() << ' ' << drawn.y();
        EXPECT_GE(drawn.width(), square.width() / 2);
    }
}

TEST_F(PalutilTest, TheTitleStandsAtTheBottomOrAloneInTheMiddle) {
    beginBuilt();
    const Rect bounds = {0, 0, 80, 80};
    const QRect both = contentOf(kClick, bounds, kBoth);
    const QRect icon = contentOf(kClick, bounds, kButtonContentIcon);
    const QRect name = contentOf(kClick, bounds, kButtonContentName);
    EXPECT_LT(both.top(), icon.top()) << "the title pushes the icon up";
    EXPECT_LT(both.bottom(), 78);
    EXPECT_GT(both.bottom(), 65);
    EXPECT_NEAR(name.center().y(), 40, 5);
    EXPECT_NEAR(name.center().x(), 40, 2);
    // A long title is cut short, not drawn over the neighbour.
    EXPECT_TRUE(QRect(0, 0, 24, 80).contains(contentOf(30, {0, 0, 80, 24}, kButtonContentName)));
}

TEST_F(PalutilTest, ShapeSelectionAndContentShowAndNothingElseDoes) {
    beginBuilt();
    const Rect bounds = {0, 0, 40, 40};
    const QImage square = draw(kClick, bounds, 0, kBoth);
    EXPECT_EQ(draw(kClick, bounds, 2, kBoth), square);
    EXPECT_NE(draw(kClick, bounds, kButtonShapeRounded, kBoth), square);
    EXPECT_NE(draw(kClick, bounds, 0, kBoth, 1), square);
    const QImage blank = draw(kEmptyAction, bounds, 0, kBoth);
    EXPECT_EQ(draw(kClick, bounds, 0, 0), blank);
    for (const int action : {40, 41, 255})
        EXPECT_EQ(draw(static_cast<UInt8>(action), bounds, 0, kBoth), blank) << action;
    EXPECT_NE(draw(kEmptyAction, bounds, 0, kBoth, 1), blank) << "a blank button can be selected";
    for (const Rect tiny : {Rect{0, 0, 0, 0}, Rect{5, 5, 6, 6}, Rect{0, 0, 3, 90}})
        draw(kClick, tiny, 0, kBoth);
}

TEST_F(PalutilTest, WhateverIsWrongWithTheListYieldsLessContent) {
    const std::string entry = "<dict><key>title</key><string>Go</string></dict>";
    std::string many;
    for (int i = 0; i < 500; ++i)
        many += entry;

    const struct {
        const char* what;
        std::string root; ///< empty: no file
        std::vector<UInt8> titled;
    } cases[] = {
        {"no file", "", {}},
        {"a dictionary", entry, {}},
        {"not a list", "<array><dict>", {}},
        {"three entries", "<array>" + entry + entry + entry + "</array>", {0, 1, 2}},
        {"500 entries", "<array>" + many + "</array>", {0, 1, 2, 3, 39}},
        {"wrong types",
         "<array><string>no</string><dict><key>title</key><integer>1</integer></dict>" + entry +
             "<dict><key>icon</key><true/></dict></array>",
         {2}},
    };

    for (const auto& test : cases) {
        SCOPED_TRACE(test.what);
        const fs::path bundle = makeBundle();
        if (!test.root.empty())
            writePlist(bundle, test.root);
        begin(bundle);
        for (const int action : {0, 1, 2, 3, 39, 40, 255}) {
            const auto number = static_cast<UInt8>(action);
            const bool titled =
                std::find(test.titled.begin(), test.titled.end(), number) != test.titled.end();
            EXPECT_EQ(title(number), titled ? "Go" : "(none)") << action;
            draw(number, {0, 0, 40, 40}, 0, kBoth);
        }
    }
    begin("/nowhere/Korvex Agent.app");
    EXPECT_EQ(title(kClick), "(none)");
}

TEST_F(PalutilTest, AnIconThatCantBeReadLeavesTheTitleInTheMiddle) {
    const std::string noise = [] {
        std::string bytes = "icns";
        for (unsigned i = 1; bytes.size() < 4000; i = i * 1103515245 + 12345)
            bytes += static_cast<char>(i >> 16);
        return bytes;
    }();
    const fs::path built = fs::path(KORVEX_BUNDLE) /
                           "Contents/Linux/Korvex Agent.app/Contents/Resources/btn_click.icns";
    std::ifstream file(built, std::ios::binary);
    const std::string whole(std::istreambuf_iterator<char>(file), {});
    ASSERT_GT(whole.size(), 1000U);

    const fs::path bundle = makeBundle();
    writePlist(bundle, "<array><dict/><dict/>"
                       "<dict><key>title</key><string>Go</string><key>icon</key>"
                       "<string>it</string></dict></array>");
    const Rect bounds = {0, 0, 60, 60};
    begin(bundle);
    const QImage alone = draw(2, bounds, 0, kButtonContentName);
    EXPECT_EQ(draw(2, bounds, 0, kBoth), alone) << "a missing file";
    for (const std::string& bytes : {std::string(), std::string(1, '\0'), noise, whole.substr(0, 7),
                                     std::string(64, '\0'), whole.substr(0, 40)}) {
        write(bundle / "Contents/Resources/it.icns", bytes);
        begin(bundle);
        EXPECT_EQ(draw(2, bounds, 0, kBoth), alone) << bytes.size() << " bytes";
    }
    write(bundle / "Contents/Resources/it.icns", whole);
    EXPECT_NE(draw(2, bounds, 0, kBoth), alone) << "failures aren't remembered";
}

} // namespace
