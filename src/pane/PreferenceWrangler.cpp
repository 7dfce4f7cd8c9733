// SPDX-License-Identifier: MIT
#include "src/pane/PreferenceWrangler.h"

#include "platform/AppKit/ClassRegistry.h"
#include "platform/AppKit/NSButton.h"
#include "platform/AppKit/NSColorWell.h"
#include "platform/AppKit/NSMatrix.h"
#include "platform/AppKit/NSTabView.h"
#include "platform/AppKit/NSTextField.h"
#include "platform/HIToolbox/AppleHelp.h"
#include "src/controls/BumperController.h"
#include "src/controls/SliderController.h"
#include "src/pane/look/SampleScanView.h"
#include "src/record/settingwords.h"

#include <algorithm>

REGISTER_CLASS(PreferenceWrangler);

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

void wranglerShowAgentState() {
    if (theWrangler)
        theWrangler->updateMasterState();
}

/// Outlets and actions of the interface file that aren't in the table of settings.
struct PreferenceWrangler::Tables {
    using W = PreferenceWrangler;
    using Area = ScanAreaChooser;
    using Keys = HotKeyEditor;
    using Palette = PaletteEditor;
    using Profiles = ProfileEditor;
    using Builder = HotKeyBuilder;

    static constexpr Outlet kOutlets[] = {
        outletRow<&W::activateAtLaunch_>("activateAtLaunch"),
        outletRow<&W::palette_, &Palette::addButtonBtn>("addButtonBtn"),
        outletRow<&W::palette_, &Palette::buttonContentIconCheck>("buttonContentIconCheck"),
        outletRow<&W::palette_, &Palette::buttonContentNameCheck>("buttonContentNameCheck"),
        outletRow<&W::palette_, &Palette::buttonHeight>("buttonHeight"),
        outletRow<&W::palette_, &Palette::buttonShapeRadios>("buttonShapeRadios"),
        outletRow<&W::palette_, &Palette::buttonSize>("buttonSize"),
        outletRow<&W::palette_, &Palette::buttonWidth>("buttonWidth"),
        outletRow<&W::launchAtLogin_>("launchAtLogin"),
        outletRow<&W::lineColors_, &LineColorChooser::lineColor>("lineColor"),
        outletRow<&W::lineColors_, &LineColorChooser::lineColorGrid>("lineColorGrid"),
        outletRow<&W::marks_, &DefaultMarks::scanningResetBtn>("scanningResetBtn"),
        outletRow<&W::marks_, &DefaultMarks::pressesResetBtn>("pressesResetBtn"),
        outletRow<&W::marks_, &DefaultMarks::lookResetBtn>("lookResetBtn"),
        outletRow<&W::marks_, &DefaultMarks::paletteResetBtn>("paletteResetBtn"),
        outletRow<&W::marks_, &DefaultMarks::generalResetBtn>("generalResetBtn"),
        outletRow<&W::marks_, &DefaultMarks::allResetBtn>("allResetBtn"),
        outletRow<&W::masterOnOffRadios_>("masterOnOffRadios"),
        outletRow<&W::masterState_>("masterState"),
        outletRow<&W::palette_, &Palette::palettePrompt>("palettePrompt"),
        outletRow<&W::palette_, &Palette::paletteView>("paletteView"),
        outletRow<&W::pointers_, &PointerChooser::pointerName>("pointerName"),
        outletRow<&W::pointers_, &PointerChooser::pointerGrid>("pointerGrid"),
        outletRow<&W::profiles_, &Profiles::menu>("profileMenu"),
        outletRow<&W::profiles_, &Profiles::grid>("profileGrid"),
        outletRow<&W::profiles_, &Profiles::compareMenu>("compareMenu"),
        outletRow<&W::profiles_, &Profiles::explanation>("profileExplanation"),
        outletRow<&W::profiles_, &Profiles::name>("profileName"),
        outletRow<&W::profiles_, &Profiles::useBtn>("useProfileBtn"),
        outletRow<&W::profiles_, &Profiles::updateBtn>("updateProfileBtn"),
        outletRow<&W::profiles_, &Profiles::renameBtn>("renameProfileBtn"),
        outletRow<&W::profiles_, &Profiles::deleteBtn>("deleteProfileBtn"),
        outletRow<&W::palette_, &Palette::removeButtonBtn>("removeButtonBtn"),
        outletRow<&W::palette_, &Palette::resetActionsBtn>("resetActionsBtn"),
        outletRow<&W::sampleScanImage_>("sampleScanImage"),
        outletRow<&W::scanAreas_, &Area::scanAreaText>("scanAreaText"),
        outletRow<&W::scanAreas_, &Area::scanAreaGrid>("scanAreaGrid"),
        outletRow<&W::scanAreas_, &Area::scanAreaLeft>("scanAreaLeft"),
        outletRow<&W::scanAreas_, &Area::scanAreaTop>("scanAreaTop"),
        outletRow<&W::scanAreas_, &Area::scanAreaWidth>("scanAreaWidth"),
        outletRow<&W::scanAreas_, &Area::scanAreaHeight>("scanAreaHeight"),
        outletRow<&W::scanModeRadios_>("scanModeRadios"),
        outletRow<&W::palette_, &Palette::setActionBtn>("setActionBtn"),
        outletRow<&W::palette_, &Palette::swapWithBtn>("swapWithBtn"),
        outletRow<&W::prefsTabs_>("prefsTabs"),
        outletRow<&W::redoBtn_>("redoBtn"),
        outletRow<&W::triggerOnReleaseRadios_>("triggerOnReleaseRadios"),
        outletRow<&W::undoBtn_>("undoBtn"),
        outletRow<&W::scanAreas_, &Area::useScanAreaRadios>("useScanAreaRadios"),
        outletRow<&W::hotKeys_, &Keys::masterOnOff, &HotKeyRow::view>("masterOnOffKey"),
        outletRow<&W::hotKeys_, &Keys::masterOnOff, &HotKeyRow::menu>("masterOnOffKeyBtn"),
        outletRow<&W::hotKeys_, &Keys::masterOnOff, &HotKeyRow::note>("masterOnOffKeyNote"),
        outletRow<&W::hotKeys_, &Keys::scan, &HotKeyRow::view>("scanKey"),
        outletRow<&W::hotKeys_, &Keys::scan, &HotKeyRow::menu>("scanKeyBtn"),
        outletRow<&W::hotKeys_, &Keys::scan, &HotKeyRow::note>("scanKeyNote"),
        outletRow<&W::hotKeys_, &Keys::cancelScan, &HotKeyRow::view>("cancelScanKey"),
        outletRow<&W::hotKeys_, &Keys::cancelScan, &HotKeyRow::menu>("cancelScanKeyBtn"),
        outletRow<&W::hotKeys_, &Keys::cancelScan, &HotKeyRow::note>("cancelScanKeyNote"),
        outletRow<&W::hotKeys_, &Keys::showPreferences, &HotKeyRow::view>("showPreferencesKey"),
        outletRow<&W::hotKeys_, &Keys::showPreferences, &HotKeyRow::menu>("showPreferencesKeyBtn"),
        outletRow<&W::hotKeys_, &Keys::showPreferences, &HotKeyRow::note>("showPreferencesKeyNote"),
        outletRow<&W::hotKeys_, &Keys::scan2, &HotKeyRow::view>("scanKey2"),
        outletRow<&W::hotKeys_, &Keys::scan2, &HotKeyRow::menu>("scanKey2Btn"),
        outletRow<&W::hotKeys_, &Keys::scan2, &HotKeyRow::note>("scanKey2Note"),
        outletRow<&W::hotKeys_, &Keys::notEditingKeyPrompt>("notEditingKeyPrompt"),
        outletRow<&W::hotKeys_, &Keys::editingKeyPrompt1>("editingKeyPrompt1"),
        outletRow<&W::hotKeys_, &Keys::cancelEditBtn>("cancelEditBtn"),
        outletRow<&W::hotKeys_, &Keys::defaultKeyBtn>("defaultKeyBtn"),
        outletRow<&W::hotKeys_, &Keys::noKeyBtn>("noKeyBtn"),
        outletRow<&W::hotKeys_, &Keys::builder, &Builder::builderTitle>("builderTitle"),
        outletRow<&W::hotKeys_, &Keys::builder, &Builder::builderCommand>("builderCommand"),
        outletRow<&W::hotKeys_, &Keys::builder, &Builder::builderControl>("builderControl"),
        outletRow<&W::hotKeys_, &Keys::builder, &Builder::builderShift>("builderShift"),
        outletRow<&W::hotKeys_, &Keys::builder, &Builder::builderOption>("builderOption"),
        outletRow<&W::hotKeys_, &Keys::builder, &Builder::builderRow>("builderRow"),
        outletRow<&W::hotKeys_, &Keys::builder, &Builder::builderKey>("builderKey"),
    };

