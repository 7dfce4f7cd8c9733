// SPDX-License-Identifier: MIT
#include "platform/AppKit/NSPopUpButton.h"
#include "tests/platform/AppKit/TestForm.h"

#include <QListWidget>
#include <QWindow>

namespace {

/// Events go to the form's window, as the window system sends them while the menu holds the mouse
/// and the keyboard.
class PopUpButtonTest : public FormTest {
protected:
    void SetUp() override {
        show(widgetXml("QWidget", "group", {},
                       layoutXml({widgetXml("NSPopUpButton", "popUp",
                                            {{"outlet", "control"}, {"text", "&amp;Add button"}}),
                                  widgetXml("QPushButton", "other", {{"text", "Other"}})})),
             owner_);
        owner_.onAction = [this](NSMenuItem* item) { chosen_ += item->title() + ' '; };
        nib_.topLevelWidget()->move(0, 0);
        button_ = find<QPushButton>("popUp");
        menu_ = button_->findChild<QListWidget*>();
        button_->setFocus();
    }

    void addItems(const std::vector<std::string>& titles) {
        for (const std::string& title : titles) {
            owner_.control->addItemWithTitle(title);
            owner_.control->itemWithTitle(title)->setTarget(&owner_);
            owner_.control->itemWithTitle(title)->setAction(owner_.selector("acted:"));
        }
    }

    void key(Qt::Key code, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(window(), code, modifiers);
    }

    void mouse(QTest::MouseAction action, QPoint place) {
        const auto button = action == QTest::MouseMove ? Qt::NoButton : Qt::LeftButton;
        QTest::mouseEvent(action, window(), button, {}, window()->mapFromGlobal(place));
    }

    static QPoint middleOf(QWidget* widget) { return widget->mapToGlobal(widget->rect().center()); }

    QRect rowRect(int row) { return menu_->visualItemRect(menu_->item(row)); }

    QPoint middleOfRow(int row) { return menu_->viewport()->mapToGlobal(rowRect(row).center()); }

    QWindow* window() { return nib_.topLevelWidget()->windowHandle(); }

