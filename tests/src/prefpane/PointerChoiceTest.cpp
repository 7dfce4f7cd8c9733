#include "platform/AppKit/ViewWidget.h"
#include "src/prefpane/PreferenceWrangler.h"
#include "src/prefpane/SampleScanView.h"
#include "src/prefpane/ptrman.h"
#include "tests/support/PaneFixture.h"

#include <QAccessible>
#include <QLabel>

#include <set>

namespace {

/// Counts how often a widget is painted.
class PaintCounter final : public QObject {
public:
    explicit PaintCounter(QWidget* widget) { widget->installEventFilter(this); }

    bool eventFilter(QObject*, QEvent* event) override {
        count += event->type() == QEvent::Paint;
        return false;
    }

    int count = 0;
};

/// The preview and the pointer's buttons in the open pane.
class PointerChoiceTest : public PaneTest {
protected:
    ViewWidget* viewWidget() { return static_cast<ViewWidget*>(find("sampleScanImage")); }

    SampleScanView* view() { return dynamic_cast<SampleScanView*>(viewWidget()->view()); }

    std::string shownName() { return find<QLabel>("pointerName")->text().toStdString(); }

    static std::string nameIn(const QJsonObject& event) {
        using Name = std::array<char, sizeof prefs.pointerImageName>;
        return recordField<Name>(event, offsetof(PrefsRecord, pointerImageName)).data();
    }
};

TEST_F(PointerChoiceTest, EachStepReachesTheAgentAndIsNamedWithoutItsHotSpot) {
    openWithAgent();
    EXPECT_EQ(shownName(), "default");
    std::vector<std::string> names = {"default"};
    do {
        click("nextPointerBtn");
        const QJsonObject event = agentLog_.next();
        ASSERT_EQ(event["mask"].toInteger(), kChangePointer);
        names.push_back(nameIn(event));
        const std::string shown = shownName();
        EXPECT_EQ(names.back().substr(0, shown.size()), shown);
        EXPECT_EQ(shown.find('+'), std::string::npos);
    } while (names.back() != "default" && names.size() < 30);
    EXPECT_EQ(std::set<std::string>(names.begin(), names.end()).size(), 12U);
    EXPECT_EQ(names.size(), 13U);

    click("previousPointerBtn");
    EXPECT_EQ(nameIn(agentLog_.next()), names[11]);
    std::strcpy(prefs.pointerImageName, "../default");
    theWrangler->loadValues();
    EXPECT_EQ(shownName(), "None");
    click("previousPointerBtn");
    EXPECT_TRUE(std::count(names.begin(), names.end(), nameIn(agentLog_.next())));
    EXPECT_NE(shownName(), "None");
    EXPECT_THAT(remainingMasks(), testing::IsEmpty());
    char name[kMaxPointerNameLength + 1];
    EXPECT_FALSE(ptrmanGetNextPointer(nullptr, true, name)) << "names outlive the visit";
}

TEST_F(PointerChoiceTest, ThePreviewFollowsWhatItShows) {
    const struct {
        ChangeMask changes;
        SInt32 before, after;
        bool drawsAgain;
    } cases[] = {
        {kChangeScanLineLook, kSampleGuideLine, kSampleScanLine, true},
        {kChangeGuideLineLook, kSampleScanLine, kSampleGuideLine, true},
        {kChangeScanLineLook | kChangeGuideLineLook, kSampleGuideLine, kSampleGuideLine, true},
        {kChangeScanLineLook | kChangeGuideLineLook, kSampleScanLine, kSampleScanLine, true},
        {kChangePointer, kSampleGuideLine, kSampleGuideLine, true},
        {kChangePalette, kSampleGuideLine, kSampleGuideLine, true},
        {kChangeScanLineLook | kChangeTriggers, kSampleGuideLine, kSampleScanLine, true},
        {kChangeSounds | kChangeTriggers | kChangeOnOff, kSampleGuideLine, kSampleGuideLine, false},
        {0, kSampleGuideLine, kSampleGuideLine, false},
    };

    openWithAgent();
    PaintCounter paints(viewWidget());
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
    theWrangler->loadValues();
    EXPECT_EQ(view()->sampleLineType(), kSampleScanLine);
}

TEST_F(PointerChoiceTest, ThePreviewIsAButtonInTheTabOrderAndForScreenReaders) {
    QAccessible::setActive(true);
    open();
    QAccessibleInterface* button = QAccessible::queryAccessibleInterface(viewWidget());
    EXPECT_EQ(button->role(), QAccessible::Button);
    EXPECT_EQ(button->text(QAccessible::Name), "Preview of the scan line");
    EXPECT_TRUE(button->text(QAccessible::Description)
                    .startsWith("7 points thick, 5% transparent, red 100, green 0, blue 0"));
    button->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(view()->sampleLineType(), kSampleGuideLine);
    EXPECT_EQ(button->text(QAccessible::Name), "Preview of the guide line");
    EXPECT_TRUE(button->text(QAccessible::Description).contains("75% transparent"));
    EXPECT_EQ(QAccessible::queryAccessibleInterface(find("paletteView"))->role(), QAccessible::List)
        << "the form named it before it had its view";

    find("nextPointerBtn")->setFocus();
    for (const char* next : {"sampleScanImage", "lineColor"}) {
        QTest::keyClick(window()->window(), Qt::Key_Tab);
        EXPECT_EQ(QApplication::focusWidget(), find(next)) << next;
    }
    find("paletteView")->setFocus();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), find("addButtonBtn"));
}

} // namespace