    static constexpr Action kActions[] = {
        actionRow<&W::showHelp>("showHelp:"),
        actionRow<&W::showFirstSteps>("showFirstSteps:"),
        actionRow<&W::undo>("undo:"),
        actionRow<&W::redo>("redo:"),
        actionRow<&W::marks_, &DefaultMarks::resetSettings>("resetSettings:"),
        actionRow<&W::changedMasterOnOff>("changedMasterOnOff:"),
        actionRow<&W::scanAreas_, &Area::changedUseScanArea>("changedUseScanArea:"),
        actionRow<&W::changedTriggerOnRelease>("changedTriggerOnRelease:"),
        actionRow<&W::changedScanMode>("changedScanMode:"),
        actionRow<&W::lineColors_, &LineColorChooser::changedLineColor>("changedLineColor:"),
        actionRow<&W::scanAreas_, &Area::setCustomScanArea>("setCustomScanArea:"),
        actionRow<&W::hotKeys_, &Keys::setHotKeyToNone>("setHotKeyToNone:"),
        actionRow<&W::hotKeys_, &Keys::setHotKeyToDefault>("setHotKeyToDefault:"),
        actionRow<&W::hotKeys_, &Keys::cancelHotKeyEdit>("cancelHotKeyEdit:"),
        actionRow<&W::hotKeys_, &Keys::captureHotKey>("captureHotKey:"),
        actionRow<&W::hotKeys_, &Keys::removeHotKey>("removeHotKey:"),
        actionRow<&W::hotKeys_, &Keys::resetHotKey>("resetHotKey:"),
        actionRow<&W::hotKeys_, &Keys::chooseHotKey>("chooseHotKey:"),
        actionRow<&W::hotKeys_, &Keys::claimHotKey>("claimHotKey:"),
        actionRow<&W::hotKeys_, &Keys::restoreHotKey>("restoreHotKey:"),
        actionRow<&W::hotKeys_, &Keys::builder, &Builder::take>("buildHotKey:"),
        actionRow<&W::palette_, &Palette::addPaletteBtn>("addPaletteBtn:"),
        actionRow<&W::palette_, &Palette::setPaletteBtnAction>("setPaletteBtnAction:"),
        actionRow<&W::palette_, &Palette::removePaletteButton>("removePaletteButton:"),
        actionRow<&W::palette_, &Palette::swapPaletteButtonWith>("swapPaletteButtonWith:"),
        actionRow<&W::resetPaletteButtons>("resetPaletteButtons:"),
        actionRow<&W::palette_, &Palette::changedButtonShape>("changedButtonShape:"),
        actionRow<&W::palette_, &Palette::changedButtonContentName>("changedButtonContentName:"),
        actionRow<&W::palette_, &Palette::changedButtonContentIcon>("changedButtonContentIcon:"),
        actionRow<&W::findMySpeed>("findMySpeed:"),
        actionRow<&W::pointers_, &PointerChooser::previousPointer>("previousPointer:"),
        actionRow<&W::pointers_, &PointerChooser::nextPointer>("nextPointer:"),
        actionRow<&W::profiles_, &Profiles::chooseFromMenu>("chooseProfile:"),
        actionRow<&W::profiles_, &Profiles::compareWith>("compareProfile:"),
        actionRow<&W::profiles_, &Profiles::updateInUse>("keepProfile:"),
        actionRow<&W::profiles_, &Profiles::showSection>("showProfiles:"),
        actionRow<&W::profiles_, &Profiles::useChosen>("useProfile:"),
        actionRow<&W::profiles_, &Profiles::updateChosen>("updateProfile:"),
        actionRow<&W::profiles_, &Profiles::renameChosen>("renameProfile:"),
        actionRow<&W::profiles_, &Profiles::deleteChosen>("deleteProfile:"),
        actionRow<&W::profiles_, &Profiles::suggestName>("suggestProfileName:"),
        actionRow<&W::profiles_, &Profiles::saveNew>("saveProfile:"),
        actionRow<&W::profiles_, &Profiles::saveNew>("enterProfileName:"),
        actionRow<&W::files_, &SettingsFiles::importSettings>("importSettings:"),
        actionRow<&W::files_, &SettingsFiles::exportSettings>("exportSettings:"),
    };
};

