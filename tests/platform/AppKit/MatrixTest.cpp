// SPDX-License-Identifier: MIT
#include "tests/platform/AppKit/TestForm.h"

#include <QRadioButton>

namespace {

/// Three cells, one above the other, with the tags 2, 0 and 1.
class MatrixTest : public FormTest {
protected:
    void SetUp() override {
        std::vector<std::string> cells;
        for (const char* tag : {"2", "0", "1"})
            cells.push_back(widgetXml("QRadioButton", std::string("cell") + tag,
                                      {{"tag", tag}, {"text", tag}}));
        show(widgetXml("QGroupBox", "matrix", wired({{"customClass", "NSMatrix"}}),
                       layoutXml(cells)),
             owner_);
    }

    QRadioButton* cell(int tag) {
        return find<QRadioButton>(("cell" + std::to_string(tag)).c_str());
    }

    static void press(Qt::Key key) { QTest::keyClick(QApplication::focusWidget(), key); }

    /// The selected tag, and how often the action was sent.
    std::pair<int, int> outcome() {
        return {owner_.control->selectedTag(), std::exchange(owner_.sent, 0)};
    }

    ControlOwner<NSMatrix> owner_;
};

TEST_F(MatrixTest, TheUsersSelectingSendsAlsoForTheSelectedCell) {
    EXPECT_EQ(outcome(), std::pair(-1, 0));
    EXPECT_TRUE(owner_.control->selectCellWithTag(1));
    EXPECT_FALSE(owner_.control->selectCellWithTag(3));
    EXPECT_EQ(outcome(), std::pair(1, 0));
    for (int i = 0; i < 2; ++i) {
        QTest::mouseClick(cell(2), Qt::LeftButton, {}, {8, cell(2)->height() / 2});
        EXPECT_EQ(outcome(), std::pair(2, 1));
    }
    const std::pair<Qt::Key, int> kKeys[] = {
        {Qt::Key_Down, 0}, {Qt::Key_Down, 1}, {Qt::Key_Up, 0}, {Qt::Key_Space, 0}};
    for (const auto& [key, tag] : kKeys) {
        press(key);
        EXPECT_EQ(outcome(), std::pair(tag, 1));
        EXPECT_TRUE(cell(tag)->hasFocus());
    }
}

TEST_F(MatrixTest, TabStopsOnceAtTheSelectedCell) {
    for (const int stop : {2, 0}) { // while nothing is selected, the first cell
        find("first")->setFocus();
        press(Qt::Key_Tab);
        EXPECT_TRUE(cell(stop)->hasFocus()) << stop;
        press(Qt::Key_Tab);
        EXPECT_TRUE(find("last")->hasFocus());
        owner_.control->selectCellWithTag(0);
    }
    cell(0)->setFocus();
    owner_.control->selectCellWithTag(1);
    EXPECT_TRUE(cell(1)->hasFocus()) << "the focus goes with the selection";
}

} // namespace
