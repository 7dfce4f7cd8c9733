#include "tests/platform/AppKit/TestForm.h"

namespace {

using ViewTest = FormTest;

TEST_F(ViewTest, DetachedViewKeepsItsPlaceAndFocusGoesToItsNeighbour) {
    ControlOwner<NSButton> owner;
    show(widgetXml(
             "QWidget", "group", {},
             "<layout class=\"QHBoxLayout\">" + itemXml(widgetXml("QPushButton", "left", {})) +
                 itemXml(widgetXml("QPushButton", "right", {{"outlet", "control"}})) + "</layout>"),
         owner);
    NSView* container = owner.control->superview();
    const NSRect before = owner.control->frame();
    find("right")->setFocus();

    owner.control->removeFromSuperview();
    QTest::qWait(20);
    EXPECT_EQ(owner.control->superview(), nullptr);
    EXPECT_FALSE(find("right")->isVisible());
    EXPECT_TRUE(find("left")->hasFocus());
    EXPECT_EQ(find("left")->x() + find("left")->width() < static_cast<int>(before.x), true);

    container->addSubview(owner.control);
    QTest::qWait(20);
    EXPECT_EQ(owner.control->superview(), container);
    EXPECT_TRUE(find("right")->isVisible());
    const NSRect after = owner.control->frame();
    EXPECT_EQ(std::tie(after.x, after.y, after.width, after.height),
              std::tie(before.x, before.y, before.width, before.height));
}

TEST_F(ViewTest, TextIsShownAsSet) {
    ControlOwner<NSTextField> owner;
    show(widgetXml("QLabel", "label", {{"outlet", "control"}}), owner);
    const auto* label = find<QWidget>("label");
    for (const char* text : {" 10.0 sec", "<b>5</b>%", "\xC3\xA4"}) {
        owner.control->setStringValue(text);
        EXPECT_EQ(label->property("text").toString().toStdString(), text);
        EXPECT_EQ(label->property("textFormat").toInt(), Qt::PlainText);
    }

    const struct {
        double value;
        const char* text;
    } kNumbers[] = {{70, "70"}, {0.5, "0.5"}, {1234567, "1.23457e+06"}, {-0.25, "-0.25"}};

    for (const auto& row : kNumbers) {
        owner.control->setDoubleValue(row.value);
        EXPECT_EQ(owner.control->stringValue(), row.text);
    }
}

} // namespace
