#include "tests/platform/AppKit/TestForm.h"

#include <QCheckBox>
#include <QSlider>

namespace {

using testing::ElementsAre;
using testing::HasSubstr;

std::vector<std::string> awoken;

/// A controller that is no view, with controls of its own.
class GroupController final : public NSObject {
public:
    std::span<const NSOutlet> outlets() const override {
        static constexpr NSOutlet kOutlets[] = {nsOutlet<&GroupController::slider>("slider")};
        return kOutlets;
    }

    std::span<const NSAction> actions() const override {
        static constexpr NSAction kActions[] = {nsAction<&GroupController::slid>("slid:")};
        return kActions;
    }

    void awakeFromNib() override { awoken.emplace_back("group"); }

    void slid(NSSlider*) { ++slides; }

    NSSlider* slider = nullptr;
    int slides = 0;
};

NS_REGISTER_CLASS(GroupController);

class Owner final : public NSObject {
public:
    std::span<const NSOutlet> outlets() const override {
        static constexpr NSOutlet kOutlets[] = {nsOutlet<&Owner::group>("group"),
                                                nsOutlet<&Owner::check>("check")};
        return kOutlets;
    }

    std::span<const NSAction> actions() const override {
        static constexpr NSAction kActions[] = {nsAction<&Owner::checked>("checked:")};
        return kActions;
    }

    void awakeFromNib() override { awoken.emplace_back("owner"); }

    void checked(NSButton*) { ++checks; }

    GroupController* group = nullptr;
    NSButton* check = nullptr;
    int checks = 0;
};

const std::string kSlider = widgetXml("QSlider", "aSlider", {{"outlet", "slider"}});

std::string groupXml(const std::string& contents) {
    return widgetXml("QWidget", "aGroup", {{"customClass", "GroupController"}, {"outlet", "group"}},
                     contents);
}

std::string checkXml(const std::string& property, const std::string& value) {
    return widgetXml("QCheckBox", "aCheck", {{"outlet", "check"}, {property, value}});
}

const std::string kCheck = checkXml("action", "checked:");

using NibTest = FormTest;

TEST_F(NibTest, WiresEachControlToWhatEnclosesItAndActionsFurtherOut) {
    Owner owner;
    const std::string slider =
        widgetXml("QSlider", "aSlider", {{"outlet", "slider"}, {"action", "slid:"}});
    const std::string inner = widgetXml("QCheckBox", "inner", {{"action", "checked:"}});
    ASSERT_TRUE(load(formXml(itemXml(kCheck) + itemXml(groupXml(slider + inner))), owner))
        << testing::PrintToString(errors_);
    EXPECT_THAT(awoken, ElementsAre("group", "owner"));

    find<QSlider>("aSlider")->setValue(7);
    find<QCheckBox>("inner")->click();
    EXPECT_EQ(owner.group->slides, 1);
    EXPECT_EQ(owner.group->slider->doubleValue(), 7);
    EXPECT_EQ(owner.checks, 1);
    EXPECT_EQ(owner.group->slider->superview()->superview(), nib_.topLevelView());
    EXPECT_EQ(nib_.topLevelView()->superview(), nullptr);
}

TEST_F(NibTest, EveryFaultIsNamedWithItsFileAndNothingAwakes) {
    const std::string group = itemXml(groupXml(kSlider));

    const struct {
        std::string xml;
        const char* message;
    } kTable[] = {
        {formXml(itemXml(kCheck) + itemXml(groupXml(kSlider + widgetXml("QLabel", "aLabel",
                                                                        {{"outlet", "caption"}})))),
         "widget 'aLabel': GroupController has no outlet 'caption'"},
        {formXml(itemXml(kCheck) + itemXml(groupXml(""))),
         "outlet 'slider' of GroupController 'aGroup' is empty"},
        {formXml(itemXml(kCheck)), "outlet 'group' of Owner is empty"},
        {formXml(itemXml(kCheck) + itemXml(groupXml(kSlider + kSlider))),
         "outlet 'slider' of GroupController is filled already"},
        {formXml(group + itemXml(widgetXml("QLabel", "aLabel", {{"outlet", "check"}}))),
         "takes NSButton, not NSTextField"},
        {formXml(group + itemXml(checkXml("action", "chekced:"))),
         "widget 'aCheck': no object around it has the action 'chekced:'"},
        {formXml(itemXml(kCheck) + itemXml(groupXml(kSlider + widgetXml("QPushButton", "aButton",
                                                                        {{"action", "slid:"}})))),
         "widget 'aButton': action 'slid:' of"},
        {formXml(group + itemXml(kCheck) +
                 itemXml(widgetXml("QFrame", "aFrame", {{"action", "checked:"}}))),
         "widget 'aFrame': NSView can't send the action 'checked:'"},
        {formXml(group + itemXml(checkXml("customClass", "GruopController"))),
         "widget 'aCheck': no class GruopController"},
        {formXml(group + itemXml(kCheck) + itemXml(widgetXml("HotKeyVeiw", "aView", {}))),
         "widget 'aView': no class HotKeyVeiw"},
        {formXml(itemXml(kCheck) +
                 itemXml(groupXml(
                     widgetXml("QSlider", "aSlider",
                               {{"outlet", "slider"}, {"minValue", "5"}, {"maxValue", "5"}})))),
         "widget 'aSlider': minValue isn't below maxValue"},
        {formXml(group + itemXml(kCheck) +
                 itemXml(widgetXml("QWidget", "aMatrix", {{"customClass", "NSMatrix"}},
                                   widgetXml("QRadioButton", "a", {}) +
                                       widgetXml("QRadioButton", "b", {{"tag", "0"}})))),
         "widget 'aMatrix': two cells have the tag 0"},
        {formXml("").substr(0, 60), "line 1"},
        {"<plist/>", "root element"},
        {"", "line 1"},
    };

    for (const auto& row : kTable) {
        Owner owner;
        NSNib nib;
        std::vector<std::string> errors;
        std::ofstream(path_) << row.xml;
        testing::internal::CaptureStderr();
        EXPECT_FALSE(nib.instantiate(path_, owner, errors)) << row.message;
        EXPECT_EQ(testing::internal::GetCapturedStderr(), "") << row.message;
        EXPECT_THAT(errors, testing::Contains(HasSubstr(row.message)));
        EXPECT_THAT(errors, testing::Each(testing::StartsWith(path_ + ": ")));
    }
    EXPECT_THAT(awoken, ElementsAre());
}

TEST_F(NibTest, MissingFileIsNamed) {
    Owner owner;
    EXPECT_FALSE(nib_.instantiate("/nonexistent/Pane.ui", owner, errors_));
    EXPECT_THAT(errors_, ElementsAre("/nonexistent/Pane.ui: No such file or directory"));
}

} // namespace
