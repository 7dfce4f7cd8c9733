// SPDX-License-Identifier: MIT
#include "src/pane/PreferenceWrangler.h"

#include "platform/AppKit/NSMatrix.h"
#include "platform/AppKit/NSTextField.h"
#include "platform/AppKit/UserMessages.h"
#include "platform/CoreFoundation/Localization.h"
#include "platform/CoreServices/LaunchTrouble.h"
#include "platform/HIToolbox/CarbonEvents.h"
#include "src/link/Daemon.h"
#include "src/record/keycombo.h"

namespace {

constexpr char kOffTopic[] = "off";
constexpr char kAgentTopic[] = "agent";

std::string stateText(AgentState agent) {
    switch (agent) {
    case AgentState::NotInstalled:
        return localized("Switch", "Nothing scans: no agent is installed");
    case AgentState::Starting:
        return localized("Switch", "Korvex is starting…");
    case AgentState::NotRunning:
    case AgentState::Ended:
        return localized("Switch", "Korvex isn’t running");
    case AgentState::Running:
        break;
    }
    if (!prefs.on)
        return localized("Switch", "Off");
    return hearsPresses(prefs) ? localized("Switch", "Ready for your switch")
                               : localized("Switch", "No press is heard");
}

/// How to switch on again without this window. A running agent that is off listens for the switch
/// being held, and for its hot key.
std::string wayBackText(bool agentStays) {
    const auto keys = createKeyComboString(prefs.hotKeys[0].modifiers, prefs.hotKeys[0].keyCode);
    const bool hasKeys = agentStays && keys && prefs.hotKeys[0].keyCode >= 0;
    const bool hasSwitch = agentStays && hearsPresses(prefs);
    if (!hasKeys && !hasSwitch)
        return localized("Switch", "Scanning is off, and only this window switches it on again.");
    if (!hasKeys)
        return localized("Switch", "Scanning is off. Hold your switch for four seconds to switch "
                                   "it on again.");
    return filled(hasSwitch ? localized("Switch", "Scanning is off. Hold your switch for four "
                                                  "seconds to switch it on again, or press %1.")
                            : localized("Switch", "Scanning is off. %1 switches it on again."),
                  {toUTF8(keys.get())});
}

bool isUp(AgentState agent) {
    return agent == AgentState::Running || agent == AgentState::Starting;
}

/// A user who switched scanning off by mistake may have no other way to act.
void tellHowToSwitchOn(bool agentStays) {
    tellUser(kOffTopic, {.kind = UserMessage::Kind::Note,
                         .text = wayBackText(agentStays && isUp(daemonState())),
                         .buttons = {{localized("Switch", "Switch on"), [] {
                                          if (theWrangler)
                                              theWrangler->switchOn();
                                      }}}});
}

/// Says why nothing can scan. An agent that keeps ending or doesn't start is reported elsewhere.
void tellOfAgent(AgentState agent) {
    if (agent == AgentState::NotInstalled)
        tellUser(kAgentTopic,
                 {.kind = UserMessage::Kind::Note,
                  .text = localized("Switch", "No agent is installed, so nothing scans. You can "
                                              "make all settings."),
                  .buttons = {{localized("Switch", "What to do"), [] {
                                   if (theWrangler)
                                       theWrangler->showHelpPage(CFSTR("scanner.html"));
                               }}}});
    else if (agent == AgentState::Ended && !findLaunchTrouble())
        tellUser(kAgentTopic, {.text = localized("Switch", "Korvex has ended by itself, so nothing "
                                                           "is scanned now."),
                               .buttons = {{localized("Switch", "Start"), daemonLaunch}}});
    else
        withdrawMessage(kAgentTopic);
}

} // namespace

void PreferenceWrangler::updateMasterOnOff() {
    masterOnOffRadios_->selectCellWithTag(prefs.on);
    masterOnOffRadios_->setEnabled(true);
    updateMasterState();
    if (prefs.on)
        withdrawMessage(kOffTopic);
}

void PreferenceWrangler::updateMasterState() {
    const AgentState agent = daemonState();
    masterState_->setStringValue(stateText(agent));
    if (agent != shownAgent_)
        tellOfAgent(agent);
    shownAgent_ = agent;
    firstStepsUpdate();
}

void PreferenceWrangler::setMasterOnOff(bool on) {
    if ((prefs.on != 0) != on) {
        prefs.on = on;
        prefsWereChanged();
        prefsKeepChanges();
        history_.follow(prefs);
        if (!on)
            tellHowToSwitchOn(true);
    }
    updateMasterOnOff();
}

void PreferenceWrangler::changedMasterOnOff(NSMatrix* sender) {
    const int tag = sender->selectedTag();
    const bool force = GetCurrentEventKeyModifiers() & optionKey;
    if (tag == prefs.on && !force) {
        if (prefs.on)
            daemonLaunch();
        return;
    }
    if (force)
        SysBeep(1);
    prefs.on = static_cast<UInt8>(tag);
    updateMasterOnOff();
    changed(force ? kChangeOnOff | kChangeForceOnOff : kChangeOnOff);
    if (!prefs.on)
        tellHowToSwitchOn(!force);
}

void PreferenceWrangler::switchOn() {
    prefs.on = 1;
    updateMasterOnOff();
    changed(kChangeOnOff);
}

ChangeMask PreferenceWrangler::settle() {
    return changesOf(guard_.settle());
}
