// SPDX-License-Identifier: MIT
#include "src/controls/NumberController.h"

#include "src/controls/SliderController.h"
#include "tests/platform/AppKit/TestForm.h"

#include <gmock/gmock.h>

namespace {

TEST(NumberControllerTest, WritesAreClampedAndTruncatedByKind) {
    const struct {
        SInt32 kind;
        double min, max, written, stored;
    } cases[] = {
        {kNumberKindDouble, 1, 60, 0.5, 1},
        {kNumberKindSInt32, -100, 100, 2.85, 2},
        {kNumberKindSInt32, -100, 100, -2.95, -3},
        {kNumberKindUInt32, -10, 100, -5, 0},
        {kNumberKindUInt32, 0, 1e300, 1e10, 4294967295.0},
    };

    for (const auto& test : cases) {
        alignas(8) unsigned char storage[8] = {};
        NumberController controller;
        controller.setKind(test.kind, storage, test.min, test.max, 1, 0)->set(test.written);
        EXPECT_DOUBLE_EQ(controller.value(), test.stored) << test.kind << ", " << test.written;
    }
}

TEST(NumberControllerTest, StepsSnapToTheGridAndStopAtTheLimits) {
    // Snapping is toward zero.
    for (const auto& [before, afterInc, afterDec] :
         {std::tuple(3.14, 3.5, 3.0), {-3.14, -2.5, -3.5}, {10, 10, 9.5}, {-10, -9.5, -10}}) {
        double up = before, down = before;
        NumberController controller;
        controller.setKind(kNumberKindDouble, &up, -10, 10, 0.5, 0)->inc();
        controller.setKind(kNumberKindDouble, &down, -10, 10, 0.5, 0)->dec();
        EXPECT_DOUBLE_EQ(up, afterInc) << before;
        EXPECT_DOUBLE_EQ(down, afterDec) << before;
    }
}

TEST(NumberControllerTest, OnlyNumbersCanBeTyped) {
    double value = 2;
    NumberController controller;
    controller.setKind(kNumberKindDouble, &value, 0, 10, 0.5, 0);
    for (const char* text : {"nan", "NAN sec", "inf", "-inf", "nan(5)"}) {
        EXPECT_FALSE(controller.type(text)) << text;
        EXPECT_EQ(value, 2) << text;
    }
}

using SliderRowTest = FormTest;

TEST_F(SliderRowTest, ItGoesAndComesAsAWhole) {
    ControlOwner<SliderController> owner;
    show(widgetXml("NumberRow", "row",
                   {{"customClass", "SliderController"},
                    {"outlet", "control"},
                    {"caption", "Speed"},
                    {"minValue", "0"},
                    {"maxValue", "10"},
                    {"decimals", "1"}}),
         owner);
    double value = 2;
    owner.control->setDoubleKindAt(&value, 0.5, 0, "%.1f")->update();
    const auto visible = [this] {
        std::vector<std::string> names;
        for (const auto* part : find("row")->findChildren<QWidget*>())
            if (part->isVisible())
                names.push_back(part->objectName().toStdString());
        return names;
    };
    const auto whole = visible();
    EXPECT_THAT(whole, testing::IsSupersetOf({"rowPageDecBtn", "rowPageIncBtn", "rowSlider"}));
    owner.control->setPresent(false);
    EXPECT_FALSE(owner.control->isPresent());
    EXPECT_THAT(visible(), testing::IsEmpty());
    owner.control->setPresent(true);
    EXPECT_TRUE(owner.control->isPresent());
    EXPECT_THAT(visible(), testing::UnorderedElementsAreArray(whole));
}

} // namespace
