// SPDX-License-Identifier: MIT
#pragma once

#include "platform/AppKit/NSNib.h"
#include "platform/AppKit/NSWindow.h"
#include "platform/CoreFoundation/CFBundle.h"
#include "platform/HIToolbox/EventTimers.h"
#include "src/firststeps/PressView.h"
#include "src/store/prefs.h"

class NSButton;
class NSMatrix;
class NSTextField;
class SliderController;

/// What the page needs from the pane.
class FirstStepsTarget {
public:
    /// The page has changed those fields.
    virtual void changed(ChangeMask changes) = 0;
    /// Opens a page of the help book. Null means the first one.
    virtual void showHelpPage(const CFString* page) = 0;
    /// The page has closed; the pane's own controls can show the values.
    virtual void loadValues() = 0;
    virtual void openTryPage(NSWindow window) = 0;

protected:
    ~FirstStepsTarget() = default;
};

/// The page at the first start. It answers presses of the switch. It asks how the switch is pressed
/// and how fast the line should be, and writes the fields of `prefs`. It says where help is and
/// what the agent is, and has a button for a first scan.
class FirstStepsPage final : public NSObject, public PressViewTarget {
public:
    /// The target isn't owned.
    FirstStepsPage(NSWindow window, FirstStepsTarget& target);
    ~FirstStepsPage() override;

    /// Shows the page in place of the window's content, from the form at `path`. False when that
    /// can't be loaded; `errors` then has the reasons.
    bool show(const std::string& path, std::vector<std::string>& errors);

    /// Shows the present values of `prefs` and the agent's state.
    void update();

    std::span<const Outlet> outlets() const override;
    std::span<const Action> actions() const override;

    void answered() override;

    void changedScanMode(NSMatrix* sender);
    void findMySpeed(NSButton* sender);
    void showHelp(NSButton* sender);
    void showAgentHelp(NSButton* sender);
    void hitByScan(NSButton* sender);
    void leave(NSButton* sender);

private:
    void close();

    NSNib nib_;
    NSWindow window_;
    FirstStepsTarget& target_;
    EventLoopTimerRef closing_ = nullptr; ///< null until the page is left
    bool wantsTry_ = false;

    PressView* pressView_ = nullptr;
    NSTextField* pressWords_ = nullptr;
    NSMatrix* scanModeRadios_ = nullptr;
    SliderController* lineScanTime_ = nullptr;
    NSTextField* agentState_ = nullptr;
    NSTextField* firstScanWords_ = nullptr;
    int hits_ = 0; ///< of the button to be hit by a scan
};

/// Opens the page in the window. Does nothing while it is open, or without its form.
void firstStepsOpen(const CFBundle* bundle, NSWindow window, FirstStepsTarget& target);

/// The same, but only at the user's first start: no setting is stored, the user hasn't left the
/// page before, and no administrator has switched it off.
void firstStepsOffer(const CFBundle* bundle, NSWindow window, FirstStepsTarget& target);

/// Updates the page, if it is open.
void firstStepsUpdate();

/// Closes the page, if it is open. It doesn't count as seen.
void firstStepsClose();
