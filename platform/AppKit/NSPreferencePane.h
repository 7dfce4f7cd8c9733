// SPDX-License-Identifier: MIT
#pragma once

#include "platform/AppKit/NSNib.h"
#include "platform/CoreFoundation/CFBundle.h"

/// The base of a preference-pane bundle's principal class. The host makes the object, gives it the
/// bundle and loads its main view. Then it calls mainViewDidLoad once and, for each visit,
/// willSelect, didSelect (the pane is shown) and didUnselect (it is hidden again). In between it
/// calls commitEditing to have changes stored.
class NSPreferencePane : public NSObject {
public:
    void initWithBundle(CFBundle* bundle) { bundle_ = CFRef<CFBundle>::retain(bundle); }

    CFBundle* bundle() const { return bundle_.get(); }

    /// Loads the interface file that the bundle's NSMainNibFile names, with the pane as owner.
    /// False when it can't be loaded; `errors` then says why, a line each.
    bool loadMainView(std::vector<std::string>& errors);

    /// Null until loaded.
    NSView* mainView() const { return nib_.topLevelView(); }

    virtual void mainViewDidLoad() {}

    virtual void willSelect() {}

    virtual void didSelect() {}

    /// Stores what the user has changed. The visit goes on. False on failure.
    virtual bool commitEditing() { return true; }

    virtual void didUnselect() {}

private:
    CFRef<CFBundle> bundle_;
    NSNib nib_;
};
