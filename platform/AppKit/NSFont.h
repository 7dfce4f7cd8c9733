// SPDX-License-Identifier: MIT
#pragma once

/// A font of texts that a view draws.
class NSFont {
public:
    /// The font of the view's other texts; `size` in points, 0 for the size that the user's desktop
    /// gives them.
    static NSFont systemFontOfSize(double size) { return NSFont(size); }

    /// Of less important texts, in points: 11 where the desktop's texts have 13.
    static double smallSystemFontSize();

    double pointSize() const { return size_; }

private:
    explicit NSFont(double size) : size_(size) {}

    double size_;
};