    ControlOwner<NSPopUpButton, NSMenuItem> owner_;
    std::string chosen_; ///< titles, each with a space after it
    QPushButton* button_ = nullptr;
    QListWidget* menu_ = nullptr;
};

TEST_F(PopUpButtonTest, EscapeAndAClickOutsideCloseItWithoutAChoice) {
    addItems({"Click"});
    button_->window()->resize(600, 300);
    int clicks = 0;
    QObject::connect(find<QPushButton>("other"), &QPushButton::clicked, [&] { ++clicks; });
    for (const char* clicked : {"", "other", "popUp"}) {
        key(Qt::Key_Space);
        ASSERT_TRUE(menu_->isVisible());
        menu_->move(0, 500); // off the form's widgets
        *clicked ? mouse(QTest::MouseClick, middleOf(find(clicked))) : key(Qt::Key_Escape);
        EXPECT_FALSE(menu_->isVisible() || button_->isDown()) << clicked;
        EXPECT_TRUE(button_->hasFocus());
    }
    EXPECT_EQ(clicks, 0) << "the click that closes the menu does nothing else";
    EXPECT_EQ(chosen_, "");
}

TEST_F(PopUpButtonTest, AClickOrADragChoosesButASlipDoesNot) {
    addItems({"Click", "Drag", "Hold"});
    find("first")->setFocus();
    mouse(QTest::MouseClick, middleOf(button_));
    ASSERT_TRUE(menu_->isVisible());
    EXPECT_EQ(menu_->currentRow(), -1);
    mouse(QTest::MouseMove, middleOfRow(1));
    EXPECT_TRUE(menu_->item(1)->isSelected());
    mouse(QTest::MouseClick, middleOfRow(1));
    EXPECT_TRUE(button_->hasFocus());

    mouse(QTest::MousePress, middleOf(button_));
    mouse(QTest::MouseMove, middleOfRow(2));
    mouse(QTest::MouseRelease, middleOfRow(2));
    EXPECT_FALSE(menu_->isVisible());

    const QPoint edge = button_->mapToGlobal(QPoint(20, button_->height() - 2));
    const QPoint slipped = edge + QPoint(0, 15);
    mouse(QTest::MousePress, edge);
    ASSERT_TRUE(menu_->indexAt(menu_->viewport()->mapFromGlobal(slipped)).isValid());
    mouse(QTest::MouseMove, slipped);
    mouse(QTest::MouseRelease, slipped);
    EXPECT_TRUE(menu_->isVisible());
    EXPECT_EQ(chosen_, "Drag Hold ");
}

TEST_F(PopUpButtonTest, DisablingItClosesItAndItsActionMayDoSo) {
    addItems({"Click", "Drag", "Hold"});
    owner_.control->itemWithTitle("Drag")->setAction(nullptr);
    key(Qt::Key_Space);
    ASSERT_TRUE(menu_->isVisible());
    find("group")->setEnabled(false);
    QTest::keyClick(button_, Qt::Key_Space);
    EXPECT_FALSE(menu_->isVisible() || button_->hasFocus());
    find("group")->setEnabled(true);
    owner_.onAction = [&](NSMenuItem*) { owner_.control->setEnabled(false); };
    button_->setFocus();
    key(Qt::Key_Space);
    mouse(QTest::MouseClick, middleOfRow(1));
    EXPECT_TRUE(menu_->isVisible()) << "the item has no action";
    key(Qt::Key_Home);
    key(Qt::Key_Return);
    EXPECT_EQ(owner_.sent, 1);
    EXPECT_FALSE(qobject_cast<QAbstractButton*>(QApplication::focusWidget()))
        << "where one more press does nothing";
}

TEST_F(PopUpButtonTest, ShowsAsMuchAsItCanBesideTheButtonInColumnsThatArrowsWalk) {
    const std::tuple<QPoint, int, bool, bool> kPlaces[] = {{{700, 650}, 12, false, false},
                                                           {{0, 400}, 14, true, false},
                                                           {{0, 400}, 28, true, true},
                                                           {{-40, 0}, 12, false, false}};
    const std::pair<Qt::Key, int> kKeys[] = {
        {Qt::Key_Up, 0},    {Qt::Key_Down, 1},      {Qt::Key_Right, 14},    {Qt::Key_Right, 27},
        {Qt::Key_Left, 14}, {Qt::Key_PageDown, 27}, {Qt::Key_PageDown, 38}, {Qt::Key_PageUp, 25}};
    for (int i = 0; i < 39; ++i)
        addItems({std::string(14, 'm') + std::to_string(i)});
    for (const auto& [place, textHeight, covers, scrolls] : kPlaces) {
        SCOPED_TRACE(testing::Message() << place.y() << ' ' << textHeight);
        key(Qt::Key_Escape);
        QFont font = QApplication::font();
        font.setPixelSize(textHeight);
        nib_.topLevelWidget()->setFont(font);
        nib_.topLevelWidget()->move(place);
        QApplication::processEvents(); // lays the form out
        key(Qt::Key_Space);
        ASSERT_TRUE(menu_->isVisible());
        EXPECT_TRUE(QRect(0, 0, 800, 800).contains(menu_->geometry()));
        const QRect opener(button_->mapToGlobal(QPoint()), button_->size());
        EXPECT_EQ(menu_->geometry().intersects(opener), covers);
        const QRect sight = menu_->viewport()->rect();
        EXPECT_TRUE(sight.contains(rowRect(0)) && sight.contains(rowRect(38)) != scrolls);
        EXPECT_EQ(rowRect(0).height(), 44);
        key(Qt::Key_End);
        EXPECT_TRUE(menu_->currentRow() == 38 && sight.contains(rowRect(38)));
        key(Qt::Key_Home);
    }
    EXPECT_EQ(rowRect(13).topLeft(), rowRect(0).topRight() + QPoint(1, 0));
    for (const auto& [code, row] : kKeys) {
        key(code);
        EXPECT_EQ(menu_->currentRow(), row) << code;
    }
}

} // namespace
