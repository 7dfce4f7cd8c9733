#include "platform/AppKit/NSPopUpButton.h"
#include "tests/platform/AppKit/TestForm.h"

#include <QAccessible>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QWindow>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// The owner of a pop-up button, whose items send it "chosen:".
class Owner final : public ControlOwner<NSPopUpButton>, public NSMenuDelegate {
public:
    std::span<const NSAction> actions() const override {
        static constexpr NSAction kActions[] = {nsAction<&Owner::choose>("chosen:")};
        return kActions;
    }

    void choose(NSMenuItem* item) {
        chosen.push_back(item->tag());
        if (onAction)
            onAction();
    }

    void menuNeedsUpdate(NSPopUpButton* menu) override {
        ++updates;
        QPixmap picture(32, 32);
        picture.fill(Qt::red);
        menu->itemArray().back()->setImage(NSImage(QIcon(picture)));
    }

    std::vector<int> chosen;
    int updates = 0;
};

/// Events go to the form's window, as the window system sends them while the menu holds the mouse
/// and the keyboard.
class PopUpButtonTest : public FormTest {
protected:
    void SetUp() override {
        QFont font = QApplication::font();
        font.setPixelSize(12);
        QApplication::setFont(font);
        show(widgetXml(
                 "QWidget", "group", {},
                 "<layout class=\"QVBoxLayout\">" +
                     itemXml(widgetXml("NSPopUpButton", "popUp",
                                       {{"outlet", "control"}, {"text", "&amp;Add button"}})) +
                     itemXml(widgetXml("QPushButton", "other", {{"text", "Other"}})) + "</layout>"),
             owner_);
        nib_.topLevelWidget()->move(0, 0);
        button_ = find<QPushButton>("popUp");
        menu_ = button_->findChild<QListWidget*>();
        button_->setFocus();
    }

    /// Tags are the titles' places, from 1.
    void addItems(const std::vector<std::string>& titles) {
        for (const std::string& title : titles) {
            owner_.control->addItemWithTitle(title);
            NSMenuItem* item = owner_.control->itemWithTitle(title);
            item->setTag(static_cast<int>(owner_.control->itemArray().size()));
            item->setTarget(&owner_);
            item->setAction(owner_.selector("chosen:"));
        }
    }

    void addItems(int count, const std::string& title = "Item") {
        for (int i = 0; i < count; ++i)
            addItems({title + std::to_string(i)});
    }

    void key(int code, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(window(), static_cast<Qt::Key>(code), modifiers);
    }

    void holdDown(QWidget* receiver, int code) {
        QKeyEvent event(QEvent::KeyPress, code, {}, {}, true);
        QApplication::sendEvent(receiver, &event);
    }

    void press(QPoint place) {
        QTest::mousePress(window(), Qt::LeftButton, {}, window()->mapFromGlobal(place));
    }

    void move(QPoint place) { QTest::mouseMove(window(), window()->mapFromGlobal(place)); }

    void release(QPoint place) {
        QTest::mouseRelease(window(), Qt::LeftButton, {}, window()->mapFromGlobal(place));
    }

    void click(QPoint place) {
        press(place);
        release(place);
    }

    QPoint middleOf(const QWidget* widget) { return widget->mapToGlobal(widget->rect().center()); }

    QPoint middleOfRow(int row) {
        return menu_->viewport()->mapToGlobal(menu_->visualItemRect(menu_->item(row)).center());
    }

    QWindow* window() { return nib_.topLevelWidget()->windowHandle(); }

    Owner owner_;
    QPushButton* button_ = nullptr;
    QListWidget* menu_ = nullptr;
};

