// SPDX-License-Identifier: MIT
#pragma once

#include "platform/AppKit/NSView.h"
#include "platform/AppKit/UserMessages.h"
#include "src/pane/PreferenceWrangler.h"
#include "src/pane/VLDKorvexPane.h"
#include "src/store/prefs.h"
#include "tests/support/AgentTest.h"

#include <QAbstractButton>
#include <QAbstractScrollArea>
#include <QAccessible>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QStackedWidget>
#include <QTest>

#include <clocale>
#include <memory>
#include <vector>

/// Opens the built pane from its real bundle in this process, with its agent. A test opens
/// it when it wants. A test that calls openWithAgent fails when the agent has received anything
/// that it didn't expect.
class PaneTest : public AgentTest<QApplication> {
protected:
    PaneTest() {
        std::setlocale(LC_NUMERIC, "C"); // which QApplication has changed
        registerCurrentProcess(fourCharCode("APPL"), fourCharCode("sprf"));
    }

    void TearDown() override {
        if (pane_ && hasAgent_)
            EXPECT_THAT(remainingMasks(), testing::IsEmpty());
        else if (pane_)
            putAway();
    }

    /// Makes the pane and shows it, as the host does.
    void open(const char* bundle = KORVEX_BUNDLE) {
        pane_ = std::make_unique<VLDKorvexPane>();
        bundle_ = CFBundleCreate(CFURLCreateFromFileSystemRepresentation(bundle, true).get());
        pane_->initWithBundle(bundle_.get());
        std::vector<std::string> errors;
        ASSERT_TRUE(pane_->loadMainView(errors)) << testing::PrintToString(errors);
        pane_->mainViewDidLoad();
        pane_->willSelect();
        window()->show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(window()));
        pane_->didSelect();
    }

    /// Opens the pane with the agent running. The log then begins after the opening.
    void openWithAgent() {
        startAgent();
        open();
        ASSERT_EQ(agentLog_.nextName(), "PPop");
        hasAgent_ = true;
    }

    void putAway() {
        pane_->didUnselect();
        pane_.reset();
    }

    QWidget* window() const { return pane_->mainView()->widget(); }

    /// The form's widget with that name, made visible.
    template <class Widget = QWidget>
    Widget* find(const char* name) {
        auto* widget = window()->findChild<Widget*>(QString::fromLatin1(name));
        if (!widget) {
            ADD_FAILURE() << "the form has no " << name;
            std::abort();
        }
        auto* pages = window()->findChild<QStackedWidget*>(QStringLiteral("prefsTabs"));
        for (int i = 0; i < pages->count(); ++i)
            if (pages->widget(i)->isAncestorOf(widget))
                pages->setCurrentIndex(i);
        for (QWidget* parent = widget->parentWidget(); parent; parent = parent->parentWidget())
            if (auto* area = qobject_cast<QScrollArea*>(parent))
                area->ensureWidgetVisible(widget);
        return widget;
    }

    /// Clicks where most styles expect it: at the left, where a check box has its mark.
    void click(const char* name, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        auto* widget = find(name);
        const QPoint place(std::min(8, widget->width() / 2), widget->height() / 2);
        QTest::mouseClick(widget, Qt::LeftButton, modifiers, place);
    }

    /// Acts like assistive technology.
    static void act(QAccessibleInterface* control) {
        auto* actions = control->actionInterface();
        actions->doAction(actions->actionNames().front());
    }

    static void act(QWidget* widget) { act(QAccessible::queryAccessibleInterface(widget)); }

    /// The text of the strip at the window's bottom. Empty without one.
    static std::string told() { return currentMessage() ? currentMessage()->message.text : ""; }

    static void pressInStrip() {
        const auto press = currentMessage()->message.buttons.at(0).press;
        withdrawMessage(std::string(currentMessage()->topic));
        if (press)
            press();
    }

    /// The masks that the agent has received since the last event read. Puts the pane away, so that
    /// nothing can follow.
    std::vector<ChangeMask> remainingMasks() {
        putAway();
        std::vector<ChangeMask> masks;
        for (auto event = agentLog_.next(); event["event"] == "SAPr"; event = agentLog_.next())
            masks.push_back(static_cast<ChangeMask>(event["mask"].toInteger()));
        return masks;
    }

    CFRef<CFBundle> bundle_;
    std::unique_ptr<VLDKorvexPane> pane_;
    bool hasAgent_ = false;
};
