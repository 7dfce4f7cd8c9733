// SPDX-License-Identifier: MIT
#pragma once

#include "platform/AppKit/NSNib.h"
#include "platform/CoreFoundation/CFBundle.h"

/// The principal class of a preference-pane bundle derives from this. The host makes it, gives it
/// its bundle, loads its main view and then calls, in order: mainViewDidLoad once; for each visit
/// willSelect, didSelect (the pane is in sight), didUnselect (it is out of sight again). In
/// between, whenever what the user changed is to be stored, commitEditing.
class NSPreferencePane : public NSObject {
public:
    void initWithBundle(CFBundle* bundle) { bundle_ = CFRef<CFBundle>::retain(bundle); }

    CFBundle* bundle() const { return bundle_.get(); }

    /// Loads the interface file that the bundle's NSMainNibFile names, with the pane as its owner.
    /// False when it can't be loaded; `errors` then says why, one line each.
    bool loadMainView(std::vector<std::string>& errors);

    /// Null until loaded.
    NSView* mainView() const { return nib_.topLevelView(); }

    virtual void mainViewDidLoad() {}

    virtual void willSelect() {}

    virtual void didSelect() {}

    /// Stores what the user changed; the visit goes on. False when that failed.
    virtual bool commitEditing() { return true; }

    virtual void didUnselect() {}

private:
    CFRef<CFBundle> bundle_;
    NSNib nib_;
};
