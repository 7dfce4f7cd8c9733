// SPDX-License-Identifier: MIT
#pragma once

#include "platform/AppKit/NSPreferencePane.h"

class PreferenceWrangler;

/// The principal class of the pane's bundle: starts and stops the pane's modules, in fixed orders,
/// as the host shows the pane and puts it away.
class VLDKorvexPane final : public NSPreferencePane {
public:
    std::span<const Outlet> outlets() const override;

    /// Makes the help book known.
    void mainViewDidLoad() override;
    /// Links to the agent, then loads the settings and shows them.
    void willSelect() override;
    /// Tells the user when assistive access is off in the system.
    void didSelect() override;
    /// Saves the settings if any was changed.
    bool commitEditing() override;
    /// Takes that notice away, saves as above, then lets the agent go.
    void didUnselect() override;

private:
    PreferenceWrangler* preferenceWrangler_ = nullptr;
};
