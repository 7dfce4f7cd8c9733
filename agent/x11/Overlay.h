// SPDX-License-Identifier: MIT
#pragma once

#include "agent/scan/Scan.h"
#include "agent/x11/XServer.h"
#include "src/files/ptrutil.h"
#include "src/record/PrefsRecord.h"

#include <memory>

/// The scan line, the guide lines, the pointer and a ring around what it would hit, over all
/// windows. Each is a small window of its
/// own that takes no clicks, moved and raised for every frame. With a compositor they are
/// transparent as the settings say. Without one the scan line is opaque, of the guide lines dashes
/// are seen, of a band its edge, and of the pointer what is more than half opaque.
class Overlay {
public:
    /// Nothing is shown yet. It lives as long as `server` hands out events, and `server` outlives
    /// it.
    explicit Overlay(XServer& server);
    ~Overlay();
    Overlay(const Overlay&) = delete;
    Overlay& operator=(const Overlay&) = delete;

    /// The look of a checked record, `scale` pixels a point. Felt at once, also while it is shown.
    /// `pointer` is the pointer's picture, a pixel a point; a null image shows a plain arrow.
    void setLook(const PrefsRecord& record, double scale, const PointerImage& pointer);

    /// Shows that. Windows that it doesn't name are hidden. Gives the lowest that is shown, for
    /// what is to lie below it, or XCB_NONE.
    xcb_window_t show(const Picture& picture);
    void hide();

private:
    class Windows;
    std::unique_ptr<Windows> windows_;
};
