#pragma once

#include "platform/AppKit/NSPopUpButton.h"
#include "src/prefpane/NumberController.h"
#include "src/prefpane/PaletteView.h"
#include "src/settings.h"

#include <array>
#include <vector>

class BumperController;
class CFType;
class HotKeyView;
class NSButton;
class NSColorWell;
class NSMatrix;
class NSMenuItem;
class NSTabView;
class NSTextField;
class SampleScanView;

/// The pane's one controller: it binds every control to its field of `prefs`, shows the fields in
/// the controls, and carries every edit to the store and to the agent. The interface file makes it
/// and fills its outlets; each is named after the setting that it shows.
class PreferenceWrangler final : public NSObject,
                                 public NumberChangeTarget,
                                 public PaletteViewTarget,
                                 public NSMenuDelegate {
public:
    PreferenceWrangler() = default;
    ~PreferenceWrangler() override;

    std::span<const NSOutlet> outlets() const override;
    std::span<const NSAction> actions() const override;
    void awakeFromNib() override;

    // PreferenceWrangler.cpp: set-up and loading

    /// Binds the controls. Run when the interface is loaded and again before every visit; running
    /// it again changes nothing.
    void setup();
    /// Shows every field of `prefs` in its control. Reports nothing, but for a custom scan area
    /// that is in use while it is empty: that is switched off, and the change reported.
    void loadValues();
    /// Keeps the name, borrowed, if it is a string; anything else leaves the previous one.
    void setHelpBookName(const CFType* name);
    void showHelp(NSButton* sender);

    // PreferenceWranglerChanges.cpp: edits

    /// Brings dependent controls up to date, marks the record for saving and sends it to the agent.
    /// An empty mask is a change like any other.
    void changed(ChangeMask changes) override;
    void updateUIForChanges(ChangeMask changes);

    void updateMasterOnOff();
    /// The agent reported its state: it is kept, and not sent back.
    void setMasterOnOff(bool on);
    void updateTriggerUI();
    /// Makes the preview show that line. Doesn't redraw it.
    void showSampleLineType(SInt32 type);
    void updateScanAreaRadios();

    void changedMasterOnOff(NSMatrix* sender);
    void changedUseScanArea(NSMatrix* sender);
    void changedTriggerOnRelease(NSMatrix* sender);
    void changedScanMode(NSMatrix* sender);
    void changedLineColor(NSColorWell* sender);

    // PreferenceWranglerHotKeys.cpp: hot keys

    // During a capture; they do nothing outside of one.
    void setHotKeyToNone(NSButton* sender);
    void setHotKeyToDefault(NSButton* sender);
    void cancelHotKeyEdit(NSButton* sender);

    // Of the menu beside a hot key, at any time.
    void captureHotKey(NSMenuItem* sender);
    void removeHotKey(NSMenuItem* sender);
    void resetHotKey(NSMenuItem* sender);

    /// The hot key that is captured into, or null.
    void setTargetHotKey(HotKeyView* view);
    void updateHotKeyUI();

    // PreferenceWranglerLaunch.cpp: launching at login

    /// Makes the system's login items agree with the setting, and shows both settings of the start.
    /// Without the agent's bundle the login items stay as they are.
    void updateLaunchUI();

    // PreferenceWranglerPalette.cpp: the palette's buttons. An edit leaves nothing selected.

    /// Adds an item for every action that has a title; choosing it sends the selector, with the
    /// action's number as the item's tag.
    void addActionMenuToCtl(NSPopUpButton* ctl, SEL selector);
    /// Gives the items of an action menu their icons, which are read only when it opens.
    void menuNeedsUpdate(NSPopUpButton* menu) override;
    /// The first empty slot after the given one, or kNoButton.
    SInt32 emptyPaletteBtnAfter(SInt32 slot) const;
    /// The first slot of the last run of empty ones, or kNoButton.
    SInt32 newPaletteBtnLocation() const;
    bool canAddPaletteBtn() const;
    /// Inserts the action before the selected button or, without room after it, takes the place for
    /// a new button. Beeps when there is none.
    void addPaletteBtn(NSMenuItem* sender);
    void setPaletteBtnAction(NSMenuItem* sender);
    void removePaletteButton(NSButton* sender);
    /// The next click in the palette view swaps the selected button with the one hit, or cancels.
    void swapPaletteButtonWith(NSButton* sender);
    void paletteBtnHit(PaletteView* view, SInt32 index) override;
    void resetPaletteButtons(NSButton* sender);
    void updatePaletteCtls();
    /// Ends a swap and clears the selection.
    void resetPaletteControls();
    void changedButtonShape(NSMatrix* sender);
    void changedButtonContentName(NSButton* sender);
    void changedButtonContentIcon(NSButton* sender);
    /// Folds the bumpers' pending steps into the button size.
    void changedButtonSizes();

    // PreferenceWranglerPointers.cpp: the choice of a pointer

    void previousPointer(NSButton* sender);
    void nextPointer(NSButton* sender);
    /// Chooses the next pointer, or the previous one, and reports the change, also when it is the
    /// same one. Does nothing when the agent has no pointers.
    void bumpPointer(bool forward);

    // PreferenceWranglerScanArea.cpp: the custom scan area

    /// Shows the area in words.
    void updateScanAreaText();
    /// Lets the user draw an area, and scans only that from then on, or all when it is empty.
    void setCustomScanArea(NSButton* sender);

private:
    /// A hot key and what stands beside it.
    struct HotKeyRow {
        HotKeyView* view;
        NSPopUpButton* menu;
        NSTextField* note;
    };

    /// In the record's order.
    std::array<HotKeyRow, kNumHotKeys> hotKeyRows() const;
    void setupHotKeys();
    void loadHotKeys();
    void updateHotKeyNotes();

    /// Shows the name of the pointer that the preview draws.
    void updatePointerName();
    /// The slot that is selected in the palette view, or kNoButton.
    SInt32 selectedSlot() const;
    void commitPaletteEdit();
    /// Says what is selected and what a swap waits for.
    void updatePalettePrompt();
    void loadButtonContent();
    void setButtonContent(UInt32 bit, NSButton* sender);

    // PreferenceWranglerSettings.cpp: what the table of settings says of numbers and check boxes

    template <std::size_t Row>
    struct SettingWiring;
    /// `own` and the entries of the settings' outlets, or of their check boxes' actions.
    template <class Entry>
    static std::vector<Entry> withSettings(std::span<const Entry> own);
    void setupNumbers();
    void loadNumbers();
    void loadFlags();
    void setFlag(const Setting& setting, const NSButton& sender);

    /// Each setting's control, by its row; null for one without an outlet in its row.
    std::array<NSObject*, kSettings.size()> settingControls_ = {};

    NSButton* activateAtLaunch_ = nullptr;
    NSPopUpButton* addButtonBtn_ = nullptr;
    NSButton* buttonContentIconCheck_ = nullptr;
    NSButton* buttonContentNameCheck_ = nullptr;
    BumperController* buttonHeight_ = nullptr;
    NSMatrix* buttonShapeRadios_ = nullptr;
    BumperController* buttonSize_ = nullptr;
    BumperController* buttonWidth_ = nullptr;
    NSButton* launchAtLogin_ = nullptr;
    NSColorWell* lineColor_ = nullptr;
    NSMatrix* masterOnOffRadios_ = nullptr;
    NSTextField* palettePrompt_ = nullptr;
    PaletteView* paletteView_ = nullptr;
    NSTextField* pointerName_ = nullptr;
    NSButton* removeButtonBtn_ = nullptr;
    NSButton* resetActionsBtn_ = nullptr;
    SampleScanView* sampleScanImage_ = nullptr;
    NSTextField* scanAreaText_ = nullptr;
    NSMatrix* scanModeRadios_ = nullptr;
    NSPopUpButton* setActionBtn_ = nullptr;
    NSButton* swapWithBtn_ = nullptr;
    NSTabView* prefsTabs_ = nullptr;
    NSMatrix* triggerOnReleaseRadios_ = nullptr;
    NSMatrix* useScanAreaRadios_ = nullptr;

    HotKeyView* masterOnOffKey_ = nullptr;
    HotKeyView* scanKey_ = nullptr;
    HotKeyView* cancelScanKey_ = nullptr;
    HotKeyView* showPreferencesKey_ = nullptr;
    HotKeyView* scanKey2_ = nullptr;
    NSPopUpButton* masterOnOffKeyBtn_ = nullptr;
    NSPopUpButton* scanKeyBtn_ = nullptr;
    NSPopUpButton* cancelScanKeyBtn_ = nullptr;
    NSPopUpButton* showPreferencesKeyBtn_ = nullptr;
    NSPopUpButton* scanKey2Btn_ = nullptr;
    NSTextField* masterOnOffKeyNote_ = nullptr;
    NSTextField* scanKeyNote_ = nullptr;
    NSTextField* cancelScanKeyNote_ = nullptr;
    NSTextField* showPreferencesKeyNote_ = nullptr;
    NSTextField* scanKey2Note_ = nullptr;
    NSTextField* notEditingKeyPrompt_ = nullptr;
    NSTextField* editingKeyPrompt1_ = nullptr;
    NSButton* cancelEditBtn_ = nullptr;
    NSButton* defaultKeyBtn_ = nullptr;
    NSButton* noKeyBtn_ = nullptr;
    HotKeyView* targetHotKey_ = nullptr;

    // Steps of the button size that changedButtonSizes has yet to apply; 0 but while it is called.
    SInt32 buttonSizeChange_ = 0;
    SInt32 buttonWidthChange_ = 0;
    SInt32 buttonHeightChange_ = 0;
    SInt32 firstBtnToSwap_ = kNoButton; ///< the slot that a swap began with

    const CFString* helpBookName_ = nullptr; ///< the bundle's own; null: no book
};

/// The one wrangler; null until its set-up has run once.
extern PreferenceWrangler* theWrangler;

/// The running agent was switched on or off. Does nothing while there is no wrangler.
void wranglerSetMasterOnOff(bool on);
