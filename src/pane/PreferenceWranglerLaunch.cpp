// SPDX-License-Identifier: MIT
#include "src/pane/PreferenceWrangler.h"

#include "platform/AppKit/NSButton.h"
#include "src/link/Daemon.h"
#include "src/login/launch.h"

// The login items follow the setting. They are never read back into it, so their state, and whether
// they could be changed, isn't checked.
void PreferenceWrangler::updateLaunchUI() {
    if (const CFBundle* agent = daemonMainBundle()) {
        const auto url = CFBundleCopyBundleURL(agent);
        launchFollowSetting(url.get(), prefs.launchAtLogin != 0, !shownLaunchAtLogin_);
    }
    shownLaunchAtLogin_ = prefs.launchAtLogin != 0;
    launchAtLogin_->setEnabled(true);
    launchAtLogin_->setState(prefs.launchAtLogin);
    activateAtLaunch_->setState(prefs.activateAtLaunch);
}
