// SPDX-License-Identifier: MIT
#include "src/link/Daemon.h"

#include "platform/CoreServices/ChangeWatch.h"
#include "platform/CoreServices/LaunchServices.h"
#include "platform/CoreServices/LaunchTrouble.h"
#include "src/link/agentsays.h"
#include "src/record/palactions.h"

#include <optional>
#include <utility>

namespace {

constexpr OSType kAgentSignature = fourCharCode("Krvx");
constexpr AEEventClass kAgentEventClass = fourCharCode("Krvx");
constexpr AEEventID kPaneOpened = fourCharCode("PPop");
constexpr AEEventID kPaneClosed = fourCharCode("PPcl");
constexpr AEEventID kSetAllPrefs = fourCharCode("SAPr");
constexpr AEEventID kHoldKeys = fourCharCode("PPhd");
constexpr AEEventID kAgentOnOff = fourCharCode("PPon");
constexpr AEEventID kAgentSays = fourCharCode("PPsy");
constexpr AEKeyword keyChanges = fourCharCode("Chng");
constexpr AEKeyword keyPaneProcess = fourCharCode("tPSN");
constexpr DescType typePrefsRecord = fourCharCode("KrPf");

constexpr AESendMode kSimpleSendMode = kAENoReply | kAEDontRecord;

ProcessSerialNumber daemonPSN;   ///< the agent as last found; else kNoProcess
ProcessSerialNumber informedPSN; ///< the agent that has been told everything it couldn't read
ProcessSerialNumber quitPSN;     ///< the agent that was last asked to quit
ProcessSerialNumber sayingPSN;   ///< the agent whose message is shown
bool openingIsUntold = false;    ///< no agent has been told of it
int keyHolders = 0;              ///< parts of the pane that need the keys now
std::optional<ChangeMask> changesOfVisit; ///< all of this visit; a mask may be 0
CFRef<const CFString> daemonExecutablePath;
CFRef<CFBundle> daemonBundle; ///< made on first request
AEEventHandler aehandler = nullptr;
AgentReports reportTo = {[](bool) {}, [] {}};
std::optional<ChangeWatch> processWatch;
std::optional<ChangeWatch> launchWatch;

bool takesPart(const ProcessSerialNumber& psn) {
    pid_t pid;
    return psn != kNoProcess && GetProcessPID(&psn, &pid) == noErr;
}

/// Looks for the agent, unless that of daemonPSN still takes part. If there is none the result is
/// false, and daemonPSN keeps its old value.
bool findDaemon() {
    if (!takesPart(informedPSN)) // it may come again on the same connection, and has missed things
        informedPSN = kNoProcess;
    if (takesPart(daemonPSN))
        return true;
    const ProcessSerialNumber found = findApplication(kAgentSignature);
    if (found != kNoProcess)
        daemonPSN = found;
    return found != kNoProcess;
}

void daemonStart() {
    if (!daemonExecutablePath)
        return;
    if (const auto url = CFURLCreateWithFileSystemPath(daemonExecutablePath.get(), true))
        LSOpenCFURLRef(url.get(), nullptr);
}

// The following send to the agent that findDaemon has found.

bool newDaemonAppleEvent(AppleEvent* event, AEEventClass eventClass, AEEventID eventID) {
    AEAddressDesc address;
    return AECreateDesc(typeProcessSerialNumber, &daemonPSN, sizeof daemonPSN, &address) == noErr &&
           AECreateAppleEvent(eventClass, eventID, &address, kAutoGenerateReturnID,
                              kAnyTransactionID, event) == noErr;
}

bool sendSimpleDaemonEvent(AEEventClass eventClass, AEEventID eventID) {
    AppleEvent event, reply;
    return newDaemonAppleEvent(&event, eventClass, eventID) &&
           AESend(&event, &reply, kSimpleSendMode, kAEDefaultTimeout) == noErr;
}

/// Tells the agent whether the pane needs the keys.
void sendHoldKeys() {
    AppleEvent event, reply;
    const UInt8 hold = keyHolders > 0;
    if (newDaemonAppleEvent(&event, kAgentEventClass, kHoldKeys) &&
        AEPutParamPtr(&event, keyDirectObject, typeBoolean, &hold, sizeof hold) == noErr)
        AESend(&event, &reply, kSimpleSendMode, kAEDefaultTimeout);
}

/// Tells the agent which process it may report to.
void sendPaneOpened() {
    AppleEvent event, reply;
    ProcessSerialNumber self;
    if (newDaemonAppleEvent(&event, kAgentEventClass, kPaneOpened) &&
        GetCurrentProcess(&self) == noErr &&
        AEPutParamPtr(&event, keyPaneProcess, typeProcessSerialNumber, &self, sizeof self) == noErr)
        AESend(&event, &reply, kSimpleSendMode, kAEDefaultTimeout);
}

void sendRecord(ChangeMask changes, AESendMode mode) {
    AppleEvent event, reply;
    if (newDaemonAppleEvent(&event, kAgentEventClass, kSetAllPrefs) &&
        AEPutParamPtr(&event, keyDirectObject, typePrefsRecord, &prefs, kRecordSize) == noErr &&
        AEPutParamPtr(&event, keyChanges, typeUInt32, &changes, sizeof changes) == noErr)
        AESend(&event, &reply, mode, kAEDefaultTimeout);
}

/// An agent that came up after the pane opened has missed the changes so far, which aren't stored
/// yet. It may have missed the opening too, and that the keys are needed. Tells it all.
///
/// Clicks with Alt held were for the agent of their moment. None of them switches off a later one.
void informDaemon() {
    if (daemonPSN == informedPSN)
        return;
    informedPSN = daemonPSN;
    if (std::exchange(openingIsUntold, false))
        sendPaneOpened();
    if (keyHolders > 0)
        sendHoldKeys();
    if (changesOfVisit)
        sendRecord(prefs.on ? *changesOfVisit : *changesOfVisit & ~kChangeForceOnOff, kAENoReply);
}

void processesChanged() {
    if (findDaemon())
        informDaemon();
    if (!takesPart(sayingPSN))
        withdrawSaying(); // gone with the agent
    reportTo.stateChanged();
}

/// Handles a message of the agent.
OSErr aeSays(const AppleEvent* event, AppleEvent*, void*) {
    if (!findDaemon())
        return errAEEventNotHandled;
    const OSErr error = showSaying(*event);
    if (error == noErr)
        sayingPSN = daemonPSN;
    return error;
}

/// Handles events of the agent's class: reports of its on/off state.
OSErr ae(const AppleEvent* event, AppleEvent*, void*) {
    AEEventID eventID;
    std::size_t size;
    if (const OSErr error = AEGetAttributePtr(event, keyEventIDAttr, typeType, nullptr, &eventID,
                                              sizeof eventID, &size))
        return error;
    if (eventID != kAgentOnOff)
        return errAEEventNotHandled;
    UInt8 on = 0;
    if (const OSErr error =
            AEGetParamPtr(event, keyDirectObject, typeBoolean, nullptr, &on, sizeof on, &size))
        return error;
    if (size != sizeof on)
        return noErr;
    reportTo.switched(on != 0);
    findDaemon();
    return noErr;
}

} // namespace

