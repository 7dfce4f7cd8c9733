// SPDX-License-Identifier: MIT
#include "agent/scan/Scan.h"
#include "tests/agent/ScanDriver.h"

#include <gtest/gtest.h>
#include <random>
#include <sstream>

using enum Scan::Phase;
using Kind = Signal::Kind;

namespace {

/// The line moves by 50 pixels a second, the pointer by 100.
const Region kRegion{{100, 50, 1000, 500}, 10, 10};
const Region kRight{{1100, 0, 2000, 100}, 10, 20};
const Region kMenu{{300, 200, 100, 200}, 4, 1, true};

using Regions = std::vector<Region>;
const Regions kOne{kRegion}, kTwo{kRegion, kRight}, kMenus{kMenu, kMenu};

/// "p", "r" and "c" are a press, a release and a choice at a moment; at others time passes. The
/// first starts.
void happen(Scan& scan, const Regions& regions, const char* events) {
    std::istringstream in(events);
    double moment;
    for (char what; in >> what >> moment;) {
        const Kind kind = what == 'p' ? Kind::Press : what == 'r' ? Kind::Release : Kind::Choose;
        if (what == '=')
            scan.advance(moment);
        else if (!scan.signal({kind, Switch::First, moment}) && what != 'r')
            scan.start(regions, moment);
    }
}

struct Case {
    const char* what;
    const Regions& regions;
    const char* events;
    Scan::Phase phase;
    std::optional<Place> choice = {};
};

/// With a second before line and pointer, two after letting go, and five until the scan ends.
void expectEach(ScanMode mode, const std::vector<Case>& cases) {
    for (const auto& [what, regions, events, phase, choice] : cases) {
        SCOPED_TRACE(what);
        Scan scan;
        ScanRules rules;
        rules.mode = mode, rules.delay = 1, rules.releaseTime = 2, rules.cancelTime = 5;
        scan.setRules(rules);
        happen(scan, regions, events);
        EXPECT_EQ(scan.phase(), phase);
        const auto chosen = scan.takeChoice();
        ASSERT_EQ(chosen.has_value(), choice.has_value());
        EXPECT_NEAR(chosen ? chosen->x : 0, choice ? choice->x : 0, 1e-6);
        EXPECT_NEAR(chosen ? chosen->y : 0, choice ? choice->y : 0, 1e-6);
    }
}

} // namespace

// clang-format off
TEST(Scan, AutomaticPressesStopWhereTheCentreWasAtTheirMoment) {
    expectEach(ScanMode::Automatic, {
        {"a press starts", kOne, "p0 =0.99", LineDelay},
        {"the line sets off", kOne, "p0 =1 r1.5", Line},
        {"the next stops it", kOne, "p0 p3 r3.5", PointerDelay},
        {"the next stops the pointer, once", kOne, "p0 p3 p5 =9", Idle, {{200, 150}}},
        {"handled later", kOne, "p0 =3.2 p3 =5.1 p5", Idle, {{200, 150}}},
        {"none in a delay", kOne, "p0 p0.5 =1.01 p0.99", Line},
        {"nor before the pointer", kOne, "p0 p3 p3.9 =4 p3.99", Pointer},
        {"late at the far edge", kOne, "p0 =11.015 p10.99", PointerDelay},
        {"there is the last pixel", kOne, "p0 p10.999 p21.998", Idle, {{1099, 549}}},
        {"then a delay", kOne, "p0 =11.03", LineDelay},
        {"timed from the edge", kOne, "p0 =11.9 p13 p15", Idle, {{200, 100}}},
        {"a line goes twice", kOne, "p0 =22.01", Line},
        {"then it goes", kOne, "p0 =22.03", Idle},
        {"even after a sleep", kOne, "p0 =1000", Idle},
        {"a pointer twice", kOne, "p0 p3 =14.03 p17", Idle, {{300, 150}}},
        {"then it goes", kOne, "p0 p3 =25.03", Idle},
        {"to the next region at once", kTwo, "p0 p13 p15", Idle, {{1200, 20}}},
        {"through all of them", kTwo, "p0 =21.03", Idle},
        {"a menu needs no pointer", kMenus, "p0 p2", Idle, {{350, 250}}},
        {"nor does the next", kMenus, "p0 p7", Idle, {{350, 300}}},
        {"a press right after the end starts", kOne, "p0 =21.01 p22.01", LineDelay}});
}

