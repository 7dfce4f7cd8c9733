// SPDX-License-Identifier: MIT
#pragma once

/// A font for texts drawn by a view.
class NSFont {
public:
    /// The font of the view's other texts. `size` is in points; 0 means the desktop's text size.
    static NSFont systemFontOfSize(double size) { return NSFont(size); }

    /// For less important texts, in points: 11 where the desktop's text size is 13.
    static double smallSystemFontSize();

    double pointSize() const { return size_; }

private:
    explicit NSFont(double size) : size_(size) {}

    double size_;
};
