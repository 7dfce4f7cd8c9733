#include "platform/CoreFoundation/CFBundle.h"
#include "platform/HIToolbox/CommandEvents.h"
#include "platform/HIToolbox/Controls.h"
#include "platform/HIToolbox/EventTimers.h"
#include "platform/HIToolbox/HostedWindow.h"
#include "platform/HIToolbox/IBCarbonRuntime.h"
#include "platform/HIToolbox/NibWindow.h"
#include "platform/HIToolbox/Sheets.h"
#include "tests/platform/CoreFoundation/TestFiles.h"

#include <QAccessible>
#include <QApplication>
#include <QCheckBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QVBoxLayout>
#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

constexpr char kForm[] =
    R"(<ui version="4.0"><class>Test</class><widget class="QWidget" name="Test">
  <widget class="QFrame" name="sheet">
   <property name="accessibleName"><string>A notice</string></property>
   <property name="accessibleDescription"><string>What it says</string></property>
   <layout class="QVBoxLayout">
    <item><widget class="QCheckBox" name="box">
     <property name="controlSignature" stdset="0"><string>test</string></property>
     <property name="controlID" stdset="0"><number>7</number></property>
    </widget></item>
    <item><widget class="QPushButton" name="open">
     <property name="command" stdset="0"><string>Open</string></property>
    </widget></item>
    <item><widget class="QPushButton" name="cancel">
     <property name="command" stdset="0"><string>Cncl</string></property>
     <property name="cancelButton" stdset="0"><bool>true</bool></property>
     <property name="autoDefault"><bool>true</bool></property>
     <property name="default"><bool>true</bool></property>
    </widget></item>
   </layout>
  </widget>
 </widget></ui>)";

CFRef<CFBundle> makeBundle(const std::string& form) {
    static int count = 0;
    const auto folder = makeSandboxFolder("B" + std::to_string(++count));
    writeFile(folder / "Contents/Info.plist", dictionaryFile(""));
    writeFile(folder / "Contents/Resources/test.ui", form);
    return CFBundleCreate(CFURLCreateFromFileSystemRepresentation(folder.c_str(), true).get());
}

/// A window with two fields, and a sheet made from an interface file.
class SheetTest : public testing::Test {
protected:
    SheetTest() {
        auto* layout = new QVBoxLayout(&content);
        layout->addWidget(first = new QLineEdit);
        layout->addWidget(second = new QLineEdit);
        content.resize(640, 480);
        content.show();
        content.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&content));
        first->setFocus();

        IBNibRef nib = nullptr;
        EXPECT_EQ(CreateNibReferenceWithCFBundle(makeBundle(kForm).get(), CFSTR("test"), &nib),
                  noErr);
        EXPECT_EQ(CreateWindowFromNib(nib, CFSTR("sheet"), &sheet), noErr);
        DisposeNibReference(nib);
        constexpr EventTypeSpec kType{kEventClassCommand, kEventCommandProcess};
        InstallEventHandler(GetWindowEventTarget(sheet), takeCommand, 1, &kType, this, nullptr);
    }

    ~SheetTest() override {
        if (sheet)
            dispose();
    }

    void show() { ShowSheetWindow(sheet, windowRefOf(&content)); }

    void dispose() {
        HideSheetWindow(sheet);
        DisposeWindow(std::exchange(sheet, nullptr));
    }

    QPushButton* button(const char* name) {
        return sheet->widget().findChild<QPushButton*>(QLatin1String(name));
    }

    static OSStatus takeCommand(EventHandlerCallRef, EventRef event, void* test) {
        HICommand command{};
        std::size_t size = 0;
        EXPECT_EQ(GetEventParameter(event, kEventParamDirectObject, typeHICommand, nullptr,
                                    sizeof command, &size, &command),
                  noErr);
        EXPECT_EQ(size, 14u);
        auto* self = static_cast<SheetTest*>(test);
        self->commands.push_back(command.commandID);
        if (command.commandID == fourCharCode("Cncl"))
            self->dispose();
        return noErr;
    }

