#include "src/prefpane/NumberController.h"

#include <cstdint>
#include <gmock/gmock.h>
#include <limits>

namespace {

constexpr double kHuge = std::numeric_limits<double>::max();

struct Listener final : NumberChangeTarget {
    Listener() { NumberController::setChangeTarget(this); }

    ~Listener() { NumberController::setChangeTarget(nullptr); }

    void changed(ChangeMask changes) override { masks.push_back(changes); }

    std::vector<ChangeMask> masks;
};

TEST(NumberControllerTest, WritesAreClampedAndTruncatedByKind) {
    const struct {
        SInt32 kind;
        double min, max, written, stored;
    } cases[] = {
        {kNumberKindDouble, 1, 60, 0.5, 1},
        {kNumberKindDouble, 1, 60, 61, 60},
        {kNumberKindDouble, 1, 60, 3.14, 3.14},
        {kNumberKindSInt32, -100, 100, 2.95, 3},
        {kNumberKindSInt32, -100, 100, 2.85, 2},
        {kNumberKindSInt32, -100, 100, -2.95, -3},
        {kNumberKindSInt32, -100, 100, -2.85, -2},
        {kNumberKindSInt32, 20, 100, -1, 20},
        {kNumberKindUInt32, 0, 100, 49.95, 50},
        {kNumberKindUInt32, 0, 100, 49.5, 49},
        {kNumberKindUInt32, -10, 100, -5, 0},
        {kNumberKindUInt32, 0, kHuge, 1e10, 4294967295.0},
        {kNumberKindUInt32, 0, kHuge, 4294967295.0, 4294967295.0},
        {3, 0, 100, 50, 0},
    };

    for (const auto& test : cases) {
        alignas(8) unsigned char storage[8] = {};
        NumberController controller;
        controller.setKind(test.kind, storage, test.min, test.max, 1, 0)->set(test.written);
        EXPECT_DOUBLE_EQ(controller.value(), test.stored)
            << "kind " << test.kind << ", written " << test.written;
    }
}

TEST(NumberControllerTest, StepsSnapToTheGridAndStopAtTheLimits) {
    const struct {
        SInt32 kind;
        double before, step, afterInc, afterDec;
    } cases[] = {
        {kNumberKindDouble, 3.14, 0.5, 3.5, 3.0},
        {kNumberKindDouble, 3.0, 0.5, 3.5, 2.5},
        {kNumberKindDouble, -3.14, 0.5, -2.5, -3.5}, // the grid is found toward zero
        {kNumberKindDouble, 7, 0, 7, 7},
        {kNumberKindDouble, 10, 0.5, 10, 9.5},
        {kNumberKindDouble, -10, 0.5, -9.5, -10},
        {kNumberKindSInt32, 7, 5, 10, 2},
        {kNumberKindUInt32, 1, 1, 2, 0},
    };

    for (const auto& test : cases) {
        for (const bool up : {true, false}) {
            double number = test.before;
            std::int32_t integer = static_cast<std::int32_t>(test.before);
            const bool isReal = test.kind == kNumberKindDouble;
            NumberController controller;
            controller.setKind(test.kind, isReal ? static_cast<void*>(&number) : &integer, -10, 10,
                               test.step, 0x200);
            Listener listener;
            up ? controller.inc() : controller.dec();
            const double expected = up ? test.afterInc : test.afterDec;
            EXPECT_DOUBLE_EQ(controller.value(), expected) << test.before << (up ? " up" : " down");
            EXPECT_EQ(listener.masks.size(), expected == test.before ? 0u : 1u);
        }
    }
}

TEST(NumberControllerTest, OnlyAnAlteredValueIsReportedAndToTheOneTarget) {
    SInt32 integer = 3;
    NumberController controller;
    controller.setKind(kNumberKindSInt32, &integer, 0, 10, 1, 0x80000003);
    {
        Listener listener;
        controller.set(4);
        controller.change(4.0);
        controller.change(4.5); // stored as the same 4
        EXPECT_THAT(listener.masks, testing::IsEmpty());
        controller.change(4.95);
        EXPECT_THAT(listener.masks, testing::ElementsAre(0x80000003));
    }
    controller.inc(); // no target: stored all the same
    EXPECT_EQ(integer, 6);
}

TEST(NumberControllerTest, WithoutAnAddressItIsInert) {
    Listener listener;
    NumberController controller;
    controller.inc();
    controller.setKind(kNumberKindDouble, nullptr, 1, 5, 1, 1)->change(3);
    EXPECT_EQ(controller.value(), 0);
    EXPECT_THAT(listener.masks, testing::IsEmpty());
}

} // namespace
