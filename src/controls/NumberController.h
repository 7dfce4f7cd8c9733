// SPDX-License-Identifier: MIT
#pragma once

#include "platform/AppKit/NSView.h"
#include "src/store/prefs.h"

#include <string_view>

/// Is told of every change that a number controller made, by its group.
class NumberChangeTarget {
public:
    virtual void changed(ChangeMask changes) = 0;

protected:
    ~NumberChangeTarget() = default;
};

/// How the bound value is stored. A value of any other kind reads as 0 and is never written.
enum NumberKind : SInt32 {
    kNumberKindDouble = 0,
    kNumberKindSInt32 = 1,
    kNumberKindUInt32 = 2,
};

/// Binds a number in memory to a group of controls. It clamps and rounds what is written, and
/// reports every change of the stored value. It owns no controls.
class NumberController : public NSObject {
public:
    /// The target of all controllers. Not owned; null for none.
    static void setChangeTarget(NumberChangeTarget* target) { changeTarget_ = target; }

    /// `at` isn't owned and may be null: the value then reads as 0 and writes are ignored. Neither
    /// refreshes the controls nor reports anything.
    virtual NumberController* setKind(SInt32 kind, void* at, double min, double max, double inc,
                                      ChangeMask changes);

    SInt32 kind() const { return kind_; }

    double minimum() const { return minValue_; }

    double maximum() const { return maxValue_; }

    double step() const { return incValue_; }

    int pageSteps() const { return pageSteps_; }

    double value() const;

    /// Clamps, converts to the kind and stores. Reports nothing.
    void set(double value);

    /// The control that shows the number. Null when there is none.
    virtual NSView* view() const { return nullptr; }

    /// Shows the stored value in the controls.
    virtual void update() {}

    /// The value snapped toward zero to a multiple of the step. Integers stay as they are.
    double truncValue() const;

    void inc();
    void dec();

    /// Steps per page, for incPage and decPage.
    void setPageSteps(int steps) { pageSteps_ = steps; }

    void incPage();
    void decPage();

    /// Stores a typed number as change does. False and nothing stored when the text is no number,
    /// has a fraction that the kind can't hold, or is outside the limits. A comma counts as a
    /// point. A unit after the number is ignored.
    bool type(std::string_view text);

    /// Stores a value. If that changed what is stored, calls changed.
    void change(double value);

    /// Updates the controls and tells the change target.
    virtual void changed();

private:
    static inline NumberChangeTarget* changeTarget_ = nullptr;

    SInt32 kind_ = kNumberKindDouble;
    void* valuep_ = nullptr;
    double minValue_ = 0;
    double maxValue_ = 0;
    double incValue_ = 0;
    int pageSteps_ = 10;
    ChangeMask changeMask_ = 0;
};