private:
    int argc_ = 1;
    char name_[5] = "test";
    char* argv_[2] = {name_, nullptr};
    QApplication application_{argc_, argv_};

protected:
    QWidget content;
    QLineEdit *first = nullptr, *second = nullptr;
    WindowRef sheet = nullptr;
    std::vector<UInt32> commands;
};

TEST_F(SheetTest, ButtonsSendTheirCommandsAndAControlCanKeepItsHit) {
    show();
    QTest::mouseClick(button("open"), Qt::LeftButton);
    EXPECT_THAT(commands, ElementsAre(fourCharCode("Open")));

    const ControlID id{fourCharCode("test"), 7}, other{fourCharCode("test"), 8};
    ControlRef box = nullptr, none = nullptr;
    EXPECT_EQ(GetControlByID(sheet, &id, &box), noErr);
    EXPECT_EQ(GetControlByID(sheet, &other, &none), errControlNotFound);
    EXPECT_EQ(GetControlByID(windowRefOf(&content), &id, &none), errControlNotFound);
    box->button().click();
    EXPECT_EQ(GetControl32BitValue(box), 1);

    const auto& controls = dynamic_cast<NibWindow*>(sheet)->controls();
    const ControlRef open = controls[1].get();
    constexpr EventTypeSpec kHit{kEventClassControl, kEventControlHit};
    EventHandlerRef handler = nullptr;
    InstallEventHandler(
        GetControlEventTarget(open),
        [](EventHandlerCallRef, EventRef, void*) -> OSStatus { return noErr; }, 1, &kHit, nullptr,
        &handler);
    button("open")->click();
    EXPECT_EQ(commands.size(), 1u) << "the control's handler kept it";
    RemoveEventHandler(handler);
    button("open")->click();
    EXPECT_EQ(commands.size(), 2u);
}

TEST_F(SheetTest, EscapeAndReturnPressTheirButtonsAndTheKeyboardGoesBack) {
    for (const auto key : {Qt::Key_Escape, Qt::Key_Return, Qt::Key_Space}) {
        second->setFocus();
        show();
        EXPECT_TRUE(button("cancel")->hasFocus());
        QTest::keyClick(content.focusWidget(), key);
        EXPECT_THAT(commands, ElementsAre(fourCharCode("Cncl"))) << key;
        EXPECT_EQ(sheet, nullptr);
        EXPECT_TRUE(second->hasFocus());
        commands.clear();

        IBNibRef nib = nullptr;
        CreateNibReferenceWithCFBundle(makeBundle(kForm).get(), CFSTR("test"), &nib);
        CreateWindowFromNib(nib, CFSTR("sheet"), &sheet);
        DisposeNibReference(nib);
        constexpr EventTypeSpec kType{kEventClassCommand, kEventCommandProcess};
        InstallEventHandler(GetWindowEventTarget(sheet), takeCommand, 1, &kType, this, nullptr);
    }
}

TEST_F(SheetTest, KeepsClicksAndTheKeyboardFromTheContent) {
    show();
    for (const bool forward : {true, false}) {
        for (int i = 0; i < 4; ++i) {
            QTest::keyClick(content.focusWidget(), Qt::Key_Tab,
                            forward ? Qt::NoModifier : Qt::ShiftModifier);
            EXPECT_TRUE(sheet->widget().isAncestorOf(content.focusWidget()));
        }
    }
    first->setFocus(); // as a shortcut of the content's would
    EXPECT_TRUE(button("cancel")->hasFocus());
    const QPoint place = first->mapTo(&content, first->rect().center());
    EXPECT_FALSE(first->isAncestorOf(content.childAt(place)) || content.childAt(place) == first);
}

