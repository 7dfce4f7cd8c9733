// SPDX-License-Identifier: MIT
#pragma once

using CGFloat = float;

struct CGPoint {
    CGFloat x = 0;
    CGFloat y = 0;

    bool operator==(const CGPoint&) const = default;
};

struct CGSize {
    CGFloat width = 0;
    CGFloat height = 0;

    bool operator==(const CGSize&) const = default;
};

/// A negative width or height extends to the other side of the origin.
struct CGRect {
    CGPoint origin;
    CGSize size;

    bool operator==(const CGRect&) const = default;
};

constexpr CGRect CGRectMake(CGFloat x, CGFloat y, CGFloat width, CGFloat height) {
    return {{x, y}, {width, height}};
}

/// Whether a side is zero.
constexpr bool CGRectIsEmpty(const CGRect& rect) {
    return rect.size.width == 0 || rect.size.height == 0;
}

/// The same rectangle with sides of zero or more.
CGRect CGRectStandardize(CGRect rect);

/// Standardises the rectangle and moves its edges inward; with negative numbers, outward.
CGRect CGRectInset(CGRect rect, CGFloat dx, CGFloat dy);

/// The smallest rectangle that holds both; standardised.
CGRect CGRectUnion(CGRect a, CGRect b);
