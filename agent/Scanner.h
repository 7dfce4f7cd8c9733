// SPDX-License-Identifier: MIT
#pragma once

#include "agent/Deeds.h"
#include "agent/Link.h"
#include "agent/Palette.h"
#include "agent/Snapping.h"
#include "agent/Sounds.h"
#include "agent/scan/Presses.h"
#include "agent/scan/Scan.h"
#include "agent/session/Overlay.h"
#include "agent/session/ScreenLock.h"
#include "agent/session/Session.h"

#include <QTimer>

/// Scans a session. A press goes from the switches through the filter to the scan; what is
/// chosen goes to the actions, and what these decide is carried out. Each frame goes from the scan
/// to the overlay and the palette.
class Scanner final : public Link::Listener, private Switches::Listener, private Deeds::Listener {
public:
    /// All must outlive it. Begins at once, if the link's settings say so.
    Scanner(Link& link, Session& session, Guard& guard);
    ~Scanner();

    void settingsChanged() override;
    void paneHoldsKeys(bool holds) override;

private:
    void switchDown(Switch which, double moment) override;
    void switchUp(Switch which, double moment) override;
    void onOffKey() override;
    void showSettingsKey() override;
    void cancelKey() override;

    void cantDo(const std::string& why) override;
    void scanNow() override;
    void pause() override;
    void change(const SettingSet& settings, const PrefsRecord& record) override;

    void useSettings();
    void screensChanged();
    void activeWindowChanged();
    void screenLocked(bool isLocked);
    void lookAtLock();

    bool isActive() const { return settings_.on && !isPaused_; }

    Switches::State stateOfSwitches() const;
    void updateSwitches();
    void tellTrouble();

    void act(const Signal& signal);
    void switchOn(bool on);
    void press(const Signal& signal);
    std::vector<Region> regions() const;
    void start(double moment);
    void choose(Place place);
    std::optional<Area> targetAt(Place place) const;
    void carryOut();
    void sound(const Deed& deed);
    void cancel();
    void endEverything();
    /// After whatever may have changed the scan: its end, its choice, the next deadline, the
    /// picture.
    void follow();
    void letBeWatched();
    void frame();
    void showPalette();

    Link& link_;
    Session& session_;
    Guard& guard_;
    Desktop& desktop_;
    Hand& hand_;
    std::unique_ptr<Switches> switches_;
    ScreenLock lock_;
    Deeds deeds_;
    Actions actions_;
    Palette palette_;
    Overlay overlay_; ///< above the palette, and that above a list of the deeds
    Sounds sounds_;
    Snapping snapping_;
    PrefsRecord settings_; ///< as used last
    Presses presses_;
    Scan scan_;
    QTimer deadline_; ///< of presses, scan, actions and the fault
    QTimer heart_;    ///< beats for the guard while it watches
    QTimer frames_;   ///< runs while a scan is under way
    QTimer lockLook_; ///< runs while a lock that tells nobody is up
    bool isLocked_ = false;
    bool hasOutcome_ = true; ///< the scan was cancelled, or something was chosen
    bool isPaused_ = false;  ///< by the user: as if it were off
    std::string toldTrouble_;
    std::string fault_; ///< of what couldn't be done, until then
    double faultEnd_ = 0;
};
