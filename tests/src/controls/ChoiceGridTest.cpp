// SPDX-License-Identifier: MIT
#include "src/files/ptrutil.h"
#include "src/pane/pointers/ptrman.h"
#include "tests/support/PaneFixture.h"

#include <QHelpEvent>
#include <QScreen>
#include <QToolTip>

namespace {

using ChoiceGridTest = PaneTest;

TEST_F(ChoiceGridTest, ClicksKeysAndActionsChooseAndReachTheAgent) {
    constexpr ChangeMask kLook = kChangeScanLineLook | kChangeGuideLineLook;
    openWithAgent();
    const auto choose = [](QWidget* grid, int index, int way) {
        if (way == 0)
            QTest::mouseClick(grid, Qt::LeftButton, {}, {index % 6 * 50 + 20, index / 6 * 50 + 20});
        else if (way == 1)
            act(QAccessible::queryAccessibleInterface(grid)->child(index));
        else
            for (const Qt::Key key : {Qt::Key_Home, Qt::Key_Down, Qt::Key_Right, Qt::Key_Space})
                QTest::keyClick(grid, key);
    };
    for (const auto& [name, mask] : {std::pair("pointerGrid", ChangeMask{kChangePointer}),
                                     {"lineColorGrid", kLook},
                                     {"scanAreaGrid", kChangeScanArea}}) {
        SCOPED_TRACE(name);
        QWidget* grid = find(name);
        grid->grab();
        for (const auto& [index, way] : {std::pair(1, 0), {2, 1}, {7, 2}}) { // one down, one right
            choose(grid, index, way);
            EXPECT_EQ(agentLog_.nextMask(), mask);
            for (int i = 0; i < 12; ++i)
                EXPECT_EQ(QAccessible::queryAccessibleInterface(grid)->child(i)->state().selected,
                          i == index)
                    << i;
        }
    }
    for (const auto& [name, title] :
         {std::pair("pointerGrid", ptrutilPointerTitle(ptrmanPointerAt(7).c_str())),
          {"lineColorGrid", "Buff"},
          {"scanAreaGrid", "Right third"}}) {
        QWidget* grid = find(name);
        const QPoint place(70, 70); // in the second row
        QHelpEvent help(QEvent::ToolTip, place, grid->mapToGlobal(place));
        QApplication::sendEvent(grid, &help);
        EXPECT_EQ(QToolTip::text().toStdString(), title);
        const QImage picture = grid->grab().toImage();
        const QRgb blank = picture.pixel(picture.width() - 1, picture.height() - 1);
        bool hasName = false;
        for (int y = 100; y < picture.height(); ++y) // beneath the two rows
            for (int x = 0; x < 40; ++x)
                hasName |= picture.pixel(x, y) != blank;
        EXPECT_TRUE(hasName) << name;
    }
    EXPECT_EQ(prefs.pointerImageName, ptrmanPointerAt(7));
    EXPECT_EQ(prefs.lineColor.green, 162) << "of buff";
    const QRect screen = QGuiApplication::primaryScreen()->geometry();
    EXPECT_NEAR(prefs.scanArea.x, screen.width() * 2 / 3.0, 1) << "the right third";
    EXPECT_EQ(prefs.scanArea.height, screen.height());
    EXPECT_TRUE(find<QAbstractButton>("useScanAreaRadios1")->isChecked());
}

} // namespace
