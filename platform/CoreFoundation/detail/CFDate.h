#pragma once

#include "platform/CoreFoundation/CFBase.h"

/// A moment, in whole seconds since 2001-01-01 00:00:00 UTC. Dates are only carried from a property
/// list that another program wrote to the next writing of it.
class CFDate final : public CFType {
public:
    explicit CFDate(SInt32 seconds) : seconds_(seconds) {}

    SInt32 seconds() const { return seconds_; }

    CFTypeID typeID() const override { return CFTypeID::Date; }

    bool isEqual(const CFType& other) const override {
        return seconds_ == static_cast<const CFDate&>(other).seconds_;
    }

    CFHashCode hash() const override { return static_cast<CFHashCode>(seconds_); }

private:
    SInt32 seconds_;
};
