// SPDX-License-Identifier: MIT
#pragma once

#include "src/controls/NumberController.h"
#include "src/controls/NumberControls.h"

#include <functional>

class NSButton;
class NSTextField;

/// Replaces or adds to what a bumper does with its bound number. Each function may be empty.
struct BumperDisplay {
    std::function<std::string()> text;      ///< the value in words
    std::function<bool(double typed)> take; ///< sets it; false when that isn't possible
    double least = 0, most = 0;             ///< limits of what can be typed
    std::function<void()> apply = {};       ///< called first after a change
};

/// A number shown as step buttons and a label. Another value can be typed into the label.
class BumperController final : public NumberController {
public:
    std::span<const Outlet> outlets() const override;
    std::span<const Action> actions() const override;

    BumperController* setKind(SInt32 kind, void* at, double min, double max, double inc,
                              ChangeMask changes) override;
    NSView* view() const override;
    void update() override;
    void changed() override;

    /// The label's number format; see SettingLimits.
    void setFormat(const char* format) { format_ = format; }

    void setDisplay(BumperDisplay display) { display_ = std::move(display); }

    void decValue(NSButton* sender);
    void incValue(NSButton* sender);
    void decPage(NSButton* sender);
    void incPage(NSButton* sender);
    void typedValue(NSTextField* sender);

private:
    NumberControls controls() const;

    NSButton* decBtn_ = nullptr;
    NSButton* incBtn_ = nullptr;
    NSButton* pageDecBtn_ = nullptr;
    NSButton* pageIncBtn_ = nullptr;
    NSTextField* label_ = nullptr;
    const char* format_ = "%.0f";
    BumperDisplay display_; ///< empty functions: the bound number
};
