// SPDX-License-Identifier: MIT
#pragma once

#include "agent/EventLog.h"
#include "platform/CoreServices/AppleEvents.h"
#include "platform/CoreServices/ChangeWatch.h"
#include "src/record/differences.h"

#include <optional>
#include <string>

/// The agent's side of docs/agent-contract.md. It receives the pane's events and logs them; it
/// keeps the settings in force, and reports and stores what the agent changes by itself.
class Link {
public:
    /// Is told of what others decide.
    class Listener {
    public:
        /// The settings are other ones now: see Link::settings.
        virtual void settingsChanged() = 0;
        /// The pane needs the keys, or gives them back.
        virtual void paneHoldsKeys(bool holds) = 0;

    protected:
        ~Listener() = default;
    };

    /// `log` must outlive the link.
    explicit Link(const EventLog& log);

    /// From now on receives events. One link per process.
    void installHandlers();

    /// Not owned; null for none.
    void setListener(Listener* listener) { listener_ = listener; }

    /// Reads the stored settings. Scanning is on or off as "activate at launch" says; a difference
    /// to what is stored is stored and reported. An agent that is back after a crash goes on as it
    /// was. Call it once this process takes part: what a pane
    /// stores before that is read, what it changes later is sent.
    void readSettings(bool isBack);

    /// In force now, each value within its limits (checkedRecord).
    const PrefsRecord& settings() const { return settings_; }

    bool paneHoldsKeys() const { return paneHolds_; }

    /// Switches scanning on or off, stores and reports it, and tells the listener.
    void switchTo(bool on);

    /// Gives these settings the record's values, which are checked ones: in an open pane, which
    /// shows, sends and stores them; else here, stores them, and tells the listener. Never waits.
    void change(const SettingSet& settings, const PrefsRecord& record);

    /// Why nothing scans, in a sentence, or empty: told to the pane now and at each opening.
    void setTrouble(const std::string& text);

private:
    using Handler = OSErr (Link::*)(const AppleEvent& event);

    template <Handler handler>
    void install(AEEventClass eventClass, AEEventID eventID);

    OSErr paneOpened(const AppleEvent& event);
    OSErr paneClosed(const AppleEvent& event);
    OSErr setAllPrefs(const AppleEvent& event);
    OSErr holdKeys(const AppleEvent& event);
    OSErr quit(const AppleEvent& event);
    void processesChanged();
    void setPaneHolds(bool holds);
    void send(AEEventID event, DescType type, const void* data, std::size_t size);
    static AppleEvent eventTo(const ProcessSerialNumber& process, AEEventID eventID);
    void store(const SettingSet& settings, const PrefsRecord& record);
    void settingsChanged();

    const EventLog& log_;
    Listener* listener_ = nullptr;
    PrefsRecord settings_;
    std::string trouble_;
    bool paneIsClosed_ = false; ///< as it said
    bool paneHolds_ = false;
    ProcessSerialNumber pane_ = kNoProcess; ///< from its opening event
    std::optional<ChangeWatch> processes_;
};
