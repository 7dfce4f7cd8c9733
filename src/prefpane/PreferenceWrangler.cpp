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

void wranglerSetMasterOnOff(bool on) {
    if (theWrangler)
        theWrangler->setMasterOnOff(on);
}

std::span<const NSOutlet> PreferenceWrangler::outlets() const {
    using W = PreferenceWrangler;
    static constexpr NSOutlet table[] = {
        nsOutlet<&W::activateAtLaunch_>("activateAtLaunch"),
        nsOutlet<&W::addButtonBtn_>("addButtonBtn"),
        nsOutlet<&W::autoRepeatTime_>("autoRepeatTime"),
        nsOutlet<&W::borderGap_>("borderGap"),
        nsOutlet<&W::buttonContentIconCheck_>("buttonContentIconCheck"),
        nsOutlet<&W::buttonContentNameCheck_>("buttonContentNameCheck"),
        nsOutlet<&W::buttonGap_>("buttonGap"),
        nsOutlet<&W::buttonHeight_>("buttonHeight"),
        nsOutlet<&W::buttonShapeRadios_>("buttonShapeRadios"),
        nsOutlet<&W::buttonSize_>("buttonSize"),
        nsOutlet<&W::buttonWidth_>("buttonWidth"),
        nsOutlet<&W::canScanMenuBarCheck_>("canScanMenuBarCheck"),
        nsOutlet<&W::clickTime_>("clickTime"),
        nsOutlet<&W::guideTransparency_>("guideTransparency"),
        nsOutlet<&W::inverseReleaseTime_>("inverseReleaseTime"),
        nsOutlet<&W::launchAtLogin_>("launchAtLogin"),
        nsOutlet<&W::lineColor_>("lineColor"),
        nsOutlet<&W::lineScanCanEndKybdModeCheck_>("lineScanCanEndKybdModeCheck"),
        nsOutlet<&W::lineScanTime_>("lineScanTime"),
        nsOutlet<&W::lineThickness_>("lineThickness"),
        nsOutlet<&W::lineTransparency_>("lineTransparency"),
        nsOutlet<&W::masterOnOffRadios_>("masterOnOffRadios"),
        nsOutlet<&W::menuScanSpeedScaleFactor_>("menuScanSpeedScaleFactor"),
        nsOutlet<&W::minTriggerDuration_>("minTriggerDuration"),
        nsOutlet<&W::palettePrompt_>("palettePrompt"),
        nsOutlet<&W::paletteView_>("paletteView"),
        nsOutlet<&W::playClickSoundsCheck_>("playClickSoundsCheck"),
        nsOutlet<&W::playDragPrompts_>("playDragPrompts"),
        nsOutlet<&W::pointerScanTime_>("pointerScanTime"),
        nsOutlet<&W::afterClickDelay_>("afterClickDelay"),
        nsOutlet<&W::pointerName_>("pointerName"),
        nsOutlet<&W::preScanDelayTime_>("preScanDelayTime"),
        nsOutlet<&W::removeButtonBtn_>("removeButtonBtn"),
        nsOutlet<&W::resetActionsBtn_>("resetActionsBtn"),
        nsOutlet<&W::sampleScanImage_>("sampleScanImage"),
        nsOutlet<&W::scanAreaText_>("scanAreaText"),
        nsOutlet<&W::scanModeRadios_>("scanModeRadios"),
        nsOutlet<&W::setActionBtn_>("setActionBtn"),
        nsOutlet<&W::stepScanCancelTime_>("stepScanCancelTime"),
        nsOutlet<&W::swapWithBtn_>("swapWithBtn"),
        nsOutlet<&W::prefsTabs_>("prefsTabs"),
        nsOutlet<&W::triggerOnReleaseRadios_>("triggerOnReleaseRadios"),
        nsOutlet<&W::useScanAccelerationCheck_>("useScanAccelerationCheck"),
        nsOutlet<&W::useScanAreaRadios_>("useScanAreaRadios"),
        nsOutlet<&W::volume_>("volume"),
        nsOutlet<&W::wantHotKeyTriggerCheck_>("wantHotKeyTriggerCheck"),
        nsOutlet<&W::wantMouseClickTriggerCheck_>("wantMouseClickTriggerCheck"),
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
    return table;
}

std::span<const NSAction> PreferenceWrangler::actions() const {
    using W = PreferenceWrangler;
    static constexpr NSAction table[] = {
        nsAction<&W::showHelp>("showHelp:"),
        nsAction<&W::changedMasterOnOff>("changedMasterOnOff:"),
        nsAction<&W::changedWantMouseClickTrigger>("changedWantMouseClickTrigger:"),
        nsAction<&W::changedWantHotKeyTrigger>("changedWantHotKeyTrigger:"),
        nsAction<&W::changedUseScanArea>("changedUseScanArea:"),
        nsAction<&W::changedUseScanAcceleration>("changedUseScanAcceleration:"),
        nsAction<&W::changedTriggerOnRelease>("changedTriggerOnRelease:"),
        nsAction<&W::changedScanMode>("changedScanMode:"),
        nsAction<&W::changedPlayDragPrompts>("changedPlayDragPrompts:"),
        nsAction<&W::changedPlayClickSounds>("changedPlayClickSounds:"),
        nsAction<&W::changedLineScanCanEndKyndMode>("changedLineScanCanEndKyndMode:"),
        nsAction<&W::changedCanScanMenuBar>("changedCanScanMenuBar:"),
        nsAction<&W::changedLineColor>("changedLineColor:"),
        nsAction<&W::setCustomScanArea>("setCustomScanArea:"),
        nsAction<&W::setHotKeyToNone>("setHotKeyToNone:"),
        nsAction<&W::setHotKeyToDefault>("setHotKeyToDefault:"),
        nsAction<&W::cancelHotKeyEdit>("cancelHotKeyEdit:"),
        nsAction<&W::captureHotKey>("captureHotKey:"),
        nsAction<&W::removeHotKey>("removeHotKey:"),
        nsAction<&W::resetHotKey>("resetHotKey:"),
        nsAction<&W::changedLaunchAtLogin>("changedLaunchAtLogin:"),
        nsAction<&W::changedActivateAtLaunch>("changedActivateAtLaunch:"),
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
    return table;
}

void PreferenceWrangler::awakeFromNib() {
    setup();
}

void PreferenceWrangler::setup() {
    NumberController::setChangeTarget(this);

    struct SliderRow {
        SliderController* controller;
        void* field;
        double step;
        ChangeMask changes;
        const char* format;
    };

    constexpr auto kSeconds = "%5.1f sec";
    constexpr auto kMilliseconds = "%3.0f ms";
    constexpr auto kPercent = "%3.0f%%";
    const SliderRow sliders[] = {
        {autoRepeatTime_, &prefs.autoRepeatTime, 0.5, kChangeScanSpeed, kSeconds},
        {guideTransparency_, &prefs.lineGhostTransparency, 1.0, kChangeGuideLineLook, kPercent},
        {inverseReleaseTime_, &prefs.inverseReleaseTime, 0.5, kChangeTriggers, kSeconds},
        {stepScanCancelTime_, &prefs.stepScanCancelTime, 0.5, kChangeTriggers, kSeconds},
        {preScanDelayTime_, &prefs.preScanDelay, 0.5, kChangeTriggers, kSeconds},
        {lineScanTime_, &prefs.lineScanTime, 0.5, kChangeScanSpeed, kSeconds},
        {lineTransparency_, &prefs.lineTransparency, 1.0, kChangeScanLineLook, kPercent},
        {menuScanSpeedScaleFactor_, &prefs.menuScanSpeedScaleFactor, 5.0, kChangeScanSpeed,
         kPercent},
        {minTriggerDuration_, &prefs.minTriggerDuration, 0.5, kChangeTriggers, kSeconds},
        {pointerScanTime_, &prefs.pointerScanTime, 0.5, kChangeScanSpeed, kSeconds},
        {afterClickDelay_, &prefs.afterClickDelay, 0.5, kChangeTriggers, kSeconds},
        {clickTime_, &prefs.clickDuration, 1.0, kChangeScanSpeed, kMilliseconds},
    };
    for (const SliderRow& row : sliders)
        row.controller->setDoubleKindAt(row.field, row.step, row.changes, row.format);
    volume_->setKind(kNumberKindUInt32, &prefs.soundLevel, 1.0, kChangeSounds, "%3.0f");

    const struct {
        BumperController* controller;
        SInt32* value;
        double min, max;
        ChangeMask changes;
    } bumpers[] = {
        {borderGap_, &prefs.borderGap, 0, 100, kChangePalette},
        {buttonGap_, &prefs.buttonGap, 0, 100, kChangePalette},
        {lineThickness_, &prefs.lineThickness, 1, 50, kChangeScanLineLook | kChangeGuideLineLook},
        {buttonHeight_, &buttonHeightChange_, -10, 10, kChangeButtonHeightBump},
        {buttonSize_, &buttonSizeChange_, -10, 10, kChangeButtonSizeBump},
        {buttonWidth_, &buttonWidthChange_, -10, 10, kChangeButtonWidthBump},
    };

    for (const auto& row : bumpers)
        row.controller->setKind(kNumberKindSInt32, row.value, row.min, row.max, 1, row.changes);

    paletteView_->setTarget(this);
    addActionMenuToCtl(addButtonBtn_, selector("addPaletteBtn:"));
    addActionMenuToCtl(setActionBtn_, selector("setPaletteBtnAction:"));
    setupHotKeys();
    theWrangler = this;
}

void PreferenceWrangler::loadValues() {
    NumberController* const controllers[] = {
        autoRepeatTime_,
        clickTime_,
        guideTransparency_,
        preScanDelayTime_,
        inverseReleaseTime_,
        stepScanCancelTime_,
        lineScanTime_,
        lineTransparency_,
        menuScanSpeedScaleFactor_,
        minTriggerDuration_,
        pointerScanTime_,
        afterClickDelay_,
        volume_,
        borderGap_,
        buttonGap_,
        buttonHeight_,
        buttonSize_,
        buttonWidth_,
        lineThickness_,
    };
    for (NumberController* controller : controllers)
        controller->update();

    updateMasterOnOff();
    scanModeRadios_->selectCellWithTag(prefs.scanMode);
    triggerOnReleaseRadios_->selectCellWithTag(prefs.triggerOnRelease != 0);
    buttonShapeRadios_->selectCellWithTag(static_cast<int>(prefs.buttonShape));
    updateScanAreaRadios();
    updateScanAreaText();
    updateLaunchUI();

    const struct {
        NSButton* check;
        UInt32 state;
    } checks[] = {
        {canScanMenuBarCheck_, prefs.canScanMenuBar},
        {lineScanCanEndKybdModeCheck_, prefs.lineScanCanEndKybdMode},
        {playClickSoundsCheck_, prefs.playClickSounds},
        {playDragPrompts_, prefs.playDragPrompts},
        {useScanAccelerationCheck_, prefs.useScanAcceleration},
        {wantHotKeyTriggerCheck_, prefs.wantHotKeyTrigger},
        {wantMouseClickTriggerCheck_, prefs.wantMouseClickTrigger},
        {buttonContentIconCheck_, prefs.buttonContent & kButtonContentIcon},
        {buttonContentNameCheck_, prefs.buttonContent & kButtonContentName},
    };

    for (const auto& [check, state] : checks)
        check->setState(state ? NSOnState : NSOffState);

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