void daemonReportTo(const AgentReports& reports) {
    reportTo = reports;
}

void daemonSetup(const CFString* path) {
    if (path)
        daemonExecutablePath = CFRef<const CFString>::retain(path);
    palutilUseBundle(daemonMainBundle);
    if (AEInstallEventHandler(kAgentEventClass, typeWildCard, ae, nullptr) == noErr)
        aehandler = ae;
    AEInstallEventHandler(kAgentEventClass, kAgentSays, aeSays, nullptr);
    keepLastReportOnly(kAgentEventClass, kAgentOnOff);
    processWatch = watchProcesses(processesChanged);
    launchWatch = watchLaunches(reportTo.stateChanged);
    changesOfVisit.reset();
    informedPSN = kNoProcess;
    openingIsUntold = true;
    if (findDaemon())
        informDaemon();
    else
        daemonStart();
}

void daemonCleanup() {
    openingIsUntold = false; // the pane isn't open any more
    if (findDaemon()) {
        informDaemon(); // it may have read the settings just before they were stored
        sendSimpleDaemonEvent(kAgentEventClass, kPaneClosed);
    }
    AERemoveEventHandler(kAgentEventClass, kAgentSays, aeSays);
    withdrawSaying();
    processWatch.reset();
    launchWatch.reset();
    if (aehandler)
        AERemoveEventHandler(kAgentEventClass, typeWildCard, aehandler);
    aehandler = nullptr;
    daemonBundle = nullptr;
    daemonExecutablePath = nullptr;
}

void daemonSendChanges(ChangeMask changes, bool doNotWait) {
    const bool isRunning = findDaemon();
    if (isRunning)
        informDaemon();
    changesOfVisit = changesOfVisit.value_or(0) | changes;
    if ((changes & kChangeForceOnOff) && !prefs.on) {
        if (isRunning)
            sendSimpleDaemonEvent(kCoreEventClass, kAEQuitApplication);
        quitPSN = std::exchange(daemonPSN, kNoProcess);
        return;
    }
    if (prefs.on && (!isRunning || daemonPSN == quitPSN))
        daemonStart();
    if (isRunning)
        sendRecord(changes, doNotWait ? kAENoReply : kAEWaitReply);
}

void daemonHoldKeys(bool hold) {
    const bool wasHeld = keyHolders > 0;
    keyHolders += hold ? 1 : -1;
    const bool isChange = wasHeld != (keyHolders > 0);
    if (!isChange || !processWatch || !findDaemon())
        return;
    if (daemonPSN == informedPSN)
        sendHoldKeys();
    else
        informDaemon();
}

void AgentHold::set(bool isWanted) {
    if (std::exchange(isHeld_, isWanted) != isWanted)
        daemonHoldKeys(isWanted);
}

AgentState daemonState() {
    if (findDaemon() && daemonPSN != quitPSN)
        return AgentState::Running;
    if (!daemonMainBundle())
        return AgentState::NotInstalled;
    if (isLaunching(toUTF8(daemonExecutablePath.get())))
        return AgentState::Starting;
    return daemonPSN != kNoProcess && daemonPSN != quitPSN ? AgentState::Ended
                                                           : AgentState::NotRunning;
}

void daemonLaunch() {
    if (daemonExecutablePath && !findDaemon())
        launchAgain(toUTF8(daemonExecutablePath.get()));
}

CFBundle* daemonMainBundle() {
    if (!daemonBundle && daemonExecutablePath)
        if (const auto url = CFURLCreateWithFileSystemPath(daemonExecutablePath.get(), true))
            daemonBundle = CFBundleCreate(url.get());
    return daemonBundle.get();
}
