#include "platform/AppKit/ViewWidget.h"
#include "src/prefpane/PreferenceWrangler.h"
#include "src/prefpane/SampleScanView.h"
#include "src/prefpane/ptrman.h"
#include "tests/support/PaneFixture.h"

#include <QAccessible>
#include <QLabel>

namespace {

struct PaintCounter final : QObject {
    bool eventFilter(QObject*, QEvent* event) override {
        return count += event->type() == QEvent::Paint, false;
    }

    int count = 0;
};

/// The preview and the pointer's name in the open pane.
class PointerChoiceTest : public PaneTest {
protected:
    ViewWidget* viewWidget() { return static_cast<ViewWidget*>(find("sampleScanImage")); }

    SampleScanView* view() { return dynamic_cast<SampleScanView*>(viewWidget()->view()); }
};

TEST_F(PointerChoiceTest, ThePreviewFollowsWhatItShows) {
    const struct {
        ChangeMask changes;
        SInt32 before, after;
        bool drawsAgain;
    } cases[] = {
        {kChangeScanLineLook, kSampleGuideLine, kSampleScanLine, true},
        {kChangeGuideLineLook, kSampleScanLine, kSampleGuideLine, true},
        {kChangeScanLineLook | kChangeGuideLineLook, kSampleGuideLine, kSampleGuideLine, true},
        {kChangePalette, kSampleGuideLine, kSampleGuideLine, true},
        {kChangeSounds | kChangeTriggers | kChangeOnOff, kSampleGuideLine, kSampleGuideLine, false},
    };

    openWithAgent();
    PaintCounter paints;
    viewWidget()->installEventFilter(&paints);
    ASSERT_TRUE(QTest::qWaitFor([&] { return paints.count > 0; }));
    for (const auto& test : cases) {
        SCOPED_TRACE(test.changes);
        view()->setSampleLineType(test.before);
        QCoreApplication::processEvents();
        paints.count = 0;
        theWrangler->changed(test.changes);
        EXPECT_EQ(view()->sampleLineType(), test.after);
        QCoreApplication::processEvents();
        EXPECT_EQ(paints.count, test.drawsAgain ? 1 : 0);
    }
}

TEST_F(PointerChoiceTest, ThePreviewAndTheNameTellWhatIsSet) {
    QAccessible::setActive(true);
    open();
    QAccessibleInterface* button = QAccessible::queryAccessibleInterface(viewWidget());
    EXPECT_EQ(button->role(), QAccessible::Button);
    EXPECT_TRUE(button->text(QAccessible::Description)
                    .startsWith("7 points thick, 5% transparent, red 100, green 0, blue 0"));
    button->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(button->text(QAccessible::Name), "Preview of the guide line");
    EXPECT_TRUE(button->text(QAccessible::Description).contains("75% transparent"));
    std::strcpy(prefs.pointerImageName, "../default");
    theWrangler->loadValues();
    EXPECT_EQ(find<QLabel>("pointerName")->text(), "None");
    click("nextPointerBtn");
    EXPECT_NE(find<QLabel>("pointerName")->text(), "None");
    putAway();
    char name[kMaxPointerNameLength + 1];
    EXPECT_FALSE(ptrmanGetNextPointer(nullptr, true, name)) << "names outlive the visit";
}

} // namespace
