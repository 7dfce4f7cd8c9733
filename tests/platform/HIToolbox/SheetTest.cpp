// SPDX-License-Identifier: MIT
#include "platform/CoreFoundation/CFBundle.h"
#include "platform/HIToolbox/CommandEvents.h"
#include "platform/HIToolbox/IBCarbonRuntime.h"
#include "platform/HIToolbox/Sheets.h"
#include "platform/HIToolbox/detail/CarbonWindow.h"
#include "platform/HIToolbox/detail/HostedWindow.h"
#include "tests/platform/CoreFoundation/TestFiles.h"
#include "tests/support/ApplicationTest.h"

#include <QApplication>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

namespace {

constexpr char kForm[] =
    R"(<ui version="4.0"><class>Test</class><widget class="QWidget" name="Test">
  <widget class="QFrame" name="sheet">
   <property name="accessibleName"><string>A notice</string></property>
   <property name="accessibleDescription"><string>What it says</string></property>
   <layout class="QVBoxLayout">
    <item><widget class="QPushButton" name="open"/></item>
    <item><widget class="QPushButton" name="cancel">
     <property name="command" stdset="0"><string>Cncl</string></property>
     <property name="default"><bool>true</bool></property>
    </widget></item>
   </layout>
  </widget>
 </widget></ui>)";

/// A window with a field, and a sheet made from an interface file, which "Cncl" disposes of.
class SheetTest : public ApplicationTest<QApplication> {
protected:
    SheetTest() {
        content.resize(640, 480);
        content.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&content));
        field.setFocus();

        const auto folder = makeSandboxFolder("bundle");
        writeFile(folder / "Contents/Info.plist", dictionaryFile(""));
        writeFile(folder / "Contents/Resources/test.ui", kForm);
        const auto url = CFURLCreateFromFileSystemRepresentation(folder.c_str(), true);
        IBNibRef nib = nullptr;
        EXPECT_EQ(
            CreateNibReferenceWithCFBundle(CFBundleCreate(url.get()).get(), CFSTR("test"), &nib),
            noErr);
        EXPECT_EQ(CreateWindowFromNib(nib, CFSTR("sheet"), &sheet), noErr);
        DisposeNibReference(nib);
        constexpr EventTypeSpec kType{kEventClassCommand, kEventCommandProcess};
        InstallEventHandler(GetWindowEventTarget(sheet), takeCommand, 1, &kType, this, nullptr);
        cancel = sheet->widget().findChild<QPushButton*>(QStringLiteral("cancel"));
    }

    ~SheetTest() override {
        if (sheet)
            dispose();
    }

    void dispose() {
        HideSheetWindow(sheet);
        DisposeWindow(std::exchange(sheet, nullptr));
    }

    static OSStatus takeCommand(EventHandlerCallRef, EventRef, void* test) {
        static_cast<SheetTest*>(test)->dispose();
        return noErr;
    }

    QWidget content;
    QLineEdit field{&content};
    WindowRef sheet = nullptr;
    QPushButton* cancel = nullptr;
};

TEST_F(SheetTest, KeepsClicksAndTheKeyboardFromTheContentUntilReturnEndsIt) {
    ShowSheetWindow(sheet, windowRefOf(&content));
    for (const auto key : {Qt::Key_Tab, Qt::Key_Tab, Qt::Key_Backtab, Qt::Key_Backtab}) {
        EXPECT_TRUE(sheet->widget().isAncestorOf(content.focusWidget()));
        QTest::keyClick(content.focusWidget(), key);
    }
    field.setFocus(); // as a shortcut of the content's would
    EXPECT_TRUE(cancel->hasFocus());
    EXPECT_NE(content.childAt(field.geometry().center()), &field);
    QTest::keyClick(content.focusWidget(), Qt::Key_Return);
    EXPECT_EQ(sheet, nullptr);
    EXPECT_TRUE(field.hasFocus());
}

TEST_F(SheetTest, LeavesTheKeyboardToWhatKeepsIt) {
    field.setProperty("keepsKeyboard", true);
    ShowSheetWindow(sheet, windowRefOf(&content));
    SelectWindow(sheet);
    QTest::keyClick(content.focusWidget(), Qt::Key_Escape);
    EXPECT_NE(sheet, nullptr);
    EXPECT_TRUE(field.hasFocus());
    field.clearFocus(); // it has what it waited for
    EXPECT_TRUE(cancel->hasFocus());
    dispose();
    EXPECT_FALSE(field.hasFocus()) << "it doesn't begin to wait again";
}

} // namespace
