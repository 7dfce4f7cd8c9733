// SPDX-License-Identifier: MIT
#include "platform/CoreServices/LaunchTrouble.h"

#include "platform/CoreServices/detail/StartedApplications.h"

std::optional<TroubledApplication> findLaunchTrouble() {
    return StartedApplications::shared().findTrouble();
}

bool isLaunching(const std::string& bundle) {
    return StartedApplications::shared().isLaunching(bundle);
}

struct LaunchWatch::Connection {
    QMetaObject::Connection made;
};

LaunchWatch::LaunchWatch(std::function<void()> onChange)
    : connection_(std::make_unique<Connection>()) {
    connection_->made = QObject::connect(&StartedApplications::shared().changed(), &QTimer::timeout,
                                         std::move(onChange));
}

LaunchWatch::~LaunchWatch() {
    QObject::disconnect(connection_->made);
}

OSStatus launchAgain(const std::string& bundle) {
    StartedApplications::shared().forgive(bundle);
    const auto url = CFURLCreateFromFileSystemRepresentation(bundle.c_str(), true);
    return LSOpenCFURLRef(url.get(), nullptr);
}
