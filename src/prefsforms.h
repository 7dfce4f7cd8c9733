#pragma once

#include "src/prefs.h"

/// How one kind of setting is kept in the preference domain: reading a key into a field, and
/// writing the field under the key. Reading changes the field only when the stored value is of the
/// form.
struct PrefsForm {
    void (*load)(const CFString* key, void* field);
    void (*save)(const CFString* key, const void* field);
};

extern const PrefsForm kFlagForm;       ///< UInt8: "yes" or "no"
extern const PrefsForm kDecimalForm;    ///< SInt32: "%ld"
extern const PrefsForm kHexWordForm;    ///< UInt32: "0x%08lx"
extern const PrefsForm kRealForm;       ///< double: "%lf"
extern const PrefsForm kRectangleForm;  ///< ScanArea: "origin(%lf,%lf); size(%lf,%lf)"
extern const PrefsForm kColourForm;     ///< LineColor: "[0x%04x,0x%04x,0x%04x]"
extern const PrefsForm kTextForm;       ///< char[100]: the text itself, at most 98 characters
extern const PrefsForm kHotKeyListForm; ///< HotKey[5]: "[ {0x7,0x1200} … {0x4c,0x800}]"
extern const PrefsForm kSizeForm;       ///< ButtonSize: "(%ld,%ld)", width first
extern const PrefsForm kActionListForm; ///< UInt8[9]: "[ 20 21 … 0]"