std::span<const Outlet> PreferenceWrangler::outlets() const {
    static const auto table = withSettings<Outlet>(Tables::kOutlets);
    return table;
}

std::span<const Action> PreferenceWrangler::actions() const {
    static const auto table = withSettings<Action>(Tables::kActions);
    return table;
}

void PreferenceWrangler::awakeFromNib() {
    setup();
}

void PreferenceWrangler::setup() {
    NumberController::setChangeTarget(this);

    setupNumbers();

    palette_.setup(*this);
    hotKeys_.setup(*this);
    pointers_.setup();
    lineColors_.setup();
    scanAreas_.setup();
    setupMarks();
    profiles_.setup(*this);
    theWrangler = this;
}

void PreferenceWrangler::setupMarks() {
    constexpr std::size_t kKeys = offsetof(PrefsRecord, hotKeys);
    constexpr std::size_t kSize = offsetof(PrefsRecord, buttonSize);
    constexpr std::size_t kContent = offsetof(PrefsRecord, buttonContent);
    std::vector<DefaultMarks::Place> places = {
        {kKeys, sizeof(HotKey), hotKeys_.masterOnOff.view},
        {kKeys + sizeof(HotKey), sizeof(HotKey), hotKeys_.scan.view},
        {kKeys + 2 * sizeof(HotKey), sizeof(HotKey), hotKeys_.cancelScan.view},
        {kKeys + 3 * sizeof(HotKey), sizeof(HotKey), hotKeys_.showPreferences.view},
        {kKeys + 4 * sizeof(HotKey), sizeof(HotKey), hotKeys_.scan2.view},
        {kSize + offsetof(ButtonSize, width), sizeof(SInt16), palette_.buttonWidth->view()},
        {kSize + offsetof(ButtonSize, height), sizeof(SInt16), palette_.buttonHeight->view()},
        {kContent, 1, palette_.buttonContentIconCheck, kButtonContentIcon},
        {kContent, 1, palette_.buttonContentNameCheck, kButtonContentName},
    };

    SettingSet inParts;
    for (const std::size_t offset : {kKeys, kContent})
        inParts.set(rowOf(settingAt(offset)));
    for (std::size_t row = 0; row < kSettings.size(); ++row)
        if (NSView* view = viewOf(row); view && !inParts[row])
            places.push_back({kSettings[row].offset, kSettings[row].size, view});
    marks_.setup(std::move(places), *prefsTabs_,
                 [this](const SettingSet& settings, const PrefsRecord& record) {
                     putBack(settings, record);
                 });
}

