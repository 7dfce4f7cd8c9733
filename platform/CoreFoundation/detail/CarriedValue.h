// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CoreFoundation/CFBase.h"

#include <string>

/// A value of another program that nothing here reads: a date, or a number out of range. The next
/// write of the property list writes it unchanged.
class CarriedValue final : public CFType {
public:
    CarriedValue(std::string element, std::string_view text)
        : element_(std::move(element)), text_(text) {}

    /// The XML element's name and its text, ASCII without special characters.
    const std::string& element() const { return element_; }

    const std::string& text() const { return text_; }

    CFTypeID typeID() const override { return CFTypeID::Carried; }

    bool isEqual(const CFType& other) const override {
        const auto& that = static_cast<const CarriedValue&>(other);
        return element_ == that.element_ && text_ == that.text_;
    }

    CFHashCode hash() const override { return std::hash<std::string>()(text_); }

private:
    std::string element_;
    std::string text_;
};
