#include "src/prefpane/PreferenceWrangler.h"

#include "platform/AppKit/NSButton.h"
#include "platform/AppKit/NSColorWell.h"
#include "platform/AppKit/NSMatrix.h"
#include "platform/AppKit/NSPopUpButton.h"
#include "platform/AppKit/NSTabView.h"
#include "platform/AppKit/NSTextField.h"
#include "platform/HIToolbox/AppleHelp.h"
#include "src/prefpane/BumperController.h"
#include "src/prefpane/HotKeyView.h"
#include "src/prefpane/SampleScanView.h"
#include "src/prefpane/SliderController.h"
#include "src/prefpane/palutil.h"

NS_REGISTER_CLASS(PreferenceWrangler);

PreferenceWrangler* theWrangler = nullptr;

PreferenceWrangler::~PreferenceWrangler() {
    if (theWrangler != this)
        return;
    theWrangler = nullptr;
    NumberController::setChangeTarget(nullptr);
}

void wranglerSetMasterOnOff(bool on) {
    if (theWrangler)
        theWrangler->setMasterOnOff(on);
}

std::span<const NSOutlet> PreferenceWrangler::outlets() const {
    using W = PreferenceWrangler;
    static constexpr NSOutlet own[] = {
        nsOutlet<&W::activateAtLaunch_>("activateAtLaunch"),
        nsOutlet<&W::addButtonBtn_>("addButtonBtn"),
        nsOutlet<&W::buttonContentIconCheck_>("buttonContentIconCheck"),
        nsOutlet<&W::buttonContentNameCheck_>("buttonContentNameCheck"),
        nsOutlet<&W::buttonHeight_>("buttonHeight"),
        nsOutlet<&W::buttonShapeRadios_>("buttonShapeRadios"),
        nsOutlet<&W::buttonSize_>("buttonSize"),
        nsOutlet<&W::buttonWidth_>("buttonWidth"),
        nsOutlet<&W::launchAtLogin_>("launchAtLogin"),
        nsOutlet<&W::lineColor_>("lineColor"),
        nsOutlet<&W::masterOnOffRadios_>("masterOnOffRadios"),
        nsOutlet<&W::palettePrompt_>("palettePrompt"),
        nsOutlet<&W::paletteView_>("paletteView"),
        nsOutlet<&W::pointerName_>("pointerName"),
        nsOutlet<&W::removeButtonBtn_>("removeButtonBtn"),
        nsOutlet<&W::resetActionsBtn_>("resetActionsBtn"),
        nsOutlet<&W::sampleScanImage_>("sampleScanImage"),
        nsOutlet<&W::scanAreaText_>("scanAreaText"),
        nsOutlet<&W::scanModeRadios_>("scanModeRadios"),
        nsOutlet<&W::setActionBtn_>("setActionBtn"),
        nsOutlet<&W::swapWithBtn_>("swapWithBtn"),
        nsOutlet<&W::prefsTabs_>("prefsTabs"),
        nsOutlet<&W::triggerOnReleaseRadios_>("triggerOnReleaseRadios"),
        nsOutlet<&W::useScanAreaRadios_>("useScanAreaRadios"),
        nsOutlet<&W::masterOnOffKey_>("masterOnOffKey"),
        nsOutlet<&W::masterOnOffKeyBtn_>("masterOnOffKeyBtn"),
        nsOutlet<&W::masterOnOffKeyNote_>("masterOnOffKeyNote"),
        nsOutlet<&W::scanKey_>("scanKey"),
        nsOutlet<&W::scanKeyBtn_>("scanKeyBtn"),
        nsOutlet<&W::scanKeyNote_>("scanKeyNote"),
        nsOutlet<&W::cancelScanKey_>("cancelScanKey"),
        nsOutlet<&W::cancelScanKeyBtn_>("cancelScanKeyBtn"),
        nsOutlet<&W::cancelScanKeyNote_>("cancelScanKeyNote"),
        nsOutlet<&W::showPreferencesKey_>("showPreferencesKey"),
        nsOutlet<&W::showPreferencesKeyBtn_>("showPreferencesKeyBtn"),
        nsOutlet<&W::showPreferencesKeyNote_>("showPreferencesKeyNote"),
        nsOutlet<&W::scanKey2_>("scanKey2"),
        nsOutlet<&W::scanKey2Btn_>("scanKey2Btn"),
        nsOutlet<&W::scanKey2Note_>("scanKey2Note"),
        nsOutlet<&W::notEditingKeyPrompt_>("notEditingKeyPrompt"),
        nsOutlet<&W::editingKeyPrompt1_>("editingKeyPrompt1"),
        nsOutlet<&W::cancelEditBtn_>("cancelEditBtn"),
        nsOutlet<&W::defaultKeyBtn_>("defaultKeyBtn"),
        nsOutlet<&W::noKeyBtn_>("noKeyBtn"),
    };
    static const auto table = withSettings<NSOutlet>(own);
    return table;
}

