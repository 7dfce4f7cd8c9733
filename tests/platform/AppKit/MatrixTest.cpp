#include "tests/platform/AppKit/TestForm.h"

#include <QRadioButton>

namespace {

/// Three cells above one another with the tags 2, 0 and 1.
class MatrixTest : public FormTest {
protected:
    void SetUp() override {
        std::string cells;
        for (const char* tag : {"2", "0", "1"})
            cells += itemXml(widgetXml("QRadioButton", std::string("cell") + tag,
                                       {{"tag", tag}, {"text", tag}}));
        show(widgetXml("QGroupBox", "matrix",
                       {{"customClass", "NSMatrix"}, {"outlet", "control"}, {"action", "acted:"}},
                       "<layout class=\"QVBoxLayout\">" + cells + "</layout>"),
             owner_);
    }

    QRadioButton* cell(int tag) {
        return find<QRadioButton>(("cell" + std::to_string(tag)).c_str());
    }

    void click(int tag, Qt::KeyboardModifiers modifiers = {}) {
        QTest::mouseClick(cell(tag), Qt::LeftButton, modifiers, {8, cell(tag)->height() / 2});
    }

    /// What the user's doing selected, and how often the action was sent for it.
    std::pair<int, int> outcome() {
        return {owner_.control->selectedTag(), std::exchange(owner_.sent, 0)};
    }

    ControlOwner<NSMatrix> owner_;
};

TEST_F(MatrixTest, SelectingFromCodeSendsNothing) {
    EXPECT_EQ(owner_.control->selectedTag(), -1);
    EXPECT_TRUE(owner_.control->selectCellWithTag(1));
    EXPECT_FALSE(owner_.control->selectCellWithTag(3));
    EXPECT_EQ(outcome(), std::pair(1, 0));
    EXPECT_EQ(owner_.control->cellWithTag(3), nullptr);
}

TEST_F(MatrixTest, ClicksSendAlsoOnTheSelectedCell) {
    click(0);
    EXPECT_EQ(outcome(), std::pair(0, 1));
    click(0);
    EXPECT_EQ(outcome(), std::pair(0, 1));
    click(2, Qt::AltModifier);
    EXPECT_EQ(outcome(), std::pair(2, 1));
}

TEST_F(MatrixTest, ArrowsSelectAndSpaceSendsAgain) {
    owner_.control->selectCellWithTag(2);
    cell(2)->setFocus();

    const struct {
        Qt::Key key;
        int tag;
    } kTable[] = {{Qt::Key_Down, 0}, {Qt::Key_Down, 1}, {Qt::Key_Up, 0}, {Qt::Key_Space, 0}};

    for (const auto& row : kTable) {
        QTest::keyClick(QApplication::focusWidget(), row.key);
        EXPECT_EQ(outcome(), std::pair(row.tag, 1));
        EXPECT_TRUE(cell(row.tag)->hasFocus());
    }
}

TEST_F(MatrixTest, TabStopsOnceAtTheSelectedCell) {
    const auto tab = [&] {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        return QApplication::focusWidget();
    };
    find("first")->setFocus();
    EXPECT_EQ(tab(), cell(2)) << "nothing is selected: the first cell";
    EXPECT_EQ(tab(), find("last"));
    owner_.control->selectCellWithTag(0);
    find("first")->setFocus();
    EXPECT_EQ(tab(), cell(0));
    EXPECT_EQ(tab(), find("last"));

    cell(0)->setFocus();
    owner_.control->selectCellWithTag(1);
    EXPECT_TRUE(cell(1)->hasFocus()) << "the focus goes with the selection";
}

TEST_F(MatrixTest, DisabledCellsAndMatrixIgnoreTheUser) {
    owner_.control->selectCellWithTag(2);
    owner_.control->cellWithTag(0)->setEnabled(false);
    click(0);
    EXPECT_EQ(outcome(), std::pair(2, 0));
    cell(2)->setFocus();
    QTest::keyClick(cell(2), Qt::Key_Down);
    EXPECT_EQ(outcome(), std::pair(1, 1)) << "the arrow passes over the disabled cell";

    owner_.control->setEnabled(false);
    EXPECT_TRUE(find("last")->hasFocus()) << "the focus isn't lost";
    click(2);
    EXPECT_EQ(outcome(), std::pair(1, 0));
    EXPECT_TRUE(owner_.control->cellWithTag(2)->isEnabled());
    owner_.control->setEnabled(true);
    EXPECT_FALSE(owner_.control->cellWithTag(0)->isEnabled());
}

} // namespace
