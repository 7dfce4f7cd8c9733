// SPDX-License-Identifier: MIT
#include "platform/HIToolbox/detail/HostedWindow.h"

#include "platform/HIToolbox/detail/CarbonWindow.h"

#include <map>

namespace {

class HostedWindow final : public CarbonWindow {
public:
    explicit HostedWindow(QWidget* widget) : CarbonWindow(std::unique_ptr<QWidget>(widget)) {}

    ~HostedWindow() override { leaveWidget(); }
};

} // namespace

WindowRef windowRefOf(QWidget* window) {
    // Never destroyed: widgets may go while the program exits.
    static auto& windows = *new std::map<const QObject*, HostedWindow>;
    const auto [place, isNew] = windows.try_emplace(window, window);
    if (isNew)
        QObject::connect(window, &QObject::destroyed,
                         [](const QObject* gone) { windows.erase(gone); });
    return &place->second;
}
