// SPDX-License-Identifier: MIT
#include "tests/agent/ScanDriver.h"

#include "agent/scan/Actions.h"
#include "agent/scan/PalettePlace.h"
#include "agent/scan/Scan.h"
#include "agent/scan/Settings.h"
#include "src/record/palactions.h"
#include "src/record/settings.h"
#include "src/record/settingwords.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace {

constexpr double kLongestScan = 6000; ///< seconds; menus of two screens' height at a tenth of 60
constexpr int kMostChanges = 50;      ///< of one scan without a press, or of the actions

bool isPress(const Signal& signal) {
    return signal.kind == Signal::Kind::Press || signal.kind == Signal::Kind::Choose;
}

/// What goes on between the presses, the scan and the actions, at a desk of two screens.
class Desk {
public:
    explicit Desk(const PrefsRecord& record) : record_(record) { setRules(); }

    /// Two bytes say what happens, and how or how much later.
    void happen(UInt8 what, UInt8 how);
    /// Nobody presses any more.
    void leave();

    bool hasChosen() const { return hasChosen_; }

private:
    void setRules();
    void change(UInt8 which, UInt8 value);
    void pass(double seconds);
    void handle(const Signal& signal);
    void look();
    void choose(Place place);
    int carryOut();

    PrefsRecord record_, checked_;
    Surroundings around_{{{{0, 0, 1920, 1080}, 1, 30}, {{1920, -200, 800, 600}}}, {9, 9}, {}, {}};
    Presses presses_;
    Scan scan_;
    Actions actions_;
    bool isDown_ = false; ///< a button of the mouse
    int repeats_ = 0;     ///< without a press
    std::vector<Region> regions_;
    double now_ = 1000;
    bool hasChosen_ = false;
};

void Desk::setRules() {
    record_.scanMode &= 3; // else nearly all are unknown
    checked_ = checkedRecord(record_);
    presses_.setRules(PressRules(checked_));
    scan_.setRules(ScanRules(checked_));
    actions_.setRepeatTime(checked_.autoRepeatTime);
}

void Desk::change(UInt8 which, UInt8 value) {
    const Setting& setting = kSettings[which % kSettings.size()];
    const auto& [least, most, step, format, unit, pageSteps] = setting.limits;
    if (setting.isNumber())
        setSettingNumber(setting, least + (most - least) * value / 255, record_);
    else
        *static_cast<UInt8*>(setting.in(record_)) = value;
    setRules();
    scan_.setTimes(regionsOf(checked_, around_));
}

void Desk::happen(UInt8 what, UInt8 how) {
    const auto which = static_cast<Switch>(how % kSwitches);
    const double late = how % 50 / 1000.0;
    switch (what % 9) {
    case 0:
    case 1:
        presses_.down(which, now_ - late);
        break;
    case 2:
    case 3:
        presses_.up(which, now_ - late);
        break;
    case 4:
        change(what / 8, how);
        break;
    case 5:
        handle({static_cast<Signal::Kind>(how % 5), which, now_ + what - how});
        break;
    case 6:
        around_.menus.assign(what / 8 % 3, {how * 12.0, what * 4.0, how * 2.0, what * 8.0});
        record_.scanArea = {how * 12.0F - 200, what * 4.0F - 300, what * 3.0F, how * 1.0F};
        break;
    case 7:
        actions_.chooseButton(how % (kNumActions + 1), now_);
        repeats_ = 0;
        break;
    default:
        what == 8 ? scan_.cancel() : what == 17 ? presses_.forget() : presses_.clicked(now_);
    }
    pass(how * how / 8000.0);
}

void Desk::pass(double seconds) {
    now_ += seconds;
    presses_.advance(now_);
    require(presses_.deadline() > now_, "presses wait for what is to come");
    for (const Signal& signal : presses_.take())
        handle(signal);
    scan_.advance(now_);
    look();
    carryOut();
    actions_.advance(now_);
    require(actions_.deadline() > now_, "actions wait for what is to come");
    repeats_ += carryOut();
    require(repeats_ < Actions::kMostRepeats, "a repetition ends by itself");
}

