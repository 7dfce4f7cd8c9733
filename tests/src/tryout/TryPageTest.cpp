// SPDX-License-Identifier: MIT
#include "tests/support/PaneFixture.h"
#include "tests/support/TrySweeps.h"

namespace {

/// A page in the pane's window.
class TryPageTest : public PaneTest {
protected:
    void openPage() {
        const auto form =
            CFBundleCopyResourceURL(bundle_.get(), CFSTR("tryout"), CFSTR("ui"), nullptr);
        page_ = std::make_unique<TryPage>(pane_->mainView()->window(), *theWrangler);
        std::vector<std::string> errors;
        ASSERT_TRUE(page_->show(form->path(), errors)) << testing::PrintToString(errors);
        QApplication::processEvents(); // it has its size then
        QTest::qWait(50);
    }

    QString courseText() const {
        return window()->findChild<QLabel*>(QStringLiteral("course"))->text();
    }

    QPushButton* button(const char* name) const {
        return window()->findChild<QPushButton*>(QString::fromLatin1(name));
    }

    std::unique_ptr<TryPage> page_;
    double now_ = GetCurrentEventTime() + 1;
};

TEST_F(TryPageTest, ASuggestionIsOneChangeAndUndoTakesItBack) {
    openWithAgent();
    openPage();
    doTheSweeps(*page_, now_);
    page_->pressed(now_); // none is asked for any more, but time passes
    EXPECT_THAT(courseText().toStdString(), testing::HasSubstr("nothing asked for"));
    EXPECT_FALSE(button("takeBtn")->isVisible());
    const QString title = button("suggestionBtn")->text();
    EXPECT_EQ(title, QStringLiteral("Set “Ignore presses after a click for”\nto 0.2 sec"));
    const PrefsRecord before = prefs;
    button("suggestionBtn")->click();
    EXPECT_DOUBLE_EQ(prefs.afterClickDelay, 0.2);
    EXPECT_THAT(courseText().toStdString(), testing::HasSubstr("0.0 to 0.2 sec. Undo"));
    EXPECT_FALSE(button("suggestionBtn")->isVisible()) << "one change at a time";
    page_.reset();
    button("undoBtn")->click();
    EXPECT_EQ(std::memcmp(&prefs, &before, sizeof before), 0);
    EXPECT_THAT(remainingMasks(), testing::ElementsAre(kChangeTriggers, kChangeTriggers));
}

TEST_F(TryPageTest, ATryLeftAfterEnoughPressesIsKept) {
    openWithAgent();
    openPage();
    doTheSweeps(*page_, now_, tryout::kFewestTrials);
    page_->left();
    page_.reset();
    EXPECT_TRUE(agentLog_.nextHold());
    EXPECT_FALSE(agentLog_.nextHold()) << "the keys are the agent's again";
    EXPECT_EQ(tryout::History().tries().size(), 1U);
}

} // namespace
