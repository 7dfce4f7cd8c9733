// SPDX-License-Identifier: MIT
#pragma once

#include "platform/HIToolbox/detail/CarbonControl.h"
#include "platform/HIToolbox/detail/CarbonWindow.h"

#include <vector>

/// A window from an interface file.
class NibWindow final : public CarbonWindow {
public:
    explicit NibWindow(std::unique_ptr<QWidget> widget);
    ~NibWindow() override;

    const std::vector<std::unique_ptr<CarbonControl>>& controls() const { return controls_; }

private:
    std::vector<std::unique_ptr<CarbonControl>> controls_;
};
