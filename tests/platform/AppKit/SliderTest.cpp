#include "tests/platform/AppKit/TestForm.h"

#include <QAccessible>
#include <QSlider>
#include <QStyleOptionSlider>
#include <QWheelEvent>

namespace {

class OptionSlider : public QSlider {
public:
    using QSlider::initStyleOption;
};

/// From 1 to 20 in tenths, 190 steps, with a caption and a value label.
class SliderTest : public FormTest {
protected:
    void SetUp() override {
        const std::string title =
            widgetXml("QLabel", "title", {{"text", "Time"}},
                      "<property name=\"buddy\"><cstring>slider</cstring></property>");
        const std::string slider =
            widgetXml("QSlider", "slider",
                      {{"outlet", "control"},
                       {"action", "acted:"},
                       {"minValue", "1"},
                       {"maxValue", "20"},
                       {"maximum", "190"},
                       {"accessibleDescription", "How long."}},
                      "<property name=\"orientation\"><enum>Qt::Horizontal</enum></property>");
        const std::string value = widgetXml("QLabel", "value", {{"outlet", "label"}});
        show(widgetXml("QWidget", "group", {},
                       "<layout class=\"QHBoxLayout\">" + itemXml(title) + itemXml(slider) +
                           itemXml(value) + "</layout>"),
             owner_);
        slider_ = find<QSlider>("slider");
        slider_->setMinimumWidth(300);
    }

    QPoint knob() const {
        QStyleOptionSlider option;
        static_cast<const OptionSlider*>(slider_)->initStyleOption(&option);
        return slider_->style()
            ->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, slider_)
            .center();
    }

    /// The owner of the value label too.
    class Owner final : public ControlOwner<NSSlider> {
    public:
        std::span<const NSOutlet> outlets() const override {
            static constexpr NSOutlet kOutlets[] = {nsOutlet<&ControlOwner::control>("control"),
                                                    nsOutlet<&Owner::label>("label")};
            return kOutlets;
        }

        NSTextField* label = nullptr;
    };

    Owner owner_;
    QSlider* slider_ = nullptr;
};

TEST_F(SliderTest, SetFromCodeKeepsTheValueAndSendsNothing) {
    const struct {
        double set, value;
        int position;
    } kTable[] = {{3.14, 3.14, 21}, {0, 1, 0}, {99, 20, 190}, {10.5, 10.5, 95}};

    for (const auto& row : kTable) {
        owner_.control->setDoubleValue(row.set);
        EXPECT_EQ(owner_.control->doubleValue(), row.value);
        EXPECT_EQ(slider_->value(), row.position);
    }
    EXPECT_EQ(owner_.sent, 0);
}

TEST_F(SliderTest, KeysMoveInSteps) {
    const struct {
        Qt::Key key;
        double value;
    } kTable[] = {{Qt::Key_Right, 10.1},
                  {Qt::Key_PageUp, 11.1},
                  {Qt::Key_Left, 11},
                  {Qt::Key_Home, 1},
                  {Qt::Key_End, 20}};

    owner_.control->setDoubleValue(10);
    for (const auto& row : kTable) {
        owner_.sent = 0;
        QTest::keyClick(slider_, row.key);
        EXPECT_EQ(owner_.control->doubleValue(), row.value);
        EXPECT_EQ(owner_.sent, 1);
    }
    QTest::keyClick(slider_, Qt::Key_Right);
    EXPECT_EQ(owner_.sent, 1) << "at the limit nothing changes";
}

TEST_F(SliderTest, DragsAndGoesToAClickButLeavesTheWheelToThePage) {
    owner_.control->setDoubleValue(10);
    QTest::mousePress(slider_, Qt::LeftButton, {}, knob());
    QTest::mouseMove(slider_, knob() + QPoint(40, 0));
    QTest::mouseRelease(slider_, Qt::LeftButton, {}, knob());
    EXPECT_GT(owner_.control->doubleValue(), 10.5);
    EXPECT_GE(owner_.sent, 1);

    const QPoint place(slider_->width() / 4, slider_->height() / 2);
    QTest::mouseClick(slider_, Qt::LeftButton, {}, place);
    EXPECT_NEAR(knob().x(), place.x(), 2);

    owner_.sent = 0;
    QWheelEvent wheel(place, slider_->mapToGlobal(place), {}, {0, 120}, {}, {}, Qt::NoScrollPhase,
                      false);
    QApplication::sendEvent(slider_, &wheel);
    EXPECT_FALSE(wheel.isAccepted());
    EXPECT_EQ(owner_.sent, 0);
    EXPECT_GE(slider_->height(), 24);
}

TEST_F(SliderTest, ScreenReaderHearsRealValuesAndTheirText) {
    owner_.control->setDoubleValue(10);
    owner_.label->setStringValue(" 10.0 sec");
    auto* interface = QAccessible::queryAccessibleInterface(slider_);
    ASSERT_TRUE(interface && interface->valueInterface());
    EXPECT_EQ(interface->role(), QAccessible::Slider);
    EXPECT_EQ(interface->text(QAccessible::Name), "Time");
    EXPECT_EQ(interface->text(QAccessible::Value), "10.0 sec");
    EXPECT_EQ(interface->text(QAccessible::Description), "10.0 sec. How long.");
    EXPECT_EQ(interface->valueInterface()->currentValue().toDouble(), 10);
    EXPECT_EQ(interface->valueInterface()->minimumValue().toDouble(), 1);
    EXPECT_EQ(interface->valueInterface()->maximumValue().toDouble(), 20);
    EXPECT_EQ(interface->valueInterface()->minimumStepSize().toDouble(), 0.1);
    interface->valueInterface()->setCurrentValue(12.5);
    EXPECT_EQ(owner_.control->doubleValue(), 12.5);
    EXPECT_EQ(owner_.sent, 1);
}

} // namespace
