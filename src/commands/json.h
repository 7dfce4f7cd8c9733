// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

/// An object of texts, numbers and flags as JSON text (RFC 8259).
class JsonObject {
public:
    JsonObject& add(std::string_view name, std::string_view text);
    JsonObject& add(std::string_view name, double number); ///< null when it isn't finite

    JsonObject& addFlag(std::string_view name, bool flag) {
        return addRaw(name, flag ? "true" : "false");
    }

    std::string text() const { return "{" + members_ + "}"; }

private:
    JsonObject& addRaw(std::string_view name, const std::string& value);

    std::string members_;
};

/// A list of objects as JSON text, one in each line.
class JsonList {
public:
    void add(const JsonObject& object) { items_ += (items_.empty() ? "" : ",\n ") + object.text(); }

    std::string text() const { return "[" + items_ + "]"; }

private:
    std::string items_;
};