TEST(Scan, InverseMovesWhileHeldAndChoosesWhatIsLetGo) {
    expectEach(ScanMode::Inverse, {
        {"held in the delay", kOne, "p0 r0.5", Idle},
        {"let go", kOne, "p0 r3", LineRest},
        {"goes on without a delay", kOne, "p0 r3 p4 =4.1", Line},
        {"chosen", kOne, "p0 r3 =5.03", PointerRest},
        {"a late press goes on", kOne, "p0 r3 =5.01 p4.99", Line},
        {"no press for the pointer", kOne, "p0 r3 =10.03", Idle},
        {"a press for it", kOne, "p0 r3 =9.9 p9.9", PointerDelay},
        {"let go in its delay", kOne, "p0 r3 p6 r6.5 =11", PointerRest},
        {"moving", kOne, "p0 r3 p6 =8", Pointer},
        {"the choice", kOne, "p0 r3 p4 r5 p8 r10 p11 r12 =14.03", Idle, {{300, 200}}},
        {"of a menu", kMenus, "p0 r2 =4.03", Idle, {{350, 250}}},
        {"held to the end", kOne, "p0 =22.03 r23", Idle},
        {"held to the next", kTwo, "p0 r13 p15", PointerDelay}});
}

TEST(Scan, StepsGoByBandsThenByTheStepsInside) {
    const Regions flatThenTall{kMenu, {{300, 0, 100, 1000}, 1, 1, true}};
    expectEach(ScanMode::Step, {
        {"the first band is there at once", kOne, "p0", LineRest},
        {"the choice", kOne, "p0 p1 p2 c3 p4 c5 p6 c7 c8", Idle, {{205, 157.5}}},
        {"of a menu", kMenus, "c0 c1 c2", Idle, {{350, 201}}},
        {"each band twice", kOne, "p0 p1p1p1p1p1p1p1p1p1 p2p2p2p2p2p2p2p2p2p2", LineRest},
        {"then it goes", kOne, "p0 p1p1p1p1p1p1p1p1p1 p2p2p2p2p2p2p2p2p2p2p2", Idle},
        {"the next has its own size", flatThenTall, "p0 p1p1p1p1p1p1p1p1p1p1p1 c2c2", Idle, {{350, 105}}},
        {"no less after a round of bands", kOne, "p0 p1p1p1p1p1p1p1p1p1p1 c1 p1p1p1p1p1p1p1p1p1p1", LineRest},
        {"steps go round", kTwo, "p0 c1 p1p1p1p1p1p1p1p1p1p1p1 c2 c3c3", Idle, {{105, 57.5}}},
        {"no press", kOne, "p0 p4 =9.01", LineRest},
        {"for five seconds ends it", kOne, "p0 p4 =9.03", Idle}});
}

// clang-format on

TEST(Scan, PicturesAreRightAheadOfTimeAndRulesHoldFromTheNextSweep) {
    Scan scan;
    happen(scan, kTwo, "p0");
    EXPECT_EQ(scan.pictureAt(9.9).line, 545);
    EXPECT_EQ(scan.pictureAt(10.5).line, 5) << "of the next region, before the time is handled";
    EXPECT_EQ(scan.pictureAt(10.5).region, kRight);
    scan.setTimes({kRight}); // of others
    scan.setTimes({{kRegion.area, 1, 5}, kRight});
    happen(scan, {}, "p4");
    EXPECT_EQ(scan.phase(), Pointer) << "no delay is over at once";
    const Picture picture = scan.pictureAt(5);
    EXPECT_EQ(picture.guide, 250);
    EXPECT_EQ(picture.pointer, 300);
    EXPECT_FALSE(picture.line || picture.band);
    ScanRules steps;
    steps.mode = ScanMode::Step;
    scan.setRules(steps);
    happen(scan, {}, "p6");
    EXPECT_EQ(scan.takeChoice(), (Place{500, 250}));
    happen(scan, kOne, "p7 p8");
    EXPECT_EQ(scan.pictureAt(8).band, (Area{100, 100, 1000, 50}));
    EXPECT_EQ(scan.pictureAt(8).line, 125);
    happen(scan, kOne, "c9 c9 p9");
    EXPECT_EQ(scan.pictureAt(9).band, (Area{200, 50, 100, 500}));
    EXPECT_EQ(scan.pictureAt(9).pointer, 250);
}

TEST(Scan, NothingThatHappensLeavesARegionOrStaysForEver) {
    std::mt19937 random(24);
    std::string bytes(sizeof(PrefsRecord) + 2 * 1000, 0);
    int choices = 0;
    for (int run = 0; run < 1000; ++run) {
        for (char& byte : bytes)
            byte = static_cast<char>(random());
        choices += driveScan(bytes);
    }
    EXPECT_GT(choices, 500) << "most runs reach the end of a scan";
}
