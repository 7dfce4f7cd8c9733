#pragma once

#include "platform/AppKit/NSButton.h"
#include "platform/AppKit/NSColorWell.h"
#include "platform/AppKit/NSMatrix.h"
#include "platform/AppKit/NSNib.h"
#include "platform/AppKit/NSSlider.h"
#include "platform/AppKit/NSTextField.h"

#include <QApplication>
#include <QTest>
#include <gmock/gmock.h>

#include <cstdlib>
#include <fstream>
#include <functional>

/// A widget of a form with the given properties and contents, as Designer writes it.
inline std::string widgetXml(const std::string& type, const std::string& name,
                             const std::vector<std::pair<std::string, std::string>>& properties,
                             const std::string& contents = "") {
    std::string xml = "<widget class=\"" + type + "\" name=\"" + name + "\">";
    for (const auto& [key, value] : properties) {
        const bool isNumber = value.find_first_not_of("0123456789") == std::string::npos;
        const std::string kind = isNumber ? "number" : "string";
        xml += "<property name=\"" + key + "\" stdset=\"0\"><" + kind + ">" + value + "</" + kind +
               "></property>";
    }
    return xml + contents + "</widget>";
}

inline std::string formXml(const std::string& contents) {
    return "<ui version=\"4.0\"><class>Form</class>" +
           widgetXml("QWidget", "form", {},
                     "<layout class=\"QVBoxLayout\">" + contents + "</layout>") +
           "</ui>";
}

inline std::string itemXml(const std::string& widget) {
    return "<item>" + widget + "</item>";
}

/// The owner of a form with one control, which is its outlet `Control` and sends it "acted:".
template <class Control>
class ControlOwner : public NSObject {
public:
    std::span<const NSOutlet> outlets() const override {
        static constexpr NSOutlet kOutlets[] = {nsOutlet<&ControlOwner::control>("control")};
        return kOutlets;
    }

    std::span<const NSAction> actions() const override {
        static constexpr NSAction kActions[] = {nsAction<&ControlOwner::acted>("acted:")};
        return kActions;
    }

    void acted(Control*) {
        ++sent;
        if (onAction)
            onAction();
    }

    Control* control = nullptr;
    int sent = 0;
    std::function<void()> onAction;
};

/// Runs Qt offscreen and loads forms written by the test.
class FormTest : public testing::Test {
protected:
    FormTest() {
        const char* platform = std::getenv("QT_QPA_PLATFORM");
        EXPECT_STREQ(platform, "offscreen") << "the tests must not touch the user's display";
    }

    bool load(const std::string& xml, NSObject& owner) {
        std::ofstream(path_) << xml;
        return nib_.instantiate(path_, owner, errors_);
    }

    /// Loads a form with this one control, wired to `owner`, between two line edits, and shows it.
    void show(const std::string& controlXml, NSObject& owner) {
        ASSERT_TRUE(load(formXml(itemXml(widgetXml("QLineEdit", "first", {})) +
                                 itemXml(controlXml) + itemXml(widgetXml("QLineEdit", "last", {}))),
                         owner))
            << testing::PrintToString(errors_);
        nib_.topLevelWidget()->show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(nib_.topLevelWidget()));
    }

    template <class Widget = QWidget>
    Widget* find(const char* name) {
        return nib_.topLevelWidget()->findChild<Widget*>(name);
    }

    std::string path_ = std::string(std::getenv("KORVEX_TEST_SANDBOX")) + "/form.ui";
    std::vector<std::string> errors_;

private:
    int argc_ = 1;
    char name_[5] = "test";
    char* argv_[2] = {name_, nullptr};
    QApplication application_{argc_, argv_};

protected:
    NSNib nib_;
};
