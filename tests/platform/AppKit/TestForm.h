// SPDX-License-Identifier: MIT
#pragma once

#include "platform/AppKit/NSButton.h"
#include "platform/AppKit/NSNib.h"
#include "tests/support/ApplicationTest.h"

#include <QAccessible>
#include <QApplication>
#include <QPushButton>
#include <QTest>

#include <cstdlib>
#include <fstream>
#include <functional>

using Properties = std::vector<std::pair<std::string, std::string>>;

/// Properties of a control that is its owner's outlet and sends it its action; and other
/// properties.
inline Properties wired(Properties others = {}) {
    others.insert(others.end(), {{"outlet", "control"}, {"action", "acted:"}});
    return others;
}

/// A widget as Designer writes it, with these properties and contents.
inline std::string widgetXml(const std::string& type, const std::string& name,
                             const Properties& properties = {}, const std::string& contents = "") {
    std::string xml = "<widget class='" + type + "' name='" + name + "'>";
    for (const auto& [key, value] : properties)
        xml += "<property name='" + key + "' stdset='0'><string>" + value + "</string></property>";
    return xml + contents + "</widget>";
}

/// The widgets one above the other, or side by side in a "QHBoxLayout".
inline std::string layoutXml(const std::vector<std::string>& widgets,
                             const std::string& type = "QVBoxLayout") {
    std::string xml = "<layout class='" + type + "'>";
    for (const std::string& widget : widgets)
        xml += "<item>" + widget + "</item>";
    return xml + "</layout>";
}

inline std::string formXml(const std::vector<std::string>& widgets) {
    return "<ui version='4.0'><class>Form</class>" +
           widgetXml("QWidget", "form", {}, layoutXml(widgets)) + "</ui>";
}

/// The owner of a form with one control, its outlet. The control, or the items of its menu, send it
/// "acted:".
template <class Control, class Sender = Control>
class ControlOwner : public NSObject {
public:
    std::span<const Outlet> outlets() const override {
        static constexpr Outlet kOutlets[] = {outletRow<&ControlOwner::control>("control")};
        return kOutlets;
    }

    std::span<const Action> actions() const override {
        static constexpr Action kActions[] = {actionRow<&ControlOwner::acted>("acted:")};
        return kActions;
    }

    void acted(Sender* by) {
        ++sent;
        onAction(by);
    }

    Control* control = nullptr;
    int sent = 0;
    std::function<void(Sender*)> onAction = [](Sender*) {};
};

/// Runs Qt offscreen and loads forms made by the test.
class FormTest : public ApplicationTest<QApplication> {
protected:
    /// Loads and shows a form with this control between two line edits, wired to `owner`.
    void show(const std::string& controlXml, NSObject& owner) {
        std::ofstream(path_) << formXml(
            {widgetXml("QLineEdit", "first"), controlXml, widgetXml("QLineEdit", "last")});
        ASSERT_TRUE(nib_.instantiate(path_, owner, errors_)) << testing::PrintToString(errors_);
        nib_.topLevelWidget()->show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(nib_.topLevelWidget()));
    }

    template <class Widget = QWidget>
    Widget* find(const char* name) {
        return nib_.topLevelWidget()->findChild<Widget*>(name);
    }

    std::string path_ = std::string(std::getenv("KORVEX_TEST_SANDBOX")) + "/form.ui";
    std::vector<std::string> errors_;
    NSNib nib_;
};
