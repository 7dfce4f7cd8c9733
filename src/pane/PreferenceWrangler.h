// SPDX-License-Identifier: MIT
#pragma once

#include "src/controls/NumberController.h"
#include "src/firststeps/FirstStepsPage.h"
#include "src/link/Daemon.h"
#include "src/pane/DefaultMarks.h"
#include "src/pane/SwitchGuard.h"
#include "src/pane/area/ScanAreaChooser.h"
#include "src/pane/hotkeys/HotKeyEditor.h"
#include "src/pane/look/LineColorChooser.h"
#include "src/pane/palette/PaletteEditor.h"
#include "src/pane/pointers/PointerChooser.h"
#include "src/pane/profiles/ProfileEditor.h"
#include "src/pane/profiles/SettingsFiles.h"
#include "src/record/settings.h"
#include "src/store/history.h"
#include "src/tryout/TryPage.h"

#include <array>
#include <vector>

class CFType;
class NSButton;
class NSColorWell;
class NSMatrix;
class NSMenuItem;
class NSTabView;
class NSTextField;
class SampleScanView;

/// The pane's controller. It binds every control to its field of `prefs`, shows the fields in the
/// controls, and passes every edit to the store and the agent. The interface file makes it and
/// fills its outlets; each has the name of its setting.
class PreferenceWrangler final : public NSObject,
                                 public NumberChangeTarget,
                                 public TryPageTarget,
                                 public FirstStepsTarget,
                                 public ProfileTarget {
public:
    PreferenceWrangler() = default;
    ~PreferenceWrangler() override;

    std::span<const Outlet> outlets() const override;
    std::span<const Action> actions() const override;
    /// Sliders whose limits differ from their settings'.
    std::vector<std::string> layoutFaults() const override;
    void awakeFromNib() override;

    // PreferenceWrangler.cpp: set-up and loading

    /// Binds the controls. Called when the interface is loaded and before every visit; a second
    /// call changes nothing.
    void setup();
    /// Shows every field of `prefs` in its control and reports nothing. One exception: a custom
    /// scan area that is in use but empty is switched off, and that is reported.
    void loadValues() override;
    /// Sets the name, borrowed, if it is a string. Anything else is ignored.
    void setHelpBookName(const CFType* name);
    void showHelp(NSButton* sender);
    void showHelpPage(const CFString* page) override;
    void showFirstSteps(NSButton* sender);

    // PreferenceWranglerChanges.cpp: edits

    /// Updates dependent controls, marks the record for saving and sends it to the agent. An empty
    /// mask is a change like any other.
    void changed(ChangeMask changes) override;
    void updateUIForChanges(ChangeMask changes);

    void updateTriggerUI();
    /// Makes the preview show that line. Doesn't redraw it.
    void showSampleLineType(SInt32 type);

    void changedTriggerOnRelease(NSMatrix* sender);
    void changedScanMode(NSMatrix* sender);

    // PreferenceWranglerSwitch.cpp: on and off, and whether the switch is heard

    void updateMasterOnOff();
    /// Shows what the switch does now, as far as that is known, and says when nothing can scan.
    void updateMasterState();
    /// The agent has reported its state. It is stored and not sent back.
    void setMasterOnOff(bool on);
    /// Also starts an agent that doesn't run.
    void changedMasterOnOff(NSMatrix* sender);
    void switchOn();
    /// Before `prefs` are stored for good: undoes in them what would lock the user out and wasn't
    /// confirmed. The controls don't show it. Returns what has changed.
    ChangeMask settle();

    // PreferenceWranglerHistory.cpp: steps that can be undone, and changes of many settings at once

    /// Begins the visit's history with the present record.
    void beginHistory();
    /// Sets those settings to the record's values, as one change.
    void adopt(const SettingSet& settings, const PrefsRecord& record) override;
    void takeImport(const SettingsOffer& offer) override;
    /// Another profile is in use. That is no step by itself.
    void noteProfile() override;
    void changedElsewhere(const SettingSet& settings, const PrefsRecord& record);
    /// Undoes the last step, or does it again. Shows its control and says in words what has
    /// changed.
    void undo(NSButton* sender);

    void undoChange() override { undo(nullptr); }

    void redo(NSButton* sender);

    /// Makes the system's login items fit the setting, and shows both settings of the start.
    /// Without the agent's bundle the login items stay. An item that was switched off elsewhere
    /// stays too, unless the user has just switched the setting on.
    void updateLaunchUI();

    /// Offers to undo it.
    void resetPaletteButtons(NSButton* sender);

    // PreferenceWrangler.cpp: finding the speed of the line

    void findMySpeed(NSButton* sender);
    void openTryPage(NSWindow window) override;
    void takeTime(const Setting& setting, double seconds) override;

private:
    struct Tables;

    /// The pane's bundle; null while none is loaded.
    static const CFBundle* ownBundle();
    void setupMarks();
    /// Shows those settings in their controls. `anew`: also what lies outside of the record, such
    /// as displays and pointers' pictures.
    void showValues(const SettingSet& settings, bool anew);
    /// The part of changed() that the agent waits for: updates what must be right first, then the
    /// store's mark, then sends.
    void report(ChangeMask changes);
    void showChanges(ChangeMask changes);
    void noteStep();
    void showStep(const HistoryStep& step, const PrefsRecord& before, const PrefsRecord& after,
                  const char* pattern);
    void moveTo(NSView* view);
    void updateHistoryUI();
    /// The view that shows a setting. Null if it has no control.
    NSView* viewOf(std::size_t row) const;
    /// Call it after those fields were set from elsewhere. A record that is as stored needs no
    /// saving any more.
    void showAndReport(const SettingSet& settings);

    /// Sets those settings to the record's values and says what has changed.
    void putBack(const SettingSet& settings, const PrefsRecord& record);

    // PreferenceWranglerSettings.cpp: what the table of settings says of numbers and check boxes

    template <std::size_t Row>
    struct SettingWiring;
    /// `own`, and an entry for each setting's outlet or check box action.
    template <class Entry>
    static std::vector<Entry> withSettings(std::span<const Entry> own);
    void setupNumbers();
    void loadNumbers(const SettingSet& settings);
    void loadFlags();
    void setFlag(const Setting& setting, const NSButton& sender);

    /// Each setting's control, by its row. Null for a row without an outlet.
    std::array<NSObject*, kSettings.size()> settingControls_ = {};

    NSButton* activateAtLaunch_ = nullptr;
    NSButton* launchAtLogin_ = nullptr;
    NSMatrix* masterOnOffRadios_ = nullptr;
    NSTextField* masterState_ = nullptr;
    SampleScanView* sampleScanImage_ = nullptr;
    NSMatrix* scanModeRadios_ = nullptr;
    NSTabView* prefsTabs_ = nullptr;
    NSButton* redoBtn_ = nullptr;
    NSMatrix* triggerOnReleaseRadios_ = nullptr;
    NSButton* undoBtn_ = nullptr;

    History history_{prefs};
    DefaultMarks marks_;
    SwitchGuard guard_;
    AgentState shownAgent_ = AgentState::NotRunning; ///< as last told
    HotKeyEditor hotKeys_{*this};
    PaletteEditor palette_{*this};
    PointerChooser pointers_{*this};
    ProfileEditor profiles_{*this};
    SettingsFiles files_{*this};
    LineColorChooser lineColors_{*this};
    ScanAreaChooser scanAreas_{*this};

    const CFString* helpBookName_ = nullptr; ///< the bundle's; null: no book
    bool shownLaunchAtLogin_ = false;        ///< the setting when the login items were last updated
};

/// The only wrangler. Null until its first set-up.
extern PreferenceWrangler* theWrangler;

/// The running agent was switched on or off. Does nothing without a wrangler.
void wranglerSetMasterOnOff(bool on);

/// Shows beside the on/off control whether the agent runs.
void wranglerShowAgentState();