TEST_F(SheetTest, LeavesTheKeyboardToWhatKeepsIt) {
    first->setProperty("keepsKeyboard", true);
    show();
    SelectWindow(sheet);
    EXPECT_TRUE(first->hasFocus());
    QTest::keyClick(first, Qt::Key_Escape);
    EXPECT_NE(sheet, nullptr);
    first->clearFocus(); // it has what it waited for
    EXPECT_TRUE(button("cancel")->hasFocus());
    dispose();
    EXPECT_FALSE(first->hasFocus()) << "it doesn't begin to wait again";
}

TEST_F(SheetTest, IsANotificationToAScreenReader) {
    show();
    auto* notice = QAccessible::queryAccessibleInterface(sheet->widget().parentWidget());
    EXPECT_EQ(notice->role(), QAccessible::Notification);
    EXPECT_EQ(notice->text(QAccessible::Name), QStringLiteral("A notice"));
    EXPECT_EQ(notice->text(QAccessible::Description), QStringLiteral("What it says"));
    EXPECT_FALSE(notice->state().invisible);
}

TEST_F(SheetTest, FitsItsParentWhichGrowsForIt) {
    content.resize(40, 30);
    show();
    const QRect place(sheet->widget().mapTo(&content, QPoint()), sheet->widget().size());
    EXPECT_TRUE(content.rect().contains(place));
    EXPECT_GE(place.height(), sheet->widget().minimumSizeHint().height());
    content.resize(900, 700);
    EXPECT_EQ(sheet->widget().mapTo(&content, sheet->widget().rect().center()).x() / 2,
              content.rect().center().x() / 2)
        << "in the middle again";
}

TEST_F(SheetTest, OutlivesItsParent) {
    auto parent = std::make_unique<QWidget>();
    parent->show();
    ShowSheetWindow(sheet, windowRefOf(parent.get()));
    parent.reset();
    EXPECT_EQ(sheet->widget().parentWidget(), nullptr);
    EXPECT_FALSE(sheet->widget().isVisible());
    ShowWindow(sheet); // on its own
    EXPECT_TRUE(sheet->widget().isVisible());
}

TEST_F(SheetTest, WhatIsMissingIsTold) {
    IBNibRef nib = nullptr;
    EXPECT_EQ(CreateNibReferenceWithCFBundle(makeBundle(kForm).get(), CFSTR("other"), &nib),
              kIBCarbonRuntimeCantFindNibFile);
    EXPECT_EQ(CreateNibReferenceWithCFBundle(makeBundle("no form").get(), CFSTR("test"), &nib),
              kIBCarbonRuntimeCantFindNibFile);
    EXPECT_EQ(CreateNibReference(CFSTR("test"), &nib), kIBCarbonRuntimeCantFindNibFile);
    ASSERT_EQ(CreateNibReferenceWithCFBundle(makeBundle(kForm).get(), CFSTR("test"), &nib), noErr);
    WindowRef window = nullptr;
    EXPECT_EQ(CreateWindowFromNib(nib, CFSTR("box"), &window), kIBCarbonRuntimeCantFindObject);
    DisposeNibReference(nib);
}

TEST_F(SheetTest, ATimerFiresOnceUnlessItIsRemoved) {
    static int fired;
    fired = 0;
    const auto fire = [](EventLoopTimerRef timer, void*) {
        ++fired;
        RemoveEventLoopTimer(timer);
    };
    EventLoopTimerRef removed = nullptr, kept = nullptr;
    InstallEventLoopTimer(GetMainEventLoop(), 0.01, 0, fire, nullptr, &removed);
    RemoveEventLoopTimer(removed);
    InstallEventLoopTimer(GetMainEventLoop(), 0.02, 0, fire, nullptr, &kept);
    EXPECT_TRUE(QTest::qWaitFor([] { return fired > 0; }, 10'000));
    QTest::qWait(50);
    EXPECT_EQ(fired, 1);
}

} // namespace
