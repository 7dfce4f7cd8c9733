// SPDX-License-Identifier: MIT
#include "host/Sections.h"

#include "tests/support/ApplicationTest.h"

#include <QApplication>
#include <QStackedWidget>
#include <QVBoxLayout>

namespace {

class SectionsTest : public ApplicationTest<QApplication> {
protected:
    SectionsTest() {
        new QVBoxLayout(&pane_);
        pane_.layout()->addWidget(&pages_);
        for (const char* name : {"Scanning", "Hot keys"}) {
            auto* page = new QWidget;
            page->setProperty("section", name);
            pages_.addWidget(page);
        }
    }

    QWidget pane_;
    QStackedWidget pages_;
};

TEST_F(SectionsTest, TheLastOneIsTheOneThatWasKept) {
    EXPECT_TRUE(showSection(&pane_, "last"));
    EXPECT_EQ(pages_.currentIndex(), 0) << "none was kept";
    EXPECT_TRUE(showSection(&pane_, "HOT-keys"));
    EXPECT_EQ(pages_.currentIndex(), 1);
    keepSection(&pane_);
    EXPECT_TRUE(showSection(&pane_, "scanning"));
    EXPECT_FALSE(showSection(&pane_, "nowhere"));
    EXPECT_EQ(pages_.currentIndex(), 0);
    EXPECT_TRUE(showSection(&pane_, "last"));
    EXPECT_EQ(pages_.currentIndex(), 1);
}

} // namespace
