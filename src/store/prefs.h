// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CoreFoundation/CFString.h"
#include "src/record/PrefsRecord.h"

/// The agent's bundle identifier, and the preference domain of all settings. The pane's own
/// identifier is this one followed by ".PrefsPane".
inline constexpr char kAgentBundleIDText[] = "org.korvex.Agent";
/// The agent application's name in the pane's bundle.
inline constexpr char kAgentApplicationName[] = "Korvex Agent.app";
extern const CFString* const kAgentBundleID;

/// The one record. Its fields are read and written in place. Whoever changes one tells the wrangler
/// or calls prefsWereChanged.
extern PrefsRecord prefs;

/// Loads every key of the domain into the record. A missing key, or a text that doesn't parse,
/// leaves its field unchanged. Neither synchronises the domain nor marks a change.
void prefsSetup();

/// Writes every key and synchronises the domain once. True on success. A setting that hasn't
/// changed here since it was loaded or saved gives way to what another program has stored
/// meanwhile.
bool savePrefs();

/// Marks the record for saving. `chosen` (may be null) is a field of `prefs` that counts as changed
/// even if its value is the same.
void prefsWereChanged(const void* chosen = nullptr);
void prefsWerentChanged();

/// Stores at once what lies beside the agent's record, if it has changed: no event tells of it.
void prefsStoreBeside();

/// Keeps the changes in a file that survives a crash (recovery.h).
void prefsKeepChanges();

/// Whether the record is the same as when it was last loaded or saved.
bool prefsAreAsStored();

/// Saves if the record has changed since it was last saved.
void prefsFlushChanges();

/// The same, but also retries what an earlier save couldn't write. False when something isn't
/// saved.
bool prefsCommit();

/// As prefsFlushChanges. Called when the pane is put away.
void prefsCleanup();

/// A single key, stored as "0x%08lx". 0 when it is missing or doesn't parse.
UInt32 prefsGetUnsignedValue(const CFString* key);
/// Sets the key at once. The next flush synchronises.
void prefsSetUnsignedValue(const CFString* key, UInt32 value);

// One accessor for each notation (prefsnotation.h). Texts are in Mac OS Roman.

/// A text that isn't valid Mac OS Roman isn't stored.
void setPrefStr(const CFString* key, const char* text);
void setPrefDouble(const CFString* key, double value);
void setPrefSInt32(const CFString* key, SInt32 value);
void setPrefUInt32(const CFString* key, UInt32 value);

/// False with `buffer` unchanged when the key is missing or no text. False with an empty text in
/// the buffer when it doesn't fit in `bufferSize` bytes or can't be converted.
bool getPrefStr(const CFString* key, char* buffer, CFIndex bufferSize);
/// The target changes only if the key has a text in that notation.
void getPrefDouble(const CFString* key, double* value);
void getPrefUInt32(const CFString* key, UInt32* value);
