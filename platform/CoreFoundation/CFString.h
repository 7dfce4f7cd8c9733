// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CoreFoundation/CFBase.h"

#include <string>
#include <string_view>

enum CFStringEncoding : UInt32 {
    kCFStringEncodingMacRoman = 0,
    kCFStringEncodingASCII = 0x0600,
    kCFStringEncodingUTF8 = 0x08000100,
};

/// A text of UTF-16 code units. Immutable, except CFMutableString.
class CFString : public CFType {
public:
    explicit CFString(std::u16string text) : text_(std::move(text)) {}

    const std::u16string& text() const { return text_; }

    CFTypeID typeID() const override { return CFTypeID::String; }

    bool isEqual(const CFType& other) const override;
    CFHashCode hash() const override;

protected:
    std::u16string text_;
};

class CFMutableString final : public CFString {
public:
    /// `maxLength` is in code units; 0 means no limit. What exceeds it isn't appended.
    explicit CFMutableString(CFIndex maxLength) : CFString({}), maxLength_(maxLength) {}

    void append(std::u16string_view more);

private:
    CFIndex maxLength_;
};

/// The constant string of an ASCII literal. It lives as long as the process.
const CFString* CFSTR(const char* ascii);

/// Null when `text` is null or isn't valid in the encoding.
CFRef<CFString> CFStringCreateWithCString(const char* text, CFStringEncoding encoding);
CFRef<CFMutableString> CFStringCreateMutable(CFIndex maxLength);
void CFStringAppend(CFMutableString* string, const CFString* more);
void CFStringAppendCharacters(CFMutableString* string, const UniChar* characters, CFIndex count);

enum CFComparisonResult {
    kCFCompareLessThan = -1,
    kCFCompareEqualTo = 0,
    kCFCompareGreaterThan = 1
};

enum CFStringCompareFlags : UInt32 { kCFCompareCaseInsensitive = 1 };

/// Compares code units. With kCFCompareCaseInsensitive letter case doesn't count, in any language.
CFComparisonResult CFStringCompare(const CFString* a, const CFString* b,
                                   CFStringCompareFlags flags);

/// Writes the text and a terminating NUL into `buffer`. False when it doesn't fit in `bufferSize`
/// bytes or has a character that the encoding lacks; the content is then unspecified.
bool CFStringGetCString(const CFString* string, char* buffer, CFIndex bufferSize,
                        CFStringEncoding encoding);

/// The encoding of file names and of the environment: UTF-8.
CFStringEncoding CFStringGetSystemEncoding();

// Conversion to and from the standard library's strings.

/// An unpaired surrogate becomes U+FFFD.
std::string toUTF8(const CFString* string);

/// Null when the text isn't valid UTF-8.
CFRef<CFString> createFromUTF8(std::string_view text);
