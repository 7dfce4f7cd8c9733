#pragma once

#include <string_view>

// The two halves of the guard, each for one form; see CFPropertyListGuard.h.

bool isSoundXMLPropertyList(std::string_view bytes);
bool isSoundBinaryPropertyList(std::string_view bytes);

/// The moments that CFDate holds: whole years around 2001 whose seconds fit 32 bits.
constexpr int kFirstDateYear = 1933;
constexpr int kLastDateYear = 2068;
