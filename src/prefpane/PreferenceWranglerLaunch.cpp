// SPDX-License-Identifier: MIT
#include "src/prefpane/PreferenceWrangler.h"

#include "platform/AppKit/NSButton.h"
#include "src/login/launch.h"
#include "src/prefpane/Daemon.h"

// The login items follow the setting and are never read back into it, so that what they are now,
// and whether they could be changed, isn't looked at.
void PreferenceWrangler::updateLaunchUI() {
    if (const CFBundle* agent = daemonMainBundle()) {
        const auto url = CFBundleCopyBundleURL(agent);
        if (prefs.launchAtLogin && !shownLaunchAtLogin_)
            launchForgetSwitchedOff(url.get()); // here the user switched it on
        launchSetAppIsAutoLaunched(url.get(), false, true);
        launchSetAppIsAutoLaunched(url.get(), prefs.launchAtLogin != 0, false);
    }
    shownLaunchAtLogin_ = prefs.launchAtLogin != 0;
    launchAtLogin_->setEnabled(true);
    launchAtLogin_->setState(prefs.launchAtLogin);
    activateAtLaunch_->setState(prefs.activateAtLaunch);
}