TEST_F(PopUpButtonTest, ItemReplacesTheOneOfItsTitleAndMovesToTheEnd) {
    addItems({"Click", "Übergang", "Drag", "Click"});
    std::vector<std::string> titles;
    for (const auto& item : owner_.control->itemArray())
        titles.push_back(item->title());
    EXPECT_THAT(titles, ElementsAre("Übergang", "Drag", "Click"));
    EXPECT_EQ(owner_.control->itemWithTitle("Click"), owner_.control->itemArray()[2].get());
    EXPECT_EQ(owner_.control->itemWithTitle("click"), nullptr);
    owner_.control->addItemWithTitle("Drag");
    EXPECT_EQ(owner_.control->itemWithTitle("Drag")->tag(), 0) << "a new item";

    key(Qt::Key_Space);
    EXPECT_EQ(menu_->count(), 3);
    EXPECT_EQ(menu_->item(0)->text(), QStringLiteral("Übergang"));
}

TEST_F(PopUpButtonTest, KeysOpenItAtItsFirstItemAndChoose) {
    const struct {
        Qt::Key opening;
        Qt::KeyboardModifiers modifiers;
        Qt::Key choosing;
    } kTable[] = {{Qt::Key_Space, {}, Qt::Key_Space},
                  {Qt::Key_Return, {}, Qt::Key_Return},
                  {Qt::Key_Enter, {}, Qt::Key_Enter},
                  {Qt::Key_Down, {}, Qt::Key_Return},
                  {Qt::Key_Down, Qt::AltModifier, Qt::Key_Space},
                  {Qt::Key_A, Qt::AltModifier, Qt::Key_Space}};

    addItems({"Click", "Drag", "Hold"});
    for (const auto& row : kTable) {
        SCOPED_TRACE(row.opening);
        owner_.chosen.clear();
        key(row.opening, row.modifiers);
        ASSERT_TRUE(QTest::qWaitFor([&] { return menu_->isVisible(); }));
        EXPECT_EQ(menu_->currentRow(), 0);
        EXPECT_TRUE(button_->isDown());
        key(Qt::Key_Down);
        key(row.choosing);
        EXPECT_THAT(owner_.chosen, ElementsAre(2));
        EXPECT_FALSE(menu_->isVisible());
        EXPECT_TRUE(button_->hasFocus() && !button_->isDown());
    }
}

TEST_F(PopUpButtonTest, KeyHeldDownNeitherChoosesNorOpensAgain) {
    addItems({"Click"});
    key(Qt::Key_Space);
    holdDown(menu_, Qt::Key_Space);
    EXPECT_TRUE(menu_->isVisible());
    key(Qt::Key_Space);
    holdDown(button_, Qt::Key_Space);
    EXPECT_FALSE(menu_->isVisible());
    EXPECT_THAT(owner_.chosen, ElementsAre(1));
}

TEST_F(PopUpButtonTest, ArrowsWalkTheColumns) {
    const struct {
        Qt::Key key;
        int row;
    } kTable[] = {
        {Qt::Key_Up, 0},      {Qt::Key_Left, 0},  {Qt::Key_Down, 1},      {Qt::Key_Right, 21},
        {Qt::Key_Right, 21},  {Qt::Key_Left, 1},  {Qt::Key_PageDown, 21}, {Qt::Key_PageDown, 38},
        {Qt::Key_PageUp, 18}, {Qt::Key_Down, 19}, {Qt::Key_Right, 38},    {Qt::Key_Down, 38},
        {Qt::Key_Home, 0},    {Qt::Key_End, 38},  {Qt::Key_Left, 18},     {Qt::Key_PageUp, 0}};

    addItems(39);
    key(Qt::Key_Down);
    for (const auto& row : kTable) {
        key(row.key);
        EXPECT_EQ(menu_->currentRow(), row.row) << row.key;
    }
}

TEST_F(PopUpButtonTest, TypingGoesToTheNextItemThatBeginsWithIt) {
    addItems({"Drag", "Click", "Copy", "Cut", "Close", "Paste"});
    key(Qt::Key_Space);
    key(Qt::Key_C);
    EXPECT_EQ(menu_->currentItem()->text(), "Click");
    key(Qt::Key_U);
    EXPECT_EQ(menu_->currentItem()->text(), "Cut");
    EXPECT_THAT(owner_.chosen, IsEmpty());
}

