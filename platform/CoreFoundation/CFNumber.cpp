// SPDX-License-Identifier: MIT
#include "platform/CoreFoundation/CFNumber.h"

#include <cmath>
#include <functional>
#include <limits>

namespace {

constexpr double kTwoTo63 = 9223372036854775808.0;

/// False unless `value` is exactly an integer.
bool exactInteger(double value, std::int64_t& integer) {
    if (!(value >= -kTwoTo63 && value < kTwoTo63) || value != std::trunc(value))
        return false;
    integer = static_cast<std::int64_t>(value);
    return true;
}

} // namespace

std::int64_t CFNumber::integerValue() const {
    if (!isFloat())
        return std::get<std::int64_t>(value_);
    const double value = std::get<double>(value_);
    if (std::isnan(value))
        return 0;
    if (value >= kTwoTo63)
        return std::numeric_limits<std::int64_t>::max();
    if (value < -kTwoTo63)
        return std::numeric_limits<std::int64_t>::min();
    return static_cast<std::int64_t>(value);
}

double CFNumber::doubleValue() const {
    return isFloat() ? std::get<double>(value_)
                     : static_cast<double>(std::get<std::int64_t>(value_));
}

bool CFNumber::isEqual(const CFType& other) const {
    const auto& that = static_cast<const CFNumber&>(other);
    if (isFloat() == that.isFloat())
        return value_ == that.value_ ||
               (std::isnan(doubleValue()) && std::isnan(that.doubleValue()));
    const CFNumber& real = isFloat() ? *this : that;
    const CFNumber& whole = isFloat() ? that : *this;
    std::int64_t integer = 0;
    return exactInteger(real.doubleValue(), integer) && integer == whole.integerValue();
}

CFHashCode CFNumber::hash() const {
    const double value = doubleValue();
    return std::isnan(value) ? 0 : std::hash<double>()(value);
}

CFRef<CFNumber> CFNumberCreate(CFNumberType type, const void* value) {
    switch (type) {
    case kCFNumberSInt32Type:
        return CFRef<CFNumber>::adopt(
            new CFNumber(std::int64_t{*static_cast<const SInt32*>(value)}));
    case kCFNumberSInt64Type:
        return CFRef<CFNumber>::adopt(new CFNumber(*static_cast<const std::int64_t*>(value)));
    case kCFNumberDoubleType:
        return CFRef<CFNumber>::adopt(new CFNumber(*static_cast<const double*>(value)));
    }
    return nullptr;
}

bool CFBoolean::isEqual(const CFType& other) const {
    return value_ == static_cast<const CFBoolean&>(other).value_;
}

bool CFBooleanGetValue(const CFBoolean* boolean) {
    return boolean->value();
}

const CFBoolean* const kCFBooleanTrue = new CFBoolean(true);
const CFBoolean* const kCFBooleanFalse = new CFBoolean(false);
