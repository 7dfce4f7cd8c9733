// SPDX-License-Identifier: MIT
#include "agent/scan/Presses.h"

#include <cmath>
#include <gtest/gtest.h>
#include <sstream>

namespace {

PressRules rulesOf(ScanMode mode, double shortest = 0, bool countsOnRelease = false) {
    PressRules rules;
    rules.mode = mode, rules.shortest = shortest, rules.countsOnRelease = countsOnRelease;
    rules.ignoredAfterClick = 3;
    return rules;
}

const PressRules kPlain = rulesOf(ScanMode::Automatic);
const PressRules kFiltered = rulesOf(ScanMode::Automatic, 0.5);
const PressRules kOnRelease = rulesOf(ScanMode::Automatic, 0.5, true);
const PressRules kInverse = rulesOf(ScanMode::Inverse, 0.5, true);
const PressRules kStep = rulesOf(ScanMode::Step, 0.5, true);

/// "d" and "u": the first switch goes down or up at a moment. In capitals it is the second, at
/// others time passes.
void happen(Presses& presses, const char* events) {
    std::istringstream in(events);
    double moment;
    for (char what; in >> what >> moment;)
        if (what == 'd' || what == 'D')
            presses.down(what == 'd' ? Switch::First : Switch::Second, moment);
        else if (what == 'u' || what == 'U')
            presses.up(what == 'u' ? Switch::First : Switch::Second, moment);
        else
            presses.advance(moment);
}

/// The signals' kinds and moments, in capitals those of the second switch.
std::string taken(Presses& presses) {
    std::ostringstream out;
    for (const auto& [kind, which, moment] : presses.take())
        out << (which == Switch::First ? "prcwe" : "PRCWE")[static_cast<int>(kind)] << moment
            << ' ';
    return out.str();
}

} // namespace

TEST(Presses, CountAsTheRulesSay) {
    const struct {
        const char* what;
        const PressRules& rules;
        const char* events;
        const char* signals;
    } cases[] = {{"at once", kPlain, "d1", "p1 "},
                 {"a repetition", kPlain, "d1 d2 u3 u3", "p1 "},
                 {"too short", kFiltered, "d1 u1.4 =2", ""},
                 {"long enough", kFiltered, "d1 =1.6", "p1.5 "},
                 {"told by its end", kFiltered, "d1 u1.7", "p1.5 "},
                 {"not yet", kFiltered, "d1 =1.4", ""},
                 {"in order", kFiltered, "D1 d1.2 =2", "P1.5 p1.7 "},
                 {"on release", kOnRelease, "d1 =2 u2.5", "p2.5 "},
                 {"too short there", kOnRelease, "d1 u1.4", ""},
                 {"held", kInverse, "d1 u2", "p1.5 r2 "},
                 {"no release of none", kInverse, "d1 u1.4", ""},
                 {"a step", kStep, "d1 =2.4 u2.4", "p2.4 "},
                 {"no step", kStep, "d1 u1.4", ""},
                 {"held to choose", kStep, "d1 =3 u3", "c2.5 "},
                 {"the second chooses", kStep, "D1 U1.9", "C1.5 "},
                 {"long holds", kStep, "d1 =99", "c2.5 w5 e11 "},
                 {"long holds on release", kOnRelease, "D1 U12", "W5 E11 P12 "}};

    for (const auto& [what, rules, events, signals] : cases) {
        Presses presses;
        presses.setRules(rules);
        happen(presses, events);
        EXPECT_EQ(taken(presses), signals) << what;
        EXPECT_EQ(taken(presses), "") << what;
    }
}

TEST(Presses, SoonAfterAClickDontCountButEnd) {
    for (const PressRules& rules : {kPlain, kFiltered, kOnRelease, kInverse, kStep}) {
        Presses presses;
        presses.setRules(rules);
        happen(presses, "d1");
        presses.clicked(1);
        happen(presses, "u2.2");
        EXPECT_NE(taken(presses), "") << "a press that is under way counts";
        happen(presses, "d3.9 u3.95 d3.99 u15");
        EXPECT_EQ(taken(presses), "w7.99 e13.99 ");
        happen(presses, "d15 u16");
        EXPECT_NE(taken(presses), "");
    }
}

TEST(Presses, TellWhenTheyAreDue) {
    Presses presses;
    presses.setRules(kStep);
    EXPECT_TRUE(std::isinf(presses.deadline()));
    happen(presses, "d1");
    for (const double due : {2.5, 5.0, 11.0}) {
        EXPECT_EQ(presses.deadline(), due);
        presses.advance(due);
    }
    EXPECT_TRUE(std::isinf(presses.deadline()));
    presses.forget();
    happen(presses, "u12 d13");
    EXPECT_EQ(taken(presses), "") << "what was down is forgotten";
    presses.setRules(kFiltered);
    EXPECT_EQ(presses.deadline(), 13.5) << "new rules hold for a press under way";
}
