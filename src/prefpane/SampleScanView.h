// SPDX-License-Identifier: MIT
#pragma once

#include "platform/AppKit/NSAccessibility.h"
#include "platform/AppKit/NSQuickDrawView.h"
#include "platform/CoreFoundation/CFBase.h"

/// The lines that the preview can show; any other number shows the guide line, too.
enum : SInt32 {
    kSampleScanLine = 0,
    kSampleGuideLine = 1,
};

/// A sample of how scanning looks with the settings of `prefs`: one of the two lines, a palette of
/// two buttons, and the pointer with its hot spot in the middle. It reads all of it afresh whenever
/// it is drawn, the pointer's file too, and changes none. A click, Space or Return shows the other
/// line.
class SampleScanView final : public NSQuickDrawView, public NSAccessibilityButton {
public:
    SInt32 sampleLineType() const { return lineSampleType_; }

    /// Doesn't redraw by itself.
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
