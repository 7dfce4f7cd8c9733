#include "src/prefpane/choosearea.h"

#include "platform/HIToolbox/CarbonEvent.h"

#include <QApplication>
#include <QBackingStore>
#include <QFile>
#include <QTest>
#include <QTimer>
#include <QWindow>
#include <gtest/gtest.h>

#include <cstdlib>
#include <functional>

void PrintTo(const CGRect& rect, std::ostream* out) {
    *out << rect.size.width << 'x' << rect.size.height << " at " << rect.origin.x << ','
         << rect.origin.y;
}

namespace {

// Two displays, the main one of 1000 x 800 points and one to its upper left, and Qt's platform that
// makes them up.
constexpr char kDisplays[] =
    R"({"screens": [{"name": "main", "x": 0, "y": 0, "width": 1000, "height": 800},
                    {"name": "other", "x": -600, "y": -100, "width": 600, "height": 500}]})";

struct TwoDisplays {
    TwoDisplays() {
        const QString path = qEnvironmentVariable("KORVEX_TEST_SANDBOX") + "/displays.json";
        QFile file(path);
        file.open(QIODevice::WriteOnly);
        file.write(kDisplays);
        setenv("QT_QPA_PLATFORM", ("offscreen:configfile=" + path.toStdString()).c_str(), 1);
    }
};

class ChooseAreaTest : private TwoDisplays, public testing::Test {
protected:
    /// Runs the chooser, and `user` once it is shown.
    bool choose(CGRect& area, const std::function<void()>& user) {
        QTimer::singleShot(0, [&] {
            overlay_ = nullptr;
            for (QWidget* widget : QApplication::topLevelWidgets())
                if (widget->isVisible())
                    overlay_ = widget;
            if (!overlay_ || !QTest::qWaitForWindowExposed(overlay_)) {
                ADD_FAILURE() << "no overlay is shown";
                std::abort();
            }
            user();
        });
        return chooseArea(&area);
    }

    QPoint toOverlay(int x, int y) const { return QPoint(x, y) - overlay_->pos(); }

    void press(int x, int y) { QTest::mousePress(overlay_, Qt::LeftButton, {}, toOverlay(x, y)); }

    void moveTo(int x, int y) {
        const QPointF place = toOverlay(x, y);
        QMouseEvent move(QEvent::MouseMove, place, overlay_->mapToGlobal(place), Qt::NoButton,
                         Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(overlay_, &move);
    }

    void release(int x, int y) {
        QTest::mouseRelease(overlay_, Qt::LeftButton, {}, toOverlay(x, y));
    }

    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(overlay_, key, modifiers);
    }

    void drag(int x1, int y1, int x2, int y2) {
        press(x1, y1);
        moveTo((x1 + x2) / 2, (y1 + y2) / 2);
        moveTo(x2, y2);
        release(x2, y2);
    }

    /// What is drawn on the overlay; this platform's windows are black beneath.
    QImage picture() const {
        return *dynamic_cast<QImage*>(overlay_->backingStore()->paintDevice());
    }

    QRgb pixel(int x, int y) const { return picture().pixel(toOverlay(x, y)); }

    QWidget* overlay_ = nullptr;

private:
    int argc_ = 1;
    char name_[5] = "test";
    char* argv_[2] = {name_, nullptr};
    QApplication application_{argc_, argv_};
};

constexpr CGRect kArea = {{100, 50}, {640, 480}};