TEST_F(PopUpButtonTest, EscapeAndAClickOutsideCloseItWithoutAChoice) {
    const struct {
        const char* name;
        std::function<void()> close;
    } kTable[] = {{"Escape", [&] { key(Qt::Key_Escape); }},
                  {"other button", [&] { click(middleOf(find("other"))); }},
                  {"itself", [&] { click(middleOf(button_)); }}};

    addItems({"Click"});
    button_->window()->resize(600, 300);
    int clicks = 0;
    QObject::connect(find<QPushButton>("other"), &QPushButton::clicked, [&] { ++clicks; });
    for (const auto& row : kTable) {
        SCOPED_TRACE(row.name);
        key(Qt::Key_Space);
        ASSERT_TRUE(menu_->isVisible());
        menu_->move(0, 500); // off the form's widgets
        row.close();
        EXPECT_FALSE(menu_->isVisible());
        EXPECT_THAT(owner_.chosen, IsEmpty());
        EXPECT_TRUE(button_->hasFocus());
        EXPECT_FALSE(button_->isDown());
    }
    EXPECT_EQ(clicks, 0) << "the click that closes the menu does nothing else";
    click(middleOf(find("other")));
    EXPECT_EQ(clicks, 1);
}

TEST_F(PopUpButtonTest, ClickOpensItAndAClickChooses) {
    addItems({"Click", "Drag", "Hold"});
    find<QLineEdit>("first")->setFocus();
    click(middleOf(button_));
    ASSERT_TRUE(menu_->isVisible());
    EXPECT_EQ(menu_->currentRow(), -1);
    move(middleOfRow(2));
    EXPECT_EQ(menu_->currentRow(), 2);
    move(middleOfRow(1));
    EXPECT_TRUE(menu_->item(1)->isSelected());
    click(middleOfRow(1));
    EXPECT_THAT(owner_.chosen, ElementsAre(2));
    EXPECT_FALSE(menu_->isVisible());
    EXPECT_TRUE(button_->hasFocus());
}

TEST_F(PopUpButtonTest, DragChoosesButASlipDoesNot) {
    addItems({"Click", "Drag", "Hold"});
    press(middleOf(button_));
    ASSERT_TRUE(menu_->isVisible());
    move(middleOfRow(2));
    EXPECT_EQ(menu_->currentRow(), 2);
    release(middleOfRow(2));
    EXPECT_THAT(owner_.chosen, ElementsAre(3));
    EXPECT_FALSE(menu_->isVisible());

    const QPoint edge = button_->mapToGlobal(QPoint(20, button_->height() - 2));
    press(edge);
    const QPoint slipped = edge + QPoint(0, 15);
    ASSERT_TRUE(menu_->indexAt(menu_->viewport()->mapFromGlobal(slipped)).isValid());
    move(slipped);
    release(slipped);
    EXPECT_TRUE(menu_->isVisible());
    EXPECT_THAT(owner_.chosen, ElementsAre(3));
}

TEST_F(PopUpButtonTest, ClosesWhenItsButtonIsDisabledOrHidden) {
    const struct {
        const char* name;
        std::function<void()> stop, restore;
    } kTable[] = {{"button", [&] { owner_.control->setEnabled(false); },
                   [&] { owner_.control->setEnabled(true); }},
                  {"group", [&] { find("group")->setEnabled(false); },
                   [&] { find("group")->setEnabled(true); }},
                  {"hidden", [&] { find("group")->hide(); }, [&] { find("group")->show(); }}};

    addItems({"Click"});
    for (const auto& row : kTable) {
        SCOPED_TRACE(row.name);
        button_->setFocus();
        key(Qt::Key_Space);
        ASSERT_TRUE(menu_->isVisible());
        row.stop();
        EXPECT_FALSE(menu_->isVisible());
        EXPECT_FALSE(button_->hasFocus());
        click(middleOf(button_));
        QTest::keyClick(button_, Qt::Key_Space);
        EXPECT_FALSE(menu_->isVisible());
        row.restore();
    }
    EXPECT_THAT(owner_.chosen, IsEmpty());
}

