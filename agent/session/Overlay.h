// SPDX-License-Identifier: MIT
#pragma once

#include "agent/scan/Scan.h"
#include "agent/session/OverlayWindow.h"
#include "agent/session/PointerPicture.h"

/// The scan line, the guide lines, the pointer and a ring around what it would hit, over all
/// windows. Each is a small window of its own, moved for every frame. Where they blend they are as
/// transparent as the settings say. Else the scan line is opaque, of the guide lines dashes are
/// seen, of a band its edge, and of the pointer what is more than half opaque.
class Overlay {
public:
    /// Nothing is shown yet. `windows` must outlive it, and not be told to blend without it.
    explicit Overlay(OverlayWindows& windows);

    /// The look of a checked record, `scale` pixels a point. Felt at once, also while it is shown.
    /// `pointer` is the pointer's picture, a pixel a point; a null image shows a plain arrow.
    void setLook(const PrefsRecord& record, double scale, const PointerImage& pointer);

    /// Shows that. Windows that it doesn't name are hidden. Gives the lowest that is shown, for
    /// what is to lie below it, or null.
    const OverlayWindow* show(const Picture& picture);

    void hide() { show({}); }

private:
    void redraw();
    void drawGuides(double alpha);
    void drawBand(double alpha);
    void drawRing();
    void drawPointer();
    int pixels(double points) const;

    OverlayWindows& windows_;
    PrefsRecord record_;
    double scale_ = 1;
    PointerPicture picture_ = pointerPicture({}, 1);
    Picture shown_;
    // From the topmost to the lowest. The guide is the stopped line; the cross goes with the
    // pointer.
    std::unique_ptr<OverlayWindow> pointer_, ring_, cross_, guide_, line_, band_;
};
