#include "platform/HIToolbox/NibWindow.h"
#include "src/login/launch.h"
#include "tests/support/TestApplication.h"

#include <QApplication>
#include <QCheckBox>
#include <gtest/gtest.h>

namespace {

std::unique_ptr<QWidget> makeDialog() {
    auto dialog = std::make_unique<QWidget>();
    for (int i = 0; i < 3; ++i) {
        auto* box = new QCheckBox(dialog.get());
        box->setProperty("controlSignature", QStringLiteral("test"));
        box->setProperty("controlID", i);
    }
    return dialog;
}

/// A dialog's two check boxes, bound to an application, and a third that isn't.
class LaunchUITest : public testing::Test {
protected:
    ControlRef control(SInt32 id) {
        const ControlID name{fourCharCode("test"), id};
        ControlRef found = nullptr;
        EXPECT_EQ(GetControlByID(&window_, &name, &found), noErr);
        return found;
    }

    /// What a click does.
    void hit(ControlRef box) { box->button().click(); }

    bool isListed(bool allUsers) {
        const LaunchUIState state = launchGetCurrentUIStateForApp(url_.get(), true);
        return state & (allUsers ? kLaunchAllUsersChecked : kLaunchThisUserChecked);
    }

private:
    int argc_ = 1;
    char name_[5] = "test";
    char* argv_[2] = {name_, nullptr};
    QApplication application_{argc_, argv_};

protected:
    NibWindow window_{makeDialog()};
    CFRef<CFURL> url_ = makeTestApplication(makeSandboxFolder("A.app"));
    ControlRef mine_ = control(0);
    ControlRef everyones_ = control(1);
};

TEST_F(LaunchUITest, TheBoxesShowTheListsAndChangeThem) {
    launchSetAppIsAutoLaunched(url_.get(), true, true);
    launchBeginUI(url_.get(), mine_, everyones_);
    EXPECT_EQ(GetControl32BitValue(mine_), 0);
    EXPECT_EQ(GetControl32BitValue(everyones_), 1);
    EXPECT_TRUE(mine_->button().isEnabled());
    hit(mine_);
    hit(everyones_);
    EXPECT_TRUE(isListed(false));
    EXPECT_FALSE(isListed(true));
    launchSetAppIsAutoLaunched(url_.get(), false, false);
    EXPECT_EQ(GetControl32BitValue(mine_), 1);
    launchUpdateUI();
    EXPECT_EQ(GetControl32BitValue(mine_), 0);
    launchEndUI();
    hit(mine_);
    EXPECT_FALSE(isListed(false)) << "no longer bound";
}

TEST_F(LaunchUITest, WithoutTheSecondBoxAnApplicationOfAllUsersCantBeTakenOut) {
    launchSetAppIsAutoLaunched(url_.get(), true, true);
    launchBeginUI(url_.get(), mine_, everyones_);
    launchBeginUI(url_.get(), mine_, nullptr);
    EXPECT_EQ(GetControl32BitValue(mine_), 1);
    EXPECT_FALSE(mine_->button().isEnabled());
    hit(everyones_);
    EXPECT_TRUE(isListed(true)) << "its binding has ended";
    launchBeginUI(url_.get(), nullptr, everyones_);
    hit(everyones_);
    EXPECT_TRUE(isListed(true)) << "nothing is bound";
}

TEST_F(LaunchUITest, AChangeThatFailsIsTakenBackInTheBox) {
    writeFile(std::filesystem::path(std::getenv("XDG_CONFIG_HOME")) / "autostart", "no folder");
    launchBeginUI(url_.get(), mine_, everyones_);
    hit(mine_);
    EXPECT_EQ(GetControl32BitValue(mine_), 0);
    launchEndUI();
}

} // namespace