void Desk::handle(const Signal& signal) {
    if (signal.kind == Signal::Kind::End)
        scan_.cancel(), actions_.cancel();
    if (isPress(signal))
        repeats_ = 0;
    if (isPress(signal) && actions_.press())
        return require(!actions_.repeats(), "a press ends what repeats");
    if (scan_.signal(signal) || !isPress(signal))
        return;
    look();
    regions_ = regionsOf(checked_, around_);
    scan_.start(regions_, signal.moment);
    require(!scan_.isIdle(), "a press starts a scan");
}

void Desk::look() {
    require(std::isfinite(scan_.deadline()) != scan_.isIdle(), "each phase has an end");
    const Picture picture = scan_.pictureAt(now_ + 0.01);
    const Area& region = picture.region.area;
    require(!(scan_.isIdle() && picture.line), "nothing is shown when idle");
    for (const auto& y : {picture.line, picture.guide})
        require(!y || (*y >= region.top && *y <= region.bottom()), "a line is within its region");
    const auto& x = picture.pointer;
    require(!x || (*x >= region.left && *x <= region.right()), "a pointer is within its region");
    const auto choice = scan_.takeChoice();
    hasChosen_ |= choice.has_value();
    require(!choice || scan_.isIdle(), "a choice is the end");
    require(!choice ||
                std::ranges::any_of(
                    regions_, [&](const Region& each) { return each.area.contains(*choice); }),
            "a choice is within a region");
    if (choice)
        choose(*choice);
}

void Desk::choose(Place place) {
    repeats_ = 0;
    const PalettePlace palette(checked_, scan_.region());
    const auto slot = palette.slotAt(place);
    require(!slot || palette.frame.contains(place), "the buttons are on the palette");
    if (slot)
        actions_.chooseButton(checked_.buttonActions[*slot], now_);
    else if (!palette.frame.contains(place))
        actions_.choosePoint(place, now_);
}

/// How much was done.
int Desk::carryOut() {
    const std::vector<Deed> deeds = actions_.take();
    for (const Deed& deed : deeds) {
        const bool isDown = deed.kind == Deed::Kind::ButtonDown;
        const bool isUp = deed.kind == Deed::Kind::ButtonUp || deed.kind == Deed::Kind::GiveUp;
        require(!(isDown && isDown_) && !(isUp && !isDown_), "down and up take turns");
        require(!(isDown_ && deed.kind == Deed::Kind::Click), "no click while the button is down");
        isDown_ = isDown || (isDown_ && !isUp);
    }
    require(isDown_ == actions_.holds(), "it knows whether the button is down");
    return static_cast<int>(deeds.size());
}

void Desk::leave() {
    presses_.forget();
    const double left = now_;
    for (int i = 0; i < kMostChanges && !scan_.isIdle(); ++i)
        pass(std::max(scan_.deadline() - now_, 0.0));
    require(scan_.isIdle() && now_ - left < kLongestScan, "a scan ends by itself");
    for (int i = 0; i < kMostChanges && std::isfinite(actions_.deadline()); ++i)
        pass(actions_.deadline() - now_);
    require(!isDown_ && !actions_.repeats(), "nothing is held or repeats for ever");
}

} // namespace

void require(bool holds, const char* rule) {
    if (!holds) {
        std::fprintf(stderr, "Broken: %s\n", rule);
        std::abort();
    }
}

bool driveScan(std::string_view bytes) {
    PrefsRecord record;
    const std::size_t size = std::min(bytes.size(), sizeof record);
    std::memcpy(&record, bytes.data(), size);
    Desk desk(record);
    for (std::size_t i = size; i + 1 < bytes.size(); i += 2)
        desk.happen(static_cast<UInt8>(bytes[i]), static_cast<UInt8>(bytes[i + 1]));
    desk.leave();
    return desk.hasChosen();
}