TEST_F(PopUpButtonTest, ActionMayDisableItsButtonAndTheFocusStaysInTheGroup) {
    addItems({"Click"});
    owner_.onAction = [&] { owner_.control->setEnabled(false); };
    key(Qt::Key_Space);
    key(Qt::Key_Return);
    EXPECT_THAT(owner_.chosen, ElementsAre(1));
    EXPECT_TRUE(find("other")->hasFocus());
}

TEST_F(PopUpButtonTest, DelegateFillsInPicturesEachTimeItOpens) {
    key(Qt::Key_Space);
    EXPECT_FALSE(menu_->isVisible()) << "it is empty";
    addItems({"Click", "Drag"});
    owner_.control->setDelegate(&owner_);
    for (int opened = 1; opened <= 2; ++opened) {
        key(Qt::Key_Space);
        EXPECT_EQ(owner_.updates, opened);
        const QImage picture = menu_->item(1)->icon().pixmap(menu_->iconSize()).toImage();
        EXPECT_EQ(picture.pixelColor(picture.rect().center()), QColor(Qt::red));
        EXPECT_GE(menu_->iconSize().width(), 16);
        key(Qt::Key_Escape);
    }
}

TEST_F(PopUpButtonTest, ItemWithoutAnActionCanBeChosenOnlyWithoutAutomaticEnabling) {
    addItems({"Click", "Drag", "Hold"});
    owner_.control->itemWithTitle("Drag")->setAction(nullptr);
    key(Qt::Key_Space);
    key(Qt::Key_Down);
    EXPECT_EQ(menu_->currentRow(), 2);
    click(middleOfRow(1));
    EXPECT_TRUE(menu_->isVisible());
    key(Qt::Key_Escape);

    owner_.control->setAutoenablesItems(false);
    key(Qt::Key_Space);
    click(middleOfRow(1));
    EXPECT_FALSE(menu_->isVisible());
    EXPECT_THAT(owner_.chosen, IsEmpty());
}

/// Where the menu opens on a screen of 800 by 800 points.
class PopUpPlaceTest : public PopUpButtonTest {
protected:
    void openAt(QPoint place, int textHeight) {
        QFont font = QApplication::font();
        font.setPixelSize(textHeight);
        nib_.topLevelWidget()->setFont(font);
        nib_.topLevelWidget()->move(place);
        QApplication::processEvents(); // lays the form out
        key(Qt::Key_Space);
        ASSERT_TRUE(menu_->isVisible());
        opener_ = QRect(button_->mapToGlobal(QPoint(0, 0)), button_->size());
        ASSERT_TRUE(screen_.contains(menu_->geometry())) << testing::PrintToString(
            std::vector{menu_->x(), menu_->y(), menu_->width(), menu_->height()});
        EXPECT_GE(menu_->visualItemRect(menu_->item(0)).height(), std::max(24, textHeight));
    }

    bool isInSight(int row) {
        return menu_->viewport()->rect().contains(menu_->visualItemRect(menu_->item(row)));
    }

    /// How many columns there are; each item has to be under or, at the top, right of the last one.
    int countColumns() {
        int columns = 1;
        for (int row = 1; row < menu_->count(); ++row) {
            const QRect last = menu_->visualItemRect(menu_->item(row - 1));
            const QRect item = menu_->visualItemRect(menu_->item(row));
            if (item.top() == 0)
                ++columns;
            EXPECT_TRUE(item.top() == 0 ? item.left() > last.right()
                                        : item.topLeft() == last.bottomLeft() + QPoint(0, 1))
                << row;
        }
        return columns;
    }

    const QRect screen_{0, 0, 800, 800};
    QRect opener_;
};

