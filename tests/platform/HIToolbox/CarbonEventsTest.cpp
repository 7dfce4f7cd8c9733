#include "platform/HIToolbox/CarbonEvents.h"

#include <QApplication>
#include <QTest>
#include <QWidget>
#include <gmock/gmock.h>

namespace {

/// Notes the modifiers of each event that it handles.
class Witness final : public QWidget {
public:
    std::vector<UInt32> noted;

protected:
    void mousePressEvent(QMouseEvent*) override { note(); }

    void mouseReleaseEvent(QMouseEvent*) override { note(); }

    void keyPressEvent(QKeyEvent*) override { note(); }

    void keyReleaseEvent(QKeyEvent*) override { note(); }

private:
    void note() { noted.push_back(GetCurrentEventKeyModifiers()); }
};

TEST(CarbonEventsTest, ModifiersAreThoseOfTheEventBeingHandled) {
    int argc = 1;
    char name[] = "test";
    char* argv[] = {name, nullptr};
    const QApplication application(argc, argv);
    Witness witness;
    witness.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&witness));

    const struct {
        Qt::KeyboardModifiers held;
        UInt32 keys;
    } cases[] = {
        {Qt::NoModifier, 0},
        {Qt::AltModifier, optionKey},
        {Qt::NoModifier, 0}, // those of before aren't held any more
        {Qt::ShiftModifier, shiftKey},
        {Qt::ControlModifier, controlKey},
        {Qt::MetaModifier, cmdKey},
        {Qt::KeypadModifier | Qt::AltModifier, optionKey},
        {Qt::ControlModifier | Qt::AltModifier | Qt::ShiftModifier | Qt::MetaModifier, 0x1B00},
        {Qt::NoModifier, 0},
    };

    for (const auto& row : cases) {
        SCOPED_TRACE(row.keys);
        witness.noted.clear();
        QTest::mouseClick(&witness, Qt::LeftButton, row.held);
        EXPECT_THAT(witness.noted, testing::ElementsAre(row.keys, row.keys));
        QTest::sendKeyEvent(QTest::Press, &witness, Qt::Key_X, u'x', row.held);
        EXPECT_EQ(witness.noted.back(), row.keys); // the modifiers' own keys come before it
    }
}

} // namespace
