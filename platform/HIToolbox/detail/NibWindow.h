// SPDX-License-Identifier: MIT
#pragma once

#include "platform/HIToolbox/detail/CarbonControl.h"
#include "platform/HIToolbox/detail/CarbonWindow.h"

#include <vector>

/// A window from an interface file. Its target hears of keys and mouse buttons that go down in it,
/// whatever they then do.
class NibWindow final : public QObject, public CarbonWindow {
public:
    explicit NibWindow(std::unique_ptr<QWidget> widget);
    ~NibWindow() override;

    const std::vector<std::unique_ptr<CarbonControl>>& controls() const { return controls_; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    std::vector<std::unique_ptr<CarbonControl>> controls_;
};
