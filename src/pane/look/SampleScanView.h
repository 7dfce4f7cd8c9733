// SPDX-License-Identifier: MIT
#pragma once

#include "platform/AppKit/NSAccessibility.h"
#include "platform/AppKit/NSQuickDrawView.h"
#include "platform/CoreFoundation/CFBase.h"

/// The lines that the preview can show. Any other number also means the guide line.
enum : SInt32 {
    kSampleScanLine = 0,
    kSampleGuideLine = 1,
};

/// Shows how scanning looks with the settings of `prefs`: one of the two lines, a palette of two
/// buttons, and the pointer with its hot spot at the centre. Each drawing reads everything again,
/// even the pointer's file. A click, Space or Return shows the other line.
class SampleScanView final : public NSQuickDrawView, public NSAccessibilityButton {
public:
    SInt32 sampleLineType() const { return lineSampleType_; }

    /// Doesn't redraw.
    void setSampleLineType(SInt32 type);

    void drawRect(const NSRect& dirtyRect) override;
    void mouseDown(NSEvent* event) override;
    void keyDown(NSEvent* event) override;

    bool acceptsFirstResponder() const override { return true; }

    std::string accessibilityTitle() const override;
    std::string accessibilityValue() const override;
    void accessibilityPerformPress() override;

private:
    void drawScanLine();
    void drawPalette();
    void drawPointer();
    void showOtherLine();

    SInt32 lineSampleType_ = kSampleScanLine;
};
