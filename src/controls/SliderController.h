// SPDX-License-Identifier: MIT
#pragma once

#include "src/controls/NumberController.h"
#include "src/controls/NumberControls.h"

#include <string>

class NSButton;
class NSSlider;
class NSTextField;
class NSView;

/// A number shown as a caption, a slider, step buttons and a value label. Another value can be
/// typed into the label. Its limits are the slider's.
class SliderController final : public NumberController {
public:
    std::span<const Outlet> outlets() const override;
    std::span<const Action> actions() const override;

    /// `labelFormat` is a printf format with exactly one double conversion. With null the label
    /// formats the number.
    SliderController* setKind(SInt32 kind, void* at, double inc, ChangeMask changes,
                              const char* labelFormat);
    SliderController* setDoubleKindAt(void* at, double inc, ChangeMask changes,
                                      const char* labelFormat);

    NSView* view() const override;
    void update() override;

    /// Takes the five views out of their container, their row, and hides it; or puts them back.
    void setPresent(bool present);
    bool isPresent() const;

    void decValue(NSButton* sender);
    void incValue(NSButton* sender);
    void decPage(NSButton* sender);
    void incPage(NSButton* sender);
    void changedValue(NSSlider* sender);
    void typedValue(NSTextField* sender);

    /// Whether the form gives the slider these limits.
    bool hasLimits(double min, double max) const;

private:
    using NumberController::setKind;

    NumberControls controls() const;

    NSButton* decBtn_ = nullptr;
    NSButton* incBtn_ = nullptr;
    NSButton* pageDecBtn_ = nullptr;
    NSButton* pageIncBtn_ = nullptr;
    NSTextField* title_ = nullptr;
    NSTextField* label_ = nullptr;
    NSSlider* slider_ = nullptr;
    std::string labelFormat_ = "%f"; ///< empty: none
    NSView* container_ = nullptr;    ///< the views' last container; null before
};
