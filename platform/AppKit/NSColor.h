// SPDX-License-Identifier: MIT
#pragma once

/// A colour in the device's RGB space. Components are from 0 to 1.
class NSColor {
public:
    static NSColor colorWithDeviceRed(double red, double green, double blue, double alpha) {
        return {red, green, blue, alpha};
    }

    static NSColor blackColor() { return {0, 0, 0, 1}; }

    static NSColor lightGrayColor() { return {2.0 / 3, 2.0 / 3, 2.0 / 3, 1}; }

    /// The colour of the focus ring.
    static NSColor keyboardFocusIndicatorColor();

    /// Makes this the current colour; see NSGraphics.h.
    void set() const;

    double redComponent() const { return red_; }

    double greenComponent() const { return green_; }

    double blueComponent() const { return blue_; }

private:
    NSColor(double red, double green, double blue, double alpha)
        : red_(red), green_(green), blue_(blue), alpha_(alpha) {}

    double red_, green_, blue_, alpha_;
};
