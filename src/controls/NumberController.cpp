// SPDX-License-Identifier: MIT
#include "src/controls/NumberController.h"

#include "src/record/numbertext.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>

namespace {

// Doubles in the record have 4-byte alignment. So values are copied, never used in place.
template <class T>
double readAs(const void* address) {
    T value;
    std::memcpy(&value, address, sizeof value);
    return static_cast<double>(value);
}

template <class T>
void writeAs(void* address, double value) {
    const T stored = static_cast<T>(value);
    std::memcpy(address, &stored, sizeof stored);
}

/// Added before truncation, so that a computed whole number stays whole. Not enough to round.
constexpr double kTruncationNudge = 0.1;

} // namespace

NumberController* NumberController::setKind(SInt32 kind, void* at, double min, double max,
                                            double inc, ChangeMask changes) {
    kind_ = kind;
    valuep_ = at;
    minValue_ = min;
    maxValue_ = max;
    incValue_ = inc;
    changeMask_ = changes;
    return this;
}

double NumberController::value() const {
    if (!valuep_)
        return 0.0;
    switch (kind_) {
    case kNumberKindDouble:
        return readAs<double>(valuep_);
    case kNumberKindSInt32:
        return readAs<SInt32>(valuep_);
    case kNumberKindUInt32:
        return readAs<UInt32>(valuep_);
    default:
        return 0.0;
    }
}

void NumberController::set(double value) {
    if (!valuep_)
        return;
    const double clamped = minValue_ > value ? minValue_ : std::min(maxValue_, value);
    switch (kind_) {
    case kNumberKindDouble:
        writeAs<double>(valuep_, clamped);
        break;
    case kNumberKindSInt32:
        writeAs<SInt32>(valuep_,
                        clamped >= 0 ? clamped + kTruncationNudge : clamped - kTruncationNudge);
        break;
    case kNumberKindUInt32:
        writeAs<UInt32>(valuep_, std::clamp(clamped + kTruncationNudge, 0.0,
                                            double{std::numeric_limits<UInt32>::max()}));
        break;
    default:
        break;
    }
}

double NumberController::truncValue() const {
    const double v = value();
    if (kind_ != kNumberKindDouble || incValue_ == 0.0)
        return v;
    return incValue_ * std::trunc(v / incValue_);
}

void NumberController::inc() {
    change(truncValue() + incValue_);
}

void NumberController::dec() {
    const double truncated = truncValue();
    // Between two grid points, stepping down goes to the lower one.
    change(truncated < value() ? truncated : truncated - incValue_);
}

void NumberController::incPage() {
    change(truncValue() + pageSteps_ * incValue_);
}

void NumberController::decPage() {
    const double truncated = truncValue();
    change(truncated - (truncated < value() ? pageSteps_ - 1 : pageSteps_) * incValue_);
}

bool NumberController::type(std::string_view text) {
    const auto number = numberFromText(text);
    const bool isWhole = kind_ == kNumberKindDouble || (number && std::trunc(*number) == *number);
    if (!number || !isWhole || *number < minValue_ || *number > maxValue_)
        return false;
    change(*number);
    return true;
}

void NumberController::change(double newValue) {
    const double old = value();
    set(newValue);
    if (value() != old)
        changed();
}

void NumberController::changed() {
    update();
    if (changeTarget_)
        changeTarget_->changed(changeMask_);
}
