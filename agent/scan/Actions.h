// SPDX-License-Identifier: MIT
#pragma once

#include "agent/scan/Geometry.h"
#include "platform/CoreFoundation/CFBase.h"

#include <optional>
#include <span>
#include <vector>

/// What a button of the palette does.
enum class ActionKind : UInt8 {
    None,
    // For the next point that is chosen.
    Click,
    DoubleClick,
    RightClick,
    Drag, ///< to the point after it
    Hold, ///< keeps the button down there; further points move it along; Hold again lets go
    Move,
    Shift, ///< with the next click, as is Control
    Control,
    Scroll, ///< the half of the window that the point lies in says whether up or down
    // At once.
    Keys,
    Close,
    Desktop,
    Louder,
    Quieter,
    Mute,
    // The agent's own.
    Type,
    Menus,
    Apps,
    Windows,
    Faster,
    Slower,
    Pause,
    Again
};

/// One action. Its number is its index in kActionRows.
struct ActionRow {
    ActionKind kind = ActionKind::None;
    bool repeats = false;       ///< goes on until a press
    const char* keys = nullptr; ///< of Keys: X's names, as in "Control+c"
};

/// The forty actions. The build makes the table and the pane's list of titles of one source,
/// agent/artwork/actions.py.
extern const std::span<const ActionRow> kActionRows;

/// Something to do now.
struct Deed {
    enum class Kind {
        Click,      ///< at the place, with `kind` (Click, DoubleClick, RightClick) and modifiers
        ButtonDown, ///< the first button, at the place
        ButtonUp,   ///< there
        Move,       ///< the pointer, whatever is held
        GiveUp,     ///< Escape, then the button comes up at the place
        Scroll,     ///< at the place
        Action      ///< `action`, which needs no place
    };
    Kind kind;
    Place place = {};
    ActionKind click = ActionKind::Click;
    bool shift = false, control = false;
    UInt8 action = 0;

    bool operator==(const Deed&) const = default;
};

/// Decides what a choice does: on the palette, or at a point. It knows neither a display nor a
/// clock; moments are seconds on one steady clock.
class Actions {
public:
    static constexpr int kMostRepeats = 50;
    /// A drag, and a button that is held, end by themselves after so many seconds without a point.
    static constexpr double kLongestDrag = 30;
    static constexpr double kLongestHold = 120;

    /// Seconds between two of an action that repeats; not less than kShortestRepeat.
    void setRepeatTime(double seconds);
    static constexpr double kShortestRepeat = 0.1;

    /// A button of the palette was chosen. One that is armed already is disarmed. Numbers above 39
    /// do nothing.
    void chooseButton(UInt8 action, double moment);
    void choosePoint(Place place, double moment);

    /// A press came. True if it ended a repetition: it is for nothing else then.
    bool press();
    /// All that is armed, repeats or is held ends; what was picked up is given up.
    void cancel();

    void advance(double now);
    /// When advance is needed next. Infinite if nothing waits.
    double deadline() const;

    /// What is to be done, in order, since the last call.
    std::vector<Deed> take();

    /// Whether that button looks pressed: it is armed, or what it does goes on.
    bool isOn(UInt8 action) const;

    /// Whether something goes on until a press.
    bool repeats() const { return repetition_.has_value(); }

    /// Whether the next point is clicked.
    bool clicks() const { return !held_ && armed_ <= ActionKind::RightClick; }

    /// Whether a button of the mouse is down.
    bool holds() const { return held_.has_value(); }

private:
    struct Held {
        ActionKind kind; ///< Drag or Hold
        Place began, now;
        double until;
    };

    struct Repetition {
        Deed deed;
        int left;
        double next;
    };

    void arm(ActionKind kind);
    void doOnce(const Deed& deed, bool repeats, double moment);
    void pointWhileHeld(Place place, double moment);
    void giveUp();

    double repeatTime_ = 4;
    ActionKind armed_ = ActionKind::Click;
    bool shift_ = false, control_ = false;
    std::optional<Held> held_;
    std::optional<Repetition> repetition_;
    std::optional<Deed> last_; ///< what Again does
    bool lastRepeats_ = false;
    std::vector<Deed> deeds_;
};
