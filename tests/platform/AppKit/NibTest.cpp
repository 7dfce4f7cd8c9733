// SPDX-License-Identifier: MIT
#include "platform/AppKit/ClassRegistry.h"
#include "tests/platform/AppKit/TestForm.h"

#include <QCheckBox>

namespace {

std::vector<std::string> awoken;

/// A controller that is no view and has one control.
class GroupController final : public ControlOwner<NSSlider> {
    void awakeFromNib() override { awoken.emplace_back("group"); }
};

REGISTER_CLASS(GroupController);

class Owner final : public NSObject {
public:
    std::span<const Outlet> outlets() const override {
        static constexpr Outlet kOutlets[] = {outletRow<&Owner::group>("group")};
        return kOutlets;
    }

    std::span<const Action> actions() const override {
        static constexpr Action kActions[] = {actionRow<&Owner::checked>("checked:")};
        return kActions;
    }

    void awakeFromNib() override { awoken.emplace_back("owner"); }

    void checked(NSButton*) { ++checks; }

    GroupController* group = nullptr;
    int checks = 0;
};

const std::string kSlider = widgetXml("QSlider", "aSlider", wired());

/// A form of the group with these controls.
std::string groupXml(const std::string& controls) {
    return formXml({widgetXml(
        "QWidget", "aGroup", {{"customClass", "GroupController"}, {"outlet", "group"}}, controls)});
}

using NibTest = FormTest;

TEST_F(NibTest, WiresEachControlToWhatEnclosesItAndActionsFurtherOut) {
    Owner owner;
    const std::string check = widgetXml("QCheckBox", "aCheck", {{"action", "checked:"}});
    ASSERT_TRUE(load(groupXml(kSlider + check), owner)) << testing::PrintToString(errors_);
    EXPECT_THAT(awoken, testing::ElementsAre("group", "owner"));
    find<QSlider>("aSlider")->setValue(7);
    find<QCheckBox>("aCheck")->click();
    EXPECT_EQ(owner.group->sent, 1);
    EXPECT_EQ(owner.group->control->doubleValue(), 7);
    EXPECT_EQ(owner.checks, 1);
    EXPECT_EQ(owner.group->control->superview()->superview(), nib_.topLevelView());
}

TEST_F(NibTest, EveryFaultIsNamedWithItsFileAndNothingAwakes) {
    const std::pair<std::string, const char*> kTable[] = {
        {"", "outlet 'control' of GroupController 'aGroup' is empty"},
        {kSlider + kSlider, "outlet 'control' of GroupController is filled already"},
        {kSlider + widgetXml("QFrame", "aFrame", {{"action", "checked:"}}),
         "widget 'aFrame': NSView can't send the action 'checked:'"},
        {widgetXml("QSlider", "aSlider", wired({{"minValue", "5"}, {"maxValue", "5"}})),
         "widget 'aSlider': minValue isn't below maxValue"},
        {kSlider + widgetXml("QWidget", "aMatrix", {{"customClass", "NSMatrix"}},
                             widgetXml("QRadioButton", "a") +
                                 widgetXml("QRadioButton", "b", {{"tag", "0"}})),
         "widget 'aMatrix': two cells have the tag 0"},
        {"<", "line 1"},
    };
    awoken.clear();
    for (const auto& [controls, message] : kTable) {
        Owner owner;
        NSNib nib;
        std::ofstream(path_) << groupXml(controls);
        errors_.clear();
        testing::internal::CaptureStderr();
        EXPECT_FALSE(nib.instantiate(path_, owner, errors_)) << message;
        EXPECT_EQ(testing::internal::GetCapturedStderr(), "") << message;
        EXPECT_THAT(errors_, testing::Contains(testing::HasSubstr(message)));
        EXPECT_THAT(errors_, testing::Each(testing::StartsWith(path_ + ": ")));
    }
    EXPECT_TRUE(awoken.empty());
}

} // namespace
