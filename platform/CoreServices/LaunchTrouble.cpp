// SPDX-License-Identifier: MIT
#include "platform/CoreServices/LaunchTrouble.h"

#include "platform/CoreServices/detail/StartedApplications.h"

std::optional<TroubledApplication> findLaunchTrouble() {
    return StartedApplications::shared().findTrouble();
}

bool isLaunching(const std::string& bundle) {
    return StartedApplications::shared().isLaunching(bundle);
}

OSStatus launchAgain(const std::string& bundle) {
    StartedApplications::shared().forgive(bundle);
    const auto url = CFURLCreateFromFileSystemRepresentation(bundle.c_str(), true);
    return LSOpenCFURLRef(url.get(), nullptr);
}