TEST_F(ChooseAreaTest, WhatTheUserDoesDecidesTheArea) {
    const struct {
        const char* name;
        std::function<void()> user;
        bool accepted;
        CGRect area;
    } cases[] = {
        {"return before any click", [&] { key(Qt::Key_Return); }, true, kArea},
        {"escape", [&] { drag(10, 10, 60, 40), key(Qt::Key_Escape); }, false, kArea},
        {"escape in mid-drag", [&] { press(10, 10), moveTo(60, 40), key(Qt::Key_Escape); }, false,
         kArea},
        {"return in mid-drag", [&] { press(10, 10), moveTo(60, 40), key(Qt::Key_Return); }, true,
         kArea},
        {"a drag down and right",
         [&] { drag(10, 20, 60, 40), key(Qt::Key_Return); },
         true,
         {{10, 20}, {50, 20}}},
        {"down and left",
         [&] { drag(60, 20, 10, 40), key(Qt::Key_Return); },
         true,
         {{10, 20}, {50, 20}}},
        {"up and right",
         [&] { drag(10, 40, 60, 20), key(Qt::Key_Return); },
         true,
         {{10, 20}, {50, 20}}},
        {"up and left",
         [&] { drag(60, 40, 10, 20), key(Qt::Key_Return); },
         true,
         {{10, 20}, {50, 20}}},
        {"the keypad's enter",
         [&] { drag(10, 20, 60, 40), key(Qt::Key_Enter); },
         true,
         {{10, 20}, {50, 20}}},
        {"across both displays",
         [&] { drag(-599, -99, 999, 799), key(Qt::Key_Return); },
         true,
         {{-599, -99}, {1598, 898}}},
        {"a second drag",
         [&] { drag(1, 2, 3, 4), drag(10, 20, 60, 40), key(Qt::Key_Return); },
         true,
         {{10, 20}, {50, 20}}},
        {"a click", [&] { press(7, 8), release(7, 8), key(Qt::Key_Return); }, true, {{7, 8}, {}}},
        {"a double click's second drag",
         [&] {
             press(7, 8), release(7, 8);
             QTest::mouseDClick(overlay_, Qt::LeftButton, {}, toOverlay(7, 8));
             key(Qt::Key_Return);
         },
         true,
         {{7, 8}, {}}},
        {"a drag whose beginning was missed",
         [&] { moveTo(10, 20), moveTo(30, 40), release(30, 40), key(Qt::Key_Return); },
         true,
         {{10, 20}, {20, 20}}},
        {"other keys",
         [&] {
             key(Qt::Key_A), key(Qt::Key_Space), key(Qt::Key_F1),
                 key(Qt::Key_W, Qt::ControlModifier), key(Qt::Key_Escape);
         },
         false, kArea},
        {"arrows move the far corner",
         [&] { key(Qt::Key_Right), key(Qt::Key_Right), key(Qt::Key_Up), key(Qt::Key_Return); },
         true,
         {{100, 50}, {660, 470}}},
        {"with shift the near one",
         [&] {
             key(Qt::Key_Left, Qt::ShiftModifier), key(Qt::Key_Down, Qt::ShiftModifier);
             key(Qt::Key_Return);
         },
         true,
         {{90, 60}, {650, 470}}},
        {"not beyond the displays",
         [&] {
             drag(900, 700, 985, 795);
             for (int i = 0; i < 3; ++i)
                 key(Qt::Key_Right), key(Qt::Key_Down);
             key(Qt::Key_Return);
         },
         true,
         {{900, 700}, {100, 100}}},
        {"arrows do nothing in a drag",
         [&] {
             press(10, 20), key(Qt::Key_Right), moveTo(60, 40), release(60, 40),
                 key(Qt::Key_Return);
         },
         true,
         {{10, 20}, {50, 20}}},
        {"arrows after a click begin in the middle of the main display",
         [&] { press(7, 8), release(7, 8), key(Qt::Key_Down), key(Qt::Key_Return); },
         true,
         {{250, 200}, {500, 410}}},
    };

    for (const auto& test : cases) {
        SCOPED_TRACE(test.name);
        CGRect area = kArea;
        EXPECT_EQ(choose(area, test.user), test.accepted);
        EXPECT_EQ(area, test.area);
        EXPECT_EQ(chooseAreaError(), noErr);
    }
}

TEST_F(ChooseAreaTest, TheHandlersResultsDecideWhoElseSeesAnEvent) {
    constexpr EventParamName kLocation = kEventParamMouseLocation;
    constexpr EventParamName kCharacter = kEventParamKeyMacCharCodes;
    const CGPoint place{10, 20};
    const char twoCharacters[] = {'\r', '\r'};
    CarbonEvent cases[] = {
        CarbonEvent(kEventClassWindow, 1),
        CarbonEvent(kEventClassMouse, kEventMouseDown),
        CarbonEvent(kEventClassMouse, kEventMouseDown).with(kLocation, typeHIPoint, place),
        CarbonEvent(kEventClassMouse, kEventMouseUp).with(kLocation, typeHIPoint, place),
        CarbonEvent(kEventClassMouse, 5).with(kLocation, typeHIPoint, place),
        CarbonEvent(kEventClassKeyboard, kEventRawKeyDown),
        CarbonEvent(kEventClassKeyboard, kEventRawKeyDown).with(kCharacter, typeChar, 'a'),
        CarbonEvent(kEventClassKeyboard, kEventRawKeyDown)
            .with(kCharacter, typeChar, twoCharacters),
        CarbonEvent(kEventClassKeyboard, kEventRawKeyRepeat).with(kCharacter, typeChar, '\r'),
        CarbonEvent(fourCharCode("cmds"), 1),
    };

    CGRect area = kArea;
    Boolean accepted = false;
    const auto send = [&](CarbonEvent event) { return overlayHandler(nullptr, &event, &accepted); };
    choose(area, [&] {
        for (std::size_t i = 0; i < std::size(cases); ++i)
            EXPECT_EQ(send(cases[i]), eventNotHandledErr) << i;
        for (const UInt32 kind :
             {kEventWindowDrawContent, kEventWindowShown, kEventWindowBoundsChanged})
            EXPECT_EQ(send({kEventClassWindow, kind}), noErr) << kind;
        EXPECT_FALSE(accepted);
        CarbonEvent enter(kEventClassKeyboard, kEventRawKeyDown);
        EXPECT_EQ(send(enter.with(kCharacter, typeChar, '\3')), noErr);
        EXPECT_TRUE(accepted);
        key(Qt::Key_Escape);
    });
}

