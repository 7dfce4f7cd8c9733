// SPDX-License-Identifier: MIT
#include "src/pane/area/choosearea.h"

#include "tests/support/ApplicationTest.h"

#include <QApplication>
#include <QFile>
#include <QTest>
#include <QTimer>

#include <functional>

void PrintTo(const CGRect& rect, std::ostream* out) {
    *out << rect.size.width << 'x' << rect.size.height << " at " << rect.origin.x << ','
         << rect.origin.y;
}

namespace {

// Two displays: the main one of 1000 x 800 points, and one to its upper left. Qt's offscreen
// platform simulates them.
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

class ChooseAreaTest : private TwoDisplays, public ApplicationTest<QApplication> {
protected:
    /// Runs the chooser, and calls `user` when it is shown.
    bool choose(CGRect& area, const std::function<void()>& user) {
        QTimer::singleShot(0, [&] {
            overlay_ = nullptr;
            for (QWidget* widget : QApplication::topLevelWidgets())
                if (widget->isVisible())
                    overlay_ = widget;
            ASSERT_TRUE(overlay_ && QTest::qWaitForWindowExposed(overlay_));
            user();
        });
        return chooseArea(&area);
    }

    void mouse(QEvent::Type type, int x, int y) {
        const QPointF place = QPoint(x, y) - overlay_->pos();
        QMouseEvent event(type, place, QPointF(x, y),
                          type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton,
                          type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton, {});
        QApplication::sendEvent(overlay_, &event);
    }

    void press(int x, int y) { mouse(QEvent::MouseButtonPress, x, y); }

    void moveTo(int x, int y) { mouse(QEvent::MouseMove, x, y); }

    void release(int x, int y) { mouse(QEvent::MouseButtonRelease, x, y); }

    void key(Qt::Key key) { QTest::keyClick(overlay_, key); }

    void click(int x, int y) { press(x, y), release(x, y); }

    void drag(int x1, int y1, int x2, int y2) {
        press(x1, y1), moveTo((x1 + x2) / 2, (y1 + y2) / 2), moveTo(x2, y2), release(x2, y2);
    }

    QWidget* overlay_ = nullptr;
};

constexpr CGRect kArea = {{100, 50}, {640, 480}};
constexpr CGRect kDrawn = {{10, 20}, {50, 20}};

TEST_F(ChooseAreaTest, WhatTheUserDoesDecidesTheArea) {
    const struct {
        const char* name;
        std::function<void()> user;
        CGRect area;
        Qt::Key end = Qt::Key_Return;
    } cases[] = {
        {"return before any click", [] {}, kArea},
        {"return in mid-drag", [&] { press(10, 10), moveTo(60, 40); }, kArea},
        {"a drag down and right", [&] { drag(10, 20, 60, 40); }, kDrawn},
        {"down and left", [&] { drag(60, 20, 10, 40); }, kDrawn},
        {"up and right", [&] { drag(10, 40, 60, 20); }, kDrawn},
        {"up and left", [&] { drag(60, 40, 10, 20); }, kDrawn, Qt::Key_Enter},
        {"a missed press", [&] { moveTo(10, 20), moveTo(60, 40), release(60, 40); }, kDrawn},
        {"not beyond the displays",
         [&] {
             drag(900, 700, 985, 795), key(Qt::Key_Right), key(Qt::Key_Right), key(Qt::Key_Down);
         },
         CGRectMake(900, 700, 100, 100)},
        {"arrows do nothing in a drag",
         [&] { press(10, 20), key(Qt::Key_Right), moveTo(60, 40), release(60, 40); }, kDrawn},
        {"arrows after a click begin in the middle of the main display",
         [&] { click(7, 8), key(Qt::Key_Down); }, CGRectMake(250, 200, 500, 410)},
    };

    for (const auto& test : cases) {
        SCOPED_TRACE(test.name);
        CGRect area = kArea;
        EXPECT_TRUE(choose(area, [&] { test.user(), key(test.end); }));
        EXPECT_EQ(area, test.area);
        EXPECT_EQ(chooseAreaError(), noErr);
    }
}

} // namespace
