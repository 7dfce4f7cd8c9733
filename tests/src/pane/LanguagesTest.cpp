// SPDX-License-Identifier: MIT
#include "platform/AppKit/detail/PopUpButtonWidget.h"
#include "src/files/ptrutil.h"
#include "src/pane/pointers/ptrman.h"
#include "src/record/numbertext.h"
#include "src/record/palactions.h"
#include "src/record/settings.h"
#include "tests/support/PaneFixture.h"
#include "tests/support/TrySweeps.h"

#include <QGroupBox>
#include <QTabBar>
#include <QTranslator>

namespace {

constexpr int kTolerance = 1; // points

/// The pane in a made-up language.
class LanguagesTest : public PaneTest {
protected:
    void speak(const char* language) {
        ASSERT_TRUE(
            translator_.load(QStringLiteral("Localizable.qm"),
                             QString::fromLatin1(PSEUDO_LOCALES "/%1.lproj").arg(language)));
        QCoreApplication::installTranslator(&translator_);
    }

    /// One of the pane's own languages.
    void speakOurs(const std::string& language) {
        const std::string folder = KORVEX_BUNDLE "/Contents/Resources/" + language + ".lproj";
        const bool isEnglish =
            !translator_.load(QStringLiteral("Localizable.qm"), QString::fromStdString(folder));
        EXPECT_EQ(isEnglish, language == "en");
        QCoreApplication::installTranslator(&translator_);
    }

    ~LanguagesTest() override { scroller_.takeWidget(); }

    /// As in the host: what doesn't fit is scrolled.
    void openInScroller() {
        open();
        scroller_.setFrameShape(QFrame::NoFrame);
        scroller_.setWidgetResizable(true);
        scroller_.setWidget(window());
        scroller_.show();
    }

    /// Whether a text has less room than it needs.
    static bool isClipped(const QWidget& widget) {
        if (const auto* field = qobject_cast<const QLineEdit*>(&widget))
            return field->fontMetrics().horizontalAdvance(field->text()) > field->width();
        if (const auto* box = qobject_cast<const QGroupBox*>(&widget))
            return box->fontMetrics().horizontalAdvance(box->title()) > box->width();
        const bool isText =
            qobject_cast<const QLabel*>(&widget) || qobject_cast<const QAbstractButton*>(&widget);
        if (!isText)
            return false;
        if (widget.hasHeightForWidth())
            return widget.heightForWidth(widget.width()) > widget.height() + kTolerance ||
                   widget.minimumSizeHint().width() > widget.width() + kTolerance;
        return widget.sizeHint().width() > widget.width() + kTolerance;
    }

    /// Parts of `root` that are clipped or reach beyond the window's sides.
    std::vector<std::string> clipped(QWidget* root) {
        QTest::qWait(50); // for the layouts
        std::vector<std::string> found;
        for (auto* widget : root->findChildren<QWidget*>()) {
            const int left = widget->mapTo(&scroller_, QPoint()).x();
            const bool isOutside = widget->focusPolicy() != Qt::NoFocus &&
                                   (left < 0 || left + widget->width() > scroller_.width());
            if (widget->isVisible() && !widget->size().isEmpty() &&
                (isClipped(*widget) || isOutside))
                found.push_back(widget->objectName().toStdString() + " " + std::to_string(left) +
                                "+" + std::to_string(widget->width()) + " wants " +
                                std::to_string(widget->sizeHint().width()));
        }
        return found;
    }

    /// Of a try.
    void expectTheResultFits() {
        TryPage page(pane_->mainView()->window(), *theWrangler);
        std::vector<std::string> errors;
        ASSERT_TRUE(page.show(KORVEX_BUNDLE "/Contents/Resources/tryout.ui", errors));
        QTest::qWait(50); // it has its size then
        double now = GetCurrentEventTime() + 1;
        doTheSweeps(page, now);
        page.acted(now); // time passes
        auto* cover = scroller_.findChild<QWidget*>(QStringLiteral("contentCover"));
        EXPECT_THAT(clipped(cover), testing::IsEmpty()) << scroller_.width();
    }

