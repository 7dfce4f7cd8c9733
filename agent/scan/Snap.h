// SPDX-License-Identifier: MIT
#pragma once

#include "agent/scan/Region.h"

#include <optional>
#include <span>

/// A part of a program that a click may be meant for.
struct Target {
    Area box;
    /// A button or the like: it doesn't matter where one clicks it. False for texts and canvases,
    /// where it does.
    bool isPressed = true;

    bool operator==(const Target&) const = default;
};

/// The target that a click at the point is meant for: the smallest that the point is in, else the
/// only one that is nearer than the distance, across and down. None if that leaves a doubt, or
/// where the place itself counts.
std::optional<Area> snap(Place point, std::span<const Target> targets, double distance);

/// The distance in pixels, for the faster of line and pointer (src/scan/snapping.h).
double snapDistance(double spread, const Region& region);

/// From the coordinates that a program tells of its parts to the screen's pixels. Some programs
/// count in points, and some tell the place of a window with its frame.
class ToldPlaces {
public:
    /// From where a program says that its window is, and where the window is, without its frame.
    /// None if one can't be the other.
    static std::optional<ToldPlaces> of(const Area& told, const Area& window);

    Area inPixels(const Area& told) const;

    /// How far the two windows' edges are apart, in pixels. To choose between windows.
    double misfit() const { return misfit_; }

private:
    double scale_ = 1;
    Place told_, pixels_; ///< the same place in both
    double misfit_ = 0;
};
