#include "src/prefpane/PreferenceWrangler.h"

#include "platform/AppKit/NSButton.h"
#include "platform/AppKit/NSColorWell.h"
#include "platform/AppKit/NSMatrix.h"
#include "platform/AppKit/NSTabView.h"
#include "platform/AppKit/NSTextField.h"
#include "platform/HIToolbox/AppleHelp.h"
#include "src/prefpane/BumperController.h"
#include "src/prefpane/SampleScanView.h"
#include "src/prefpane/SliderController.h"

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
    using Keys = HotKeyEditor;
    using Palette = PaletteEditor;
    static constexpr NSOutlet own[] = {
        nsOutlet<&W::activateAtLaunch_>("activateAtLaunch"),
        nsOutlet<&W::palette_, &Palette::addButtonBtn>("addButtonBtn"),
        nsOutlet<&W::palette_, &Palette::buttonContentIconCheck>("buttonContentIconCheck"),
        nsOutlet<&W::palette_, &Palette::buttonContentNameCheck>("buttonContentNameCheck"),
        nsOutlet<&W::palette_, &Palette::buttonHeight>("buttonHeight"),
        nsOutlet<&W::palette_, &Palette::buttonShapeRadios>("buttonShapeRadios"),
        nsOutlet<&W::palette_, &Palette::buttonSize>("buttonSize"),
        nsOutlet<&W::palette_, &Palette::buttonWidth>("buttonWidth"),
        nsOutlet<&W::launchAtLogin_>("launchAtLogin"),
        nsOutlet<&W::lineColor_>("lineColor"),
        nsOutlet<&W::masterOnOffRadios_>("masterOnOffRadios"),
        nsOutlet<&W::masterState_>("masterState"),
        nsOutlet<&W::palette_, &Palette::palettePrompt>("palettePrompt"),
        nsOutlet<&W::palette_, &Palette::paletteView>("paletteView"),
        nsOutlet<&W::pointers_, &PointerChooser::pointerName>("pointerName"),
        nsOutlet<&W::palette_, &Palette::removeButtonBtn>("removeButtonBtn"),
        nsOutlet<&W::palette_, &Palette::resetActionsBtn>("resetActionsBtn"),
        nsOutlet<&W::sampleScanImage_>("sampleScanImage"),
        nsOutlet<&W::scanAreaText_>("scanAreaText"),
        nsOutlet<&W::scanModeRadios_>("scanModeRadios"),
        nsOutlet<&W::palette_, &Palette::setActionBtn>("setActionBtn"),
        nsOutlet<&W::palette_, &Palette::swapWithBtn>("swapWithBtn"),
        nsOutlet<&W::prefsTabs_>("prefsTabs"),
        nsOutlet<&W::redoBtn_>("redoBtn"),
        nsOutlet<&W::triggerOnReleaseRadios_>("triggerOnReleaseRadios"),
        nsOutlet<&W::undoBtn_>("undoBtn"),
        nsOutlet<&W::useScanAreaRadios_>("useScanAreaRadios"),
        nsOutlet<&W::hotKeys_, &Keys::masterOnOff, &HotKeyRow::view>("masterOnOffKey"),
        nsOutlet<&W::hotKeys_, &Keys::masterOnOff, &HotKeyRow::menu>("masterOnOffKeyBtn"),
        nsOutlet<&W::hotKeys_, &Keys::masterOnOff, &HotKeyRow::note>("masterOnOffKeyNote"),
        nsOutlet<&W::hotKeys_, &Keys::scan, &HotKeyRow::view>("scanKey"),
        nsOutlet<&W::hotKeys_, &Keys::scan, &HotKeyRow::menu>("scanKeyBtn"),
        nsOutlet<&W::hotKeys_, &Keys::scan, &HotKeyRow::note>("scanKeyNote"),
        nsOutlet<&W::hotKeys_, &Keys::cancelScan, &HotKeyRow::view>("cancelScanKey"),
        nsOutlet<&W::hotKeys_, &Keys::cancelScan, &HotKeyRow::menu>("cancelScanKeyBtn"),
        nsOutlet<&W::hotKeys_, &Keys::cancelScan, &HotKeyRow::note>("cancelScanKeyNote"),
        nsOutlet<&W::hotKeys_, &Keys::showPreferences, &HotKeyRow::view>("showPreferencesKey"),
        nsOutlet<&W::hotKeys_, &Keys::showPreferences, &HotKeyRow::menu>("showPreferencesKeyBtn"),
        nsOutlet<&W::hotKeys_, &Keys::showPreferences, &HotKeyRow::note>("showPreferencesKeyNote"),
        nsOutlet<&W::hotKeys_, &Keys::scan2, &HotKeyRow::view>("scanKey2"),
        nsOutlet<&W::hotKeys_, &Keys::scan2, &HotKeyRow::menu>("scanKey2Btn"),
        nsOutlet<&W::hotKeys_, &Keys::scan2, &HotKeyRow::note>("scanKey2Note"),
        nsOutlet<&W::hotKeys_, &Keys::notEditingKeyPrompt>("notEditingKeyPrompt"),
        nsOutlet<&W::hotKeys_, &Keys::editingKeyPrompt1>("editingKeyPrompt1"),
        nsOutlet<&W::hotKeys_, &Keys::cancelEditBtn>("cancelEditBtn"),
        nsOutlet<&W::hotKeys_, &Keys::defaultKeyBtn>("defaultKeyBtn"),
        nsOutlet<&W::hotKeys_, &Keys::noKeyBtn>("noKeyBtn"),
    };
    static const auto table = withSettings<NSOutlet>(own);
    return table;
}

std::span<const NSAction> PreferenceWrangler::actions() const {
    using W = PreferenceWrangler;
    static constexpr NSAction own[] = {
        nsAction<&W::showHelp>("showHelp:"),
        nsAction<&W::undo>("undo:"),
        nsAction<&W::redo>("redo:"),
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
        nsAction<&W::findMySpeed>("findMySpeed:"),
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

    palette_.setup(*this, *this);
    hotKeys_.setup(*this, *this);
    theWrangler = this;
}

void PreferenceWrangler::loadValues() {
    loadNumbers();
    updateMasterOnOff();
    scanModeRadios_->selectCellWithTag(prefs.scanMode);
    triggerOnReleaseRadios_->selectCellWithTag(prefs.triggerOnRelease != 0);
    updateScanAreaRadios();
    updateScanAreaText();
    shownLaunchAtLogin_ = prefs.launchAtLogin != 0;
    updateLaunchUI();

    loadFlags();
    hotKeys_.load();
    lineColor_->setColor(NSColor::colorWithDeviceRed(prefs.lineColor.red / 255.0,
                                                     prefs.lineColor.green / 255.0,
                                                     prefs.lineColor.blue / 255.0, 1.0));
    showSampleLineType(kSampleScanLine);
    pointers_.updatePointerName();
    palette_.load();
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
