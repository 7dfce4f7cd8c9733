// SPDX-License-Identifier: MIT
#pragma once

#include "agent/session/Switches.h"
#include "platform/CoreServices/AppleEvents.h"

#include <map>
#include <set>

/// Hears what the desktop's own shortcuts tell by the event 'PPsw' (docs/agent-contract.md), as
/// `korvex-preferences press` sends it. Which keys those are is the desktop's matter. Each event
/// comes from a process of its own, so that a short press may be overtaken by its release: the
/// moments tell their order. One per process.
class ShortcutSwitches final : public Switches {
public:
    /// It must outlive it.
    explicit ShortcutSwitches(Listener& listener);
    ~ShortcutSwitches() override;

    void use(const PrefsRecord& record, double scale) override;

    void setState(State state) override;

    /// What an event says: that the record's hot key of that index went down, or came up. Free and
    /// unknown keys are left alone.
    void take(UInt32 key, bool isDown, double moment);

    /// Until the first event came to this user's agent, how to make the desktop send some; and
    /// that holding isn't told, if that matters.
    std::string trouble() const override;

    /// A press without a release before is the keyboard's repeat when it comes within so many
    /// seconds of the last one. Later it is a new one, and the desktop tells no releases.
    static constexpr double kRepeat = 0.7;

private:
    /// What the desktop tells. Without releases a press is over at once: it can't be held.
    enum class Heard { Nothing, Presses, Releases };

    static OSErr handle(const AppleEvent* event, AppleEvent* reply, void* self);
    OSErr hear(const AppleEvent& event);
    void press(UInt32 key, double moment);
    void tellPress(UInt32 key, double moment);
    void letGo(UInt32 key, double moment);

    Listener& listener_;
    Heard heard_;
    bool needsRelease_ = false; ///< by the settings
    State state_ = State::Free;
    std::set<UInt32> held_;
    std::map<UInt32, double> pressed_, released_; ///< when keys were told last
};
