// SPDX-License-Identifier: MIT
#pragma once

#include "src/record/differences.h"

#include <functional>
#include <vector>

class NSButton;
class NSView;

/// The wrangler's part for what isn't at its default: a mark at each such row, which resets it, and
/// the buttons that reset a section or all. Whether Korvex is on and how it starts isn't reset.
class DefaultMarks {
public:
    // Filled by the interface file; not owned.
    NSButton *scanningResetBtn = nullptr, *pressesResetBtn = nullptr, *lookResetBtn = nullptr,
             *paletteResetBtn = nullptr, *generalResetBtn = nullptr, *allResetBtn = nullptr;

    /// A setting, or a part of one with its own row: bytes of the record, or bits of one.
    struct Place {
        std::size_t offset, size;
        NSView* view; ///< not owned
        UInt8 bits = 0xFF;

        bool isSameIn(const PrefsRecord& a, const PrefsRecord& b) const;
    };

    /// Sets those settings to the record's values and says what has changed.
    using PutBack = std::function<void(const SettingSet& settings, const PrefsRecord& record)>;

    /// The places in the order in which marks are decided; `tabs` has the sections' pages, and must
    /// outlive it.
    void setup(std::vector<Place> places, const NSView& tabs, PutBack putBack);
    /// Takes the defaults of now, and marks all rows.
    void begin();
    /// Marks rows that aren't at their defaults: those that changed since the last call, or all.
    void update(bool all = false);
    /// The view of the first difference; of several hot keys the one that differs.
    NSView* viewOf(const SettingSet& settings, const PrefsRecord& before,
                   const PrefsRecord& after) const;
    /// Resets the settings that the button stands for, a section's or all, to their defaults.
    void resetSettings(NSButton* sender);

private:
    /// A button and the settings that it resets.
    struct Reset {
        NSButton* button;
        SettingSet settings;
    };

    void markPlace(std::size_t place);
    void updateResets();
    /// The record with that place at its default.
    PrefsRecord withDefault(const Place& place) const;
    void putPlaceBack(std::size_t place);
    const NSView* pageOf(const NSView* view) const;

    PutBack putBack_;
    const NSView* tabs_ = nullptr;
    std::vector<Reset> resets_;
    std::vector<Place> places_; ///< that are shown
    PrefsRecord defaults_;      ///< as they were when the visit began
    PrefsRecord marked_;        ///< the record when marks were last updated
};