TEST_F(PopUpPlaceTest, ShowsEverythingAtOnceInTheFewestColumnsBesideTheButton) {
    const struct {
        QPoint place;
        int items, textHeight;
    } kTable[] = {{{0, 0}, 20, 12},     {{0, 0}, 40, 12},     {{700, 330}, 40, 12},
                  {{-40, 350}, 40, 12}, {{700, 650}, 40, 12}, {{0, 650}, 45, 12},
                  {{300, 0}, 45, 24},   {{0, 400}, 45, 24}};

    ASSERT_EQ(QApplication::primaryScreen()->availableGeometry(), screen_);
    for (const auto& row : kTable) {
        SCOPED_TRACE(testing::Message() << row.place.y() << " " << row.items);
        addItems(row.items);
        openAt(row.place, row.textHeight);
        for (int item = 0; item < menu_->count(); ++item)
            EXPECT_TRUE(isInSight(item)) << item;
        EXPECT_FALSE(menu_->geometry().intersects(opener_));

        const int fewer = countColumns() - 1;
        const int room = std::max(opener_.top(), screen_.bottom() - opener_.bottom());
        if (fewer > 0) {
            const int rows = (menu_->count() + fewer - 1) / fewer;
            const int frame = menu_->height() - menu_->viewport()->height();
            EXPECT_GT(rows * menu_->visualItemRect(menu_->item(0)).height() + frame, room);
        }
        key(Qt::Key_Escape);
    }
}

TEST_F(PopUpPlaceTest, CoversTheButtonOrScrollsOnlyWhenItMust) {
    addItems(40, std::string(22, 'm'));
    openAt({0, 400}, 14);
    EXPECT_TRUE(isInSight(0) && isInSight(39));
    EXPECT_TRUE(menu_->geometry().intersects(opener_));
    EXPECT_FALSE(menu_->horizontalScrollBar()->isVisible());
    key(Qt::Key_Escape);

    openAt({0, 400}, 28);
    EXPECT_TRUE(isInSight(0) && !isInSight(39));
    key(Qt::Key_End);
    EXPECT_EQ(menu_->currentRow(), 39);
    EXPECT_TRUE(isInSight(39) && !isInSight(0));
}

TEST_F(PopUpButtonTest, ScreenReaderFollowsTheMenu) {
    addItems({"Click", "Drag", "Hold"});
    auto* button = QAccessible::queryAccessibleInterface(button_);
    ASSERT_TRUE(button && button->actionInterface());
    EXPECT_EQ(button->role(), QAccessible::ButtonMenu);
    EXPECT_EQ(button->text(QAccessible::Name), "Add button");
    EXPECT_TRUE(button->state().hasPopup && button->state().expandable);
    EXPECT_FALSE(button->state().expanded);

    find("first")->setFocus();
    button->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_TRUE(button->state().expanded);
    EXPECT_TRUE(menu_->hasFocus()) << "or nothing is said of the current item";
    auto* list = QAccessible::queryAccessibleInterface(menu_);
    ASSERT_EQ(button->childCount(), 1);
    EXPECT_EQ(button->child(0), list);
    EXPECT_EQ(list->parent()->indexOfChild(list), 0);
    EXPECT_EQ(list->role(), QAccessible::List);
    EXPECT_EQ(list->text(QAccessible::Name), "Add button");
    ASSERT_EQ(list->childCount(), 3);
    EXPECT_TRUE(list->child(0)->state().focused);
    key(Qt::Key_Down);
    EXPECT_TRUE(list->child(1)->state().focused && list->child(1)->state().selected);
    EXPECT_EQ(list->child(1)->role(), QAccessible::ListItem);
    EXPECT_EQ(list->child(1)->text(QAccessible::Name), "Drag");
    EXPECT_EQ(list->indexOfChild(list->child(1)), 1);
    key(Qt::Key_Escape);
    EXPECT_FALSE(button->state().expanded);
    EXPECT_TRUE(button->state().focused);
}

TEST_F(PopUpButtonTest, OwnNameComesFirstAndADisabledButtonOffersNothing) {
    addItems({"Click"});
    button_->setAccessibleName("Add a button to the palette");
    auto* button = QAccessible::queryAccessibleInterface(button_);
    EXPECT_EQ(button->text(QAccessible::Name), "Add a button to the palette");
    button_->setAccessibleName("");
    button_->setText("Copy && &paste");
    EXPECT_EQ(button->text(QAccessible::Name), "Copy & paste");
    owner_.control->setEnabled(false);
    EXPECT_THAT(button->actionInterface()->actionNames(), IsEmpty());
    button->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_FALSE(menu_->isVisible());
}

} // namespace
