// SPDX-License-Identifier: MIT
#pragma once

#include "platform/AppKit/NSNib.h"
#include "platform/AppKit/NSWindow.h"
#include "platform/CoreFoundation/CFBundle.h"
#include "platform/HIToolbox/EventTimers.h"
#include "src/firststeps/PressView.h"
#include "src/prefs.h"

class NSButton;
class NSMatrix;
class NSTextField;
class SliderController;

/// What the page asks of the pane.
class FirstStepsTarget {
public:
    /// The page wrote those fields: an edit as any other.
    virtual void changed(ChangeMask changes) = 0;
    /// Opens a page of the help book; the first one for null.
    virtual void showHelpPage(const CFString* page) = 0;
    /// The page has gone; the pane's own controls may show what was before.
    virtual void loadValues() = 0;
    virtual void openTryPage(NSWindow window) = 0;

protected:
    ~FirstStepsTarget() = default;
};

/// The page that a user meets first: it shows the switch answer, and asks how it is pressed and how
/// fast the line shall be, in the fields of `prefs`; it says where help is, and what the agent is.
class FirstStepsPage final : public NSObject, public PressViewTarget {
public:
    /// The target isn't owned.
    FirstStepsPage(NSWindow window, FirstStepsTarget& target);
    ~FirstStepsPage() override;

    /// Shows the page in the place of the window's content, from the form at `path`. False, with
    /// the reasons in `errors`, when that can't be loaded.
    bool show(const std::string& path, std::vector<std::string>& errors);

    /// Brings the page up to date with `prefs` and the agent.
    void update();

    std::span<const Outlet> outlets() const override;
    std::span<const Action> actions() const override;

    void answered() override;

    void changedScanMode(NSMatrix* sender);
    void findMySpeed(NSButton* sender);
    void showHelp(NSButton* sender);
    void showAgentHelp(NSButton* sender);
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
};

/// Opens the page in the window; brings nothing about while it is open, or without its form.
void firstStepsOpen(const CFBundle* bundle, NSWindow window, FirstStepsTarget& target);

/// The same at a user's first start alone: nothing is stored of any setting, and neither the user
/// has left the page before nor an administrator has switched it off for all.
void firstStepsOffer(const CFBundle* bundle, NSWindow window, FirstStepsTarget& target);

/// Brings the page up to date, if it is open.
void firstStepsUpdate();

/// Closes the page, if it is open; it counts as not seen.
void firstStepsClose();