std::span<const NSAction> PreferenceWrangler::actions() const {
    using W = PreferenceWrangler;
    static constexpr NSAction own[] = {
        nsAction<&W::showHelp>("showHelp:"),
        nsAction<&W::changedMasterOnOff>("changedMasterOnOff:"),
        nsAction<&W::changedUseScanArea>("changedUseScanArea:"),
        nsAction<&W::changedTriggerOnRelease>("changedTriggerOnRelease:"),
        nsAction<&W::changedScanMode>("changedScanMode:"),
        nsAction<&W::changedLineColor>("changedLineColor:"),
        nsAction<&W::setCustomScanArea>("setCustomScanArea:"),
        nsAction<&W::setHotKeyToNone>("setHotKeyToNone:"),
        nsAction<&W::setHotKeyToDefault>("setHotKeyToDefault:"),
        nsAction<&W::cancelHotKeyEdit>("cancelHotKeyEdit:"),
        nsAction<&W::captureHotKey>("captureHotKey:"),
        nsAction<&W::removeHotKey>("removeHotKey:"),
        nsAction<&W::resetHotKey>("resetHotKey:"),
        nsAction<&W::addPaletteBtn>("addPaletteBtn:"),
        nsAction<&W::setPaletteBtnAction>("setPaletteBtnAction:"),
        nsAction<&W::removePaletteButton>("removePaletteButton:"),
        nsAction<&W::swapPaletteButtonWith>("swapPaletteButtonWith:"),
        nsAction<&W::resetPaletteButtons>("resetPaletteButtons:"),
        nsAction<&W::changedButtonShape>("changedButtonShape:"),
        nsAction<&W::changedButtonContentName>("changedButtonContentName:"),
        nsAction<&W::changedButtonContentIcon>("changedButtonContentIcon:"),
        nsAction<&W::previousPointer>("previousPointer:"),
        nsAction<&W::nextPointer>("nextPointer:"),
    };
    static const auto table = withSettings<NSAction>(own);
    return table;
}

void PreferenceWrangler::awakeFromNib() {
    setup();
}

void PreferenceWrangler::setup() {
    NumberController::setChangeTarget(this);

    setupNumbers();

    const struct {
        BumperController* controller;
        SInt32* pending;
        ChangeMask changes;
    } bumpers[] = {
        {buttonHeight_, &buttonHeightChange_, kChangeButtonHeightBump},
        {buttonSize_, &buttonSizeChange_, kChangeButtonSizeBump},
        {buttonWidth_, &buttonWidthChange_, kChangeButtonWidthBump},
    };

    for (const auto& [controller, pending, changes] : bumpers)
        controller->setKind(kNumberKindSInt32, pending, -10, 10, 1, changes);

    paletteView_->setTarget(this);
    addActionMenuToCtl(addButtonBtn_, selector("addPaletteBtn:"));
    addActionMenuToCtl(setActionBtn_, selector("setPaletteBtnAction:"));
    setupHotKeys();
    theWrangler = this;
}

void PreferenceWrangler::loadValues() {
    loadNumbers();
    for (NumberController* bumper : {buttonHeight_, buttonSize_, buttonWidth_})
        bumper->update();

    updateMasterOnOff();
    scanModeRadios_->selectCellWithTag(prefs.scanMode);
    triggerOnReleaseRadios_->selectCellWithTag(prefs.triggerOnRelease != 0);
    buttonShapeRadios_->selectCellWithTag(static_cast<int>(prefs.buttonShape));
    updateScanAreaRadios();
    updateScanAreaText();
    updateLaunchUI();

    loadFlags();
    loadButtonContent();
    loadHotKeys();
    lineColor_->setColor(NSColor::colorWithDeviceRed(prefs.lineColor.red / 255.0,
                                                     prefs.lineColor.green / 255.0,
                                                     prefs.lineColor.blue / 255.0, 1.0));
    showSampleLineType(kSampleScanLine);
    updatePointerName();
    buttonHeightChange_ = buttonWidthChange_ = buttonSizeChange_ = 0;
    resetPaletteControls();
    updateTriggerUI();
}

void PreferenceWrangler::setHelpBookName(const CFType* name) {
    if (const auto* string = dynamicCFCast<CFString>(name))
        helpBookName_ = string;
}

void PreferenceWrangler::showHelp(NSButton*) {
    if (helpBookName_)
        AHGotoPage(helpBookName_, nullptr, nullptr);
}
