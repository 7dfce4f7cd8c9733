// SPDX-License-Identifier: MIT
#pragma once

/// A place on the desktop, in pixels of the display server: from the top left of all screens, y
/// down.
struct Place {
    double x = 0, y = 0;

    bool operator==(const Place&) const = default;
};

/// A rectangle of the desktop, in the same pixels. Empty when a side is zero or less.
struct Area {
    double left = 0, top = 0, width = 0, height = 0;

    double right() const { return left + width; }

    double bottom() const { return top + height; }

    Place middle() const { return {left + width / 2, top + height / 2}; }

    bool isEmpty() const { return !(width > 0 && height > 0); }

    /// The right and the bottom edge don't belong to it.
    bool contains(Place place) const {
        return place.x >= left && place.x < right() && place.y >= top && place.y < bottom();
    }

    bool operator==(const Area&) const = default;
};

/// The part of both. Empty when they don't meet.
Area intersection(const Area& a, const Area& b);
