// SPDX-License-Identifier: MIT
#pragma once

#include "agent/Targets.h"

#include <optional>

/// Moves clicks to the middle of what they were meant for. It asks what there is along a line once
/// the line stands, so that the press which ends the pointer's way waits for nothing.
class Snapping {
public:
    /// `windows` must outlive it.
    explicit Snapping(const Windows& windows) : windows_(windows) {}

    /// The pointer goes along a line of that region. The first call for a line reads whether the
    /// user wants it and how far their presses spread (src/scan/snapping.h), and asks.
    void followLine(const Region& region, double y);

    /// What a click at that place of the line hits, as far as one knows by now. None: the place
    /// itself.
    std::optional<Area> targetAt(Place place) const;

    void forget();

private:
    const Windows& windows_;
    Targets targets_;
    std::optional<double> line_; ///< its y
    double distance_ = 0;        ///< pixels, on this line
};
