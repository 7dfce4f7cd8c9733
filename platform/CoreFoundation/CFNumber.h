// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CoreFoundation/CFBase.h"

#include <variant>

enum CFNumberType { kCFNumberSInt32Type = 3, kCFNumberSInt64Type = 4, kCFNumberDoubleType = 13 };

/// A number: a signed 64-bit integer or a double.
class CFNumber final : public CFType {
public:
    explicit CFNumber(std::int64_t value) : value_(value) {}

    explicit CFNumber(double value) : value_(value) {}

    bool isFloat() const { return std::holds_alternative<double>(value_); }

    std::int64_t integerValue() const; ///< a double is truncated and clamped
    double doubleValue() const;

    CFTypeID typeID() const override { return CFTypeID::Number; }

    bool isEqual(const CFType& other) const override;
    CFHashCode hash() const override;

private:
    std::variant<std::int64_t, double> value_;
};

CFRef<CFNumber> CFNumberCreate(CFNumberType type, const void* value);

class CFBoolean final : public CFType {
public:
    explicit CFBoolean(bool value) : value_(value) {}

    bool value() const { return value_; }

    CFTypeID typeID() const override { return CFTypeID::Bool; }

    bool isEqual(const CFType& other) const override;

    CFHashCode hash() const override { return value_ ? 1 : 0; }

private:
    bool value_;
};

bool CFBooleanGetValue(const CFBoolean* boolean);

/// The two booleans. They live as long as the process.
extern const CFBoolean* const kCFBooleanTrue;
extern const CFBoolean* const kCFBooleanFalse;
