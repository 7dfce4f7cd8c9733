// SPDX-License-Identifier: MIT
#pragma once

#include "agent/scan/Scan.h"
#include "agent/x11/XServer.h"
#include "src/files/ptrutil.h"
#include "src/record/PrefsRecord.h"

#include <memory>

/// The scan line, the guide lines and the pointer over all windows. Each is a small window of its
/// own that takes no clicks, moved and raised for every frame. With a compositor they are
/// transparent as the settings say; without one the guide lines are dashed.
class Overlay {
public:
    /// `server` must outlive it. Nothing is shown yet.
    explicit Overlay(XServer& server);
    ~Overlay();

    /// The look of a checked record, `scale` pixels a point. Felt at once, also while it is shown.
    /// `pointer` is the pointer's picture; a null image shows a plain arrow.
    void setLook(const PrefsRecord& record, double scale, const PointerImage& pointer);

    /// Shows that. Windows that it doesn't name are hidden.
    void show(const Picture& picture);
    void hide();
};