TEST_F(ChooseAreaTest, TheOverlayLiesOverAllDisplaysAndIsClearButForWhatIsDrawn) {
    constexpr QRgb kClear = qRgb(0, 0, 0);
    constexpr QRgb kCurrent = qRgb(5, 5, 26), kPaleCurrent = qRgb(2, 2, 10);
    constexpr QRgb kDragged = qRgb(26, 5, 5),
                   kEdge = qRgb(102, 20, 20); // half of the line's strength
    constexpr QRgb kPrompt = qRgb(255, 255, 230);

    CGRect area{{-500, 0}, {200, 100}};
    choose(area, [&] {
        EXPECT_EQ(overlay_->geometry(), QRect(-600, -100, 1600, 900));
        const auto expectPixels = [&](std::initializer_list<std::pair<QPoint, QRgb>> pixels) {
            for (const auto& [place, color] : pixels) {
                SCOPED_TRACE(testing::Message() << place.x() << ", " << place.y());
                const QRgb seen = pixel(place.x(), place.y());
                EXPECT_NEAR(qRed(seen), qRed(color), 1);
                EXPECT_NEAR(qGreen(seen), qGreen(color), 1);
                EXPECT_NEAR(qBlue(seen), qBlue(color), 1);
            }
        };
        expectPixels({{{-599, -99}, kClear},
                      {{999, 799}, kClear},
                      {{500, 260}, kPrompt}, // a third down the main display
                      {{-400, 50}, kCurrent},
                      {{-302, 98}, kCurrent},
                      {{-298, 50}, kClear}});
        press(-400, 300);
        moveTo(-300, 400);
        expectPixels({{{-400, 50}, kPaleCurrent},
                      {{-350, 350}, kDragged},
                      {{-300, 350}, kEdge},
                      {{-298, 350}, kClear}});
        release(-300, 400);
        expectPixels({{{-400, 50}, kClear}, {{-350, 350}, kCurrent}});
        key(Qt::Key_Escape);
    });
}

TEST_F(ChooseAreaTest, AFrameThatRepaintsOnlyWhatChangedLooksLikeAWholeOne) {
    CGRect area = kArea;
    choose(area, [&] {
        const auto expectWhole = [&](const char* what) {
            const QImage seen = picture();
            drawOverlay();
            EXPECT_EQ(seen, picture()) << what;
        };
        press(300, 300);
        expectWhole("pressed");
        for (const QPoint& to : {QPoint(500, 500),
                                 {510, 495},
                                 {100, 700},
                                 {99, 20},
                                 {-550, 21},
                                 {300, 300},
                                 {301, 300},
                                 {700, 200}}) {
            moveTo(to.x(), to.y());
            expectWhole("dragged");
        }
        release(700, 200);
        expectWhole("let go");
        key(Qt::Key_Down);
        key(Qt::Key_Left, Qt::ShiftModifier);
        expectWhole("arrows");
        press(900, 700);
        release(900, 700);
        expectWhole("clicked");
        key(Qt::Key_Escape);
    });
}

TEST_F(ChooseAreaTest, TheEndOfTheProgramEndsItWithoutAnArea) {
    CGRect area = kArea;
    bool accepted = true;
    QTimer::singleShot(
        0, [&] { accepted = choose(area, [&] { drag(1, 2, 30, 40), QCoreApplication::quit(); }); });
    QApplication::exec();
    EXPECT_FALSE(accepted);
    EXPECT_EQ(area, kArea);
}

} // namespace
