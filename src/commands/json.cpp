// SPDX-License-Identifier: MIT
#include "src/commands/json.h"

#include <charconv>
#include <cmath>
#include <cstdio>

namespace {

std::string quoted(std::string_view text) {
    std::string result = "\"";
    for (const char c : text) {
        if (c == '"' || c == '\\')
            result += '\\';
        if (static_cast<unsigned char>(c) >= ' ') {
            result += c;
            continue;
        }
        char escape[8];
        std::snprintf(escape, sizeof escape, "\\u%04x", static_cast<unsigned>(c));
        result += escape;
    }
    return result + '"';
}

} // namespace

JsonObject& JsonObject::add(std::string_view name, std::string_view text) {
    return addRaw(name, quoted(text));
}

JsonObject& JsonObject::add(std::string_view name, double number) {
    char text[64];
    const auto [end, error] = std::to_chars(text, text + sizeof text, number);
    return addRaw(name, std::isfinite(number) ? std::string(text, end) : "null");
}

JsonObject& JsonObject::addRaw(std::string_view name, const std::string& value) {
    members_ += (members_.empty() ? "" : ", ") + quoted(name) + ": " + value;
    return *this;
}
