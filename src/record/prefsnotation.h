// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CoreFoundation/CFString.h"
#include "src/record/PrefsRecord.h"

/// How one kind of setting is stored: as a text, shown in the comments below. A field is copied,
/// never used in place: doubles have 4-byte alignment in the record.
struct PrefsNotation {
    /// Reads a stored value into the field. False when the value has another notation; the field is
    /// then unchanged, but a list may have set some of its entries.
    bool (*read)(const CFType* value, void* field);
    /// The text to store. Null when the field has none.
    CFRef<const CFString> (*write)(const void* field);
};

extern const PrefsNotation kFlagNotation;      ///< UInt8: "yes" or "no"; also read from a boolean
extern const PrefsNotation kDecimalNotation;   ///< SInt32: "%ld"; also read from a number
extern const PrefsNotation kHexWordNotation;   ///< UInt32: "0x%08lx"
extern const PrefsNotation kRealNotation;      ///< double: "%lf", with a point in every locale
extern const PrefsNotation kRectangleNotation; ///< ScanArea: "origin(%lf,%lf); size(%lf,%lf)"
extern const PrefsNotation kColourNotation;    ///< LineColor: "[0x%04x,0x%04x,0x%04x]"
extern const PrefsNotation
    kTextNotation; ///< char[100]: the text, at most 98 characters, else empty
extern const PrefsNotation kHotKeyListNotation; ///< HotKey[5]: "[ {0x7,0x1200} … {0x4c,0x800}]"
extern const PrefsNotation kSizeNotation;       ///< ButtonSize: "(%ld,%ld)", width first
extern const PrefsNotation kActionListNotation; ///< UInt8[9]: "[ 20 21 … 0]"

/// Copies a string value into `buffer`, in Mac OS Roman. False with the buffer unchanged when it is
/// null or no string. False with an empty text when it doesn't fit or can't be converted.
bool copyStoredText(const CFType* value, char* buffer, CFIndex bufferSize);
