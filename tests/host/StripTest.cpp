// SPDX-License-Identifier: MIT
#include "host/Strip.h"

#include "platform/AppKit/UserMessages.h"
#include "tests/support/ApplicationTest.h"

#include <QApplication>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QVBoxLayout>

namespace {

using StripTest = ApplicationTest<QApplication>;

TEST_F(StripTest, TheKeyboardGoesThereByF6AndBackToWhereItWas) {
    QWidget window;
    auto* rows = new QVBoxLayout(&window);
    QLineEdit first, last;
    rows->addWidget(&first);
    rows->addWidget(&last);
    auto* strip = new Strip(&window);
    rows->addWidget(strip);
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    for (QLineEdit* field : {&first, &last})
        for (const char* leave : {"F6", "Hide this", "Undo"}) {
            SCOPED_TRACE(leave);
            tellUser("test", {.text = "What happened", .buttons = {{"Undo", {}}}});
            QTest::qWait(0); // its buttons show
            field->setFocus();
            QTest::keyClick(field, Qt::Key_F6);
            auto* button = qobject_cast<QPushButton*>(QApplication::focusWidget());
            ASSERT_TRUE(button && strip->isAncestorOf(button));
            EXPECT_EQ(button->text(), "Undo");
            for (auto* each : strip->findChildren<QPushButton*>())
                if (each->isVisible() && each->text() == leave)
                    button = each;
            button->setFocus();
            QTest::keyClick(button, leave[0] == 'F' ? Qt::Key_F6 : Qt::Key_Space);
            EXPECT_EQ(QApplication::focusWidget(), field);
            withdrawMessage("test");
        }
}

} // namespace