void PreferenceWrangler::loadValues() {
    showValues(SettingSet().set(), true);
    marks_.update(true); // a group of radio buttons is marked at the one that is shown
}

void PreferenceWrangler::showValues(const SettingSet& settings, bool anew) {
    const ChangeMask changes = changesOf(settings); // some are slow to show
    loadNumbers(settings);
    updateMasterOnOff();
    scanModeRadios_->selectCellWithTag(prefs.scanMode);
    triggerOnReleaseRadios_->selectCellWithTag(prefs.triggerOnRelease != 0);
    palette_.loadShape();
    scanAreas_.updateRadios();
    scanAreas_.updateText();
    if (anew) {
        shownLaunchAtLogin_ = prefs.launchAtLogin != 0;
        updateLaunchUI();
    }

    loadFlags();
    palette_.loadContent();
    if (changes & kChangeHotKeys)
        hotKeys_.load();
    lineColors_.load();
    if (changes & kChangeScanArea)
        anew ? scanAreas_.load() : scanAreas_.update();
    if (anew) {
        showSampleLineType(kSampleScanLine);
        sampleScanImage_->setNeedsDisplay(true);
    }
    if (changes & kChangePointer)
        anew ? pointers_.load() : pointers_.updatePointerName();
    palette_.load();
    updateTriggerUI();
}

void PreferenceWrangler::setHelpBookName(const CFType* name) {
    if (const auto* string = dynamicCFCast<CFString>(name))
        helpBookName_ = string;
}

const CFBundle* PreferenceWrangler::ownBundle() {
    return CFBundleGetBundleWithIdentifier(
        CFSTR((std::string(kAgentBundleIDText) + ".PrefsPane").c_str()));
}

/// The page of the section, at the row that has the keyboard.
void PreferenceWrangler::showHelp(NSButton* sender) {
    const std::string topic = sender->window().helpTopic();
    const std::size_t mark = std::min(topic.find('#'), topic.size());
    const auto page = createFromUTF8(topic.substr(0, mark));
    const auto anchor = createFromUTF8(topic.substr(std::min(mark + 1, topic.size())));
    if (helpBookName_)
        AHGotoPage(helpBookName_, topic.empty() ? nullptr : page.get(),
                   mark < topic.size() ? anchor.get() : nullptr);
}

void PreferenceWrangler::showHelpPage(const CFString* page) {
    if (helpBookName_)
        AHGotoPage(helpBookName_, page, nullptr);
}

void PreferenceWrangler::showFirstSteps(NSButton* sender) {
    firstStepsOpen(ownBundle(), sender->window(), *this);
}

void PreferenceWrangler::findMySpeed(NSButton* sender) {
    openTryPage(sender->window());
}

void PreferenceWrangler::openTryPage(NSWindow window) {
    tryPageOpen(ownBundle(), window, *this);
}

void PreferenceWrangler::takeTime(const Setting& setting, double seconds) {
    setSettingNumber(setting, seconds, prefs);
    loadNumbers(SettingSet().set());
    changed(setting.changes);
}
