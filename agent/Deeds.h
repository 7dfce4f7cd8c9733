// SPDX-License-Identifier: MIT
#pragma once

#include "agent/Openers.h"
#include "agent/Sequence.h"
#include "agent/Typing.h"
#include "agent/Volume.h"
#include "agent/scan/Actions.h"
#include "agent/scan/Region.h"
#include "agent/session/Session.h"
#include "src/record/differences.h"

#include <QTimer>

#include <optional>
#include <string>

/// Carries out what the palette's actions say. What takes time, such as a drag, goes on by itself,
/// and what comes meanwhile waits for its end.
class Deeds {
public:
    /// Does what is the scanner's.
    class Listener {
    public:
        /// What was begun can't be done: why, in a sentence.
        virtual void cantDo(const std::string& why) = 0;
        /// A menu or a keyboard has opened, which is to be scanned at once.
        virtual void scanNow() = 0;
        /// The switch is left alone until it is held for four seconds.
        virtual void pause() = 0;
        /// These settings get the record's values.
        virtual void change(const SettingSet& settings, const PrefsRecord& record) = 0;

    protected:
        ~Listener() = default;
    };

    /// All must outlive it.
    Deeds(Session& session, Listener& listener);
    ~Deeds();
    Deeds(const Deeds&) = delete;
    Deeds& operator=(const Deeds&) = delete;

    /// `settings` is a checked record. Why it can't be done, in a sentence, or empty.
    std::string carryOut(const Deed& deed, const PrefsRecord& settings);

    /// Adds what it has opened to be scanned: the keyboard, a list.
    void addTo(Surroundings& around) const;

    /// Closes the list to choose from, if one is open.
    void closeList() { openers_.close(); }

    /// A scan has run to its end without a choice: what was opened for it is closed.
    void scanRanOut(const PrefsRecord& settings);

    /// Drops what is under way. Nothing is held afterwards.
    void letGo();

private:
    using Doer = std::string (Deeds::*)(const ActionRow& row);

    std::string act(const ActionRow& row);
    std::string keys(const ActionRow& row);
    std::string close(const ActionRow& row);
    std::string desktop(const ActionRow& row);
    std::string type(const ActionRow& row);
    std::string menus(const ActionRow& row);
    std::string apps(const ActionRow& row);
    std::string windows(const ActionRow& row);
    std::string louder(const ActionRow& row);
    std::string quieter(const ActionRow& row);
    std::string mute(const ActionRow& row);
    std::string faster(const ActionRow& row);
    std::string slower(const ActionRow& row);
    std::string pause(const ActionRow& row);
    bool changeTimes(int steps);
    void click(const Deed& deed, const PrefsRecord& settings);
    void pickUp(Place place);
    void moveTo(Place place);
    void drop(Place place);
    void giveUp(Place place);
    void scroll(Place place);
    void afterUsersKeys();
    void lookForUsersKeys();

    Hand& hand_;
    Typist& typist_;
    Windows& windows_;
    Listener& listener_;
    Volume volume_;
    Typing typing_;
    Openers openers_;
    Sequence sequence_;
    int act_ = 0;               ///< counts how often what was under way was dropped
    std::optional<Place> held_; ///< where the pointer will be, while a button is down
    QTimer keysUp_;
    double keysUpUntil_ = 0;
    PrefsRecord settings_; ///< of the action that is carried out
};
