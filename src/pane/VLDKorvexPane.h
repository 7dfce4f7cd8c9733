// SPDX-License-Identifier: MIT
#pragma once

#include "platform/AppKit/NSPreferencePane.h"

class PreferenceWrangler;

/// The principal class of the pane's bundle. It starts and stops the pane's modules in fixed
/// orders, as the host shows the pane and puts it away.
class VLDKorvexPane final : public NSPreferencePane {
public:
    std::span<const Outlet> outlets() const override;

    /// Registers the help book.
    void mainViewDidLoad() override;
    /// Links to the agent, then loads and shows the settings.
    void willSelect() override;
    /// Shows a notice when assistive access is off.
    void didSelect() override;
    /// Saves the settings if any has changed.
    bool commitEditing() override;
    /// Closes that notice, saves as above, then ends the link to the agent.
    void didUnselect() override;

private:
    PreferenceWrangler* preferenceWrangler_ = nullptr;
};
