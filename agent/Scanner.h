// SPDX-License-Identifier: MIT
#pragma once

#include "agent/Link.h"
#include "agent/Sounds.h"
#include "agent/scan/Presses.h"
#include "agent/scan/Scan.h"
#include "agent/x11/Desktop.h"
#include "agent/x11/Guard.h"
#include "agent/x11/Hand.h"
#include "agent/x11/Overlay.h"
#include "agent/x11/Switches.h"
#include "agent/x11/XServer.h"

#include <QTimer>

/// Scans an X11 desktop. A press goes from the switches through the filter to the scan; what is
/// chosen goes to the hand; each frame goes from the scan to the overlay.
class Scanner final : public Link::Listener, private Switches::Listener {
public:
    /// All must outlive it. Begins at once, if the link's settings say so.
    Scanner(Link& link, XServer& server, Guard& guard);
    ~Scanner();

    void settingsChanged() override;
    void paneHoldsKeys(bool holds) override;

private:
    void switchDown(Switch which, double moment) override;
    void switchUp(Switch which, double moment) override;
    void onOffKey() override;
    void showSettingsKey() override;
    void cancelKey() override;

    void useSettings();
    void screensChanged();
    void screenLocked(bool isLocked);
    void lookAtLock();
    Switches::State stateOfSwitches() const;
    void updateSwitches();
    void tellTrouble();

    void act(const Signal& signal);
    void switchOn(bool on);
    void press(const Signal& signal);
    std::vector<Region> regions() const;
    void start(double moment);
    void choose(Place place);
    void cancel();
    void endEverything();
    /// After whatever may have changed the scan: its end, its choice, the next deadline, the
    /// picture.
    void follow();
    void frame();

    Link& link_;
    XServer& server_;
    Guard& guard_;
    Desktop desktop_;
    Switches switches_;
    Hand hand_;
    Overlay overlay_;
    Sounds sounds_;
    PrefsRecord settings_; ///< as used last
    Presses presses_;
    Scan scan_;
    QTimer deadline_; ///< of presses and scan
    QTimer frames_;   ///< runs while a scan is under way
    QTimer lockLook_; ///< runs while a lock that tells nobody is up
    bool isLocked_ = false;
    std::string toldTrouble_;
};
