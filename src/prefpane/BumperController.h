#pragma once

#include "src/prefpane/NumberController.h"

class NSButton;

/// A number shown as a minus and a plus button only; its effect is seen elsewhere.
class BumperController final : public NumberController {
public:
    std::span<const NSOutlet> outlets() const override;
    std::span<const NSAction> actions() const override;

    BumperController* setKind(SInt32 kind, void* at, double min, double max, double inc,
                              ChangeMask changes) override;
    void update() override;

    void decValue(NSButton* sender);
    void incValue(NSButton* sender);

private:
    NSButton* decBtn_ = nullptr;
    NSButton* incBtn_ = nullptr;
};