    QTranslator translator_;
    QScrollArea scroller_;
};

TEST_F(LanguagesTest, LongerTextsFitWhereverTheyStand) {
    speak("eo");
    openInScroller();
    click("masterOnOffRadios0"); // the state has most to say then
    auto* pages = window()->findChild<QStackedWidget*>(QStringLiteral("prefsTabs"));
    for (const QSize size : {QSize(1008, 716), QSize(496, 342)}) { // on 1024×768 at 100 and 200 %
        scroller_.resize(size);
        for (int page = 0; page < pages->count(); ++page) {
            pages->setCurrentIndex(page);
            EXPECT_THAT(clipped(window()), testing::IsEmpty()) << page << ", " << size.width();
        }
        for (const auto& [button, leave] :
             {std::pair("firstStepsBtn", "skipBtn"), {"findMySpeed", "leaveBtn"}}) {
            click(button);
            auto* cover = scroller_.findChild<QWidget*>(QStringLiteral("contentCover"));
            ASSERT_TRUE(cover);
            EXPECT_THAT(clipped(cover), testing::IsEmpty()) << button << ", " << size.width();
            QTest::mouseClick(cover->findChild<QPushButton*>(leave), Qt::LeftButton);
            ASSERT_TRUE(QTest::qWaitFor(
                [&] { return !scroller_.findChild<QWidget*>(QStringLiteral("contentCover")); }));
        }
        expectTheResultFits();
    }
}

TEST_F(LanguagesTest, ActionsAndPointersOfOurAgentHaveTranslations) {
    speak("eo");
    open();
    for (UInt8 action = 0; action < kNumActions; ++action) {
        const auto title = palutilCopyShownTitle(action);
        EXPECT_TRUE(title && toUTF8(title.get()).starts_with("⟦")) << int{action};
    }
    EXPECT_EQ(toUTF8(palutilActionTitle(20)), "Click") << "as the list has it";
    for (int i = 0; i < ptrmanCountPointers(); ++i)
        EXPECT_THAT(ptrutilPointerTitle(ptrmanPointerAt(i).c_str()), testing::StartsWith("⟦"));
    EXPECT_EQ(ptrutilPointerTitle("mine+1x2"), "mine") << "of somebody else's";
}

TEST_F(LanguagesTest, OneIsSingularAndAFrenchNothingToo) {
    const struct {
        const char *language, *none, *one, *two;
    } cases[] = {{"en", "0 points", "1 point", "2 points"},
                 {"de", "0 Punkte", "1 Punkt", "2 Punkte"},
                 {"fr", "0 point", "1 point", "2 points"}};

    for (const auto& [language, none, one, two] : cases) {
        speakOurs(language);
        const char* format = settingAt(offsetof(PrefsRecord, borderGap)).limits.format;
        EXPECT_EQ(numberWords(format, 0), none);
        EXPECT_EQ(numberWords(format, 1), one);
        EXPECT_EQ(numberWords(format, 2), two);
    }
}

TEST_F(LanguagesTest, EnterIsTheKeypadsInEachLanguage) {
    constexpr int kKeypadEnter = 0x4C;
    for (const char* language : {"en", "de", "fr"}) {
        speakOurs(language);
        const std::string enter = localized("Keyboard", "keypad Enter");
        open();
        const auto choose = [this](const char* menu, const std::string& title) {
            auto& button = static_cast<PopUpButtonWidget&>(*find<QPushButton>(menu));
            button.entries(); // which fills it
            button.onChosen(QString::fromStdString(title));
        };
        choose("scanKey2Btn", localized("HotKeys", "Choose keys…"));
        choose("builderKey", enter);
        EXPECT_EQ(prefs.hotKeys[4].keyCode, kKeypadEnter) << language;
        prefs.hotKeys[4].keyCode = 0;
        putAway();
    }
}

} // namespace
