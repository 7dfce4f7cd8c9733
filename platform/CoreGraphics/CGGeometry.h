#pragma once

using CGFloat = float;

struct CGPoint {
    CGFloat x = 0;
    CGFloat y = 0;
};

struct CGSize {
    CGFloat width = 0;
    CGFloat height = 0;
};

struct CGRect {
    CGPoint origin;
    CGSize size;
};

constexpr CGRect CGRectMake(CGFloat x, CGFloat y, CGFloat width, CGFloat height) {
    return {{x, y}, {width, height}};
}
