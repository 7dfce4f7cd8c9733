// SPDX-License-Identifier: MIT
#include "src/link/Daemon.h"

#include "platform/CoreServices/ChangeWatch.h"
#include "platform/CoreServices/LaunchServices.h"
#include "platform/CoreServices/LaunchTrouble.h"
#include "src/pane/PreferenceWrangler.h"
#include "src/record/palactions.h"

#include <optional>
#include <utility>

namespace {

constexpr OSType kAgentProcessType = fourCharCode("APPL");
constexpr OSType kAgentSignature = fourCharCode("Krvx");
constexpr AEEventClass kAgentEventClass = fourCharCode("Krvx");
constexpr AEEventID kPaneOpened = fourCharCode("PPop");
constexpr AEEventID kPaneClosed = fourCharCode("PPcl");
constexpr AEEventID kSetAllPrefs = fourCharCode("SAPr");
constexpr AEEventID kAgentOnOff = fourCharCode("PPon");
constexpr AEKeyword keyChanges = fourCharCode("Chng");
constexpr AEKeyword keyPaneProcess = fourCharCode("tPSN");
constexpr DescType typePrefsRecord = fourCharCode("KrPf");

constexpr AESendMode kSimpleSendMode = kAENoReply | kAEDontRecord;

ProcessSerialNumber daemonPSN;   ///< the agent as last found; else kNoProcess
ProcessSerialNumber informedPSN; ///< the agent that has been told everything it couldn't read
ProcessSerialNumber quitPSN;     ///< the agent that was last asked to quit
bool openingLaunched = false;    ///< opening the pane launched an agent that isn't up yet
std::optional<ChangeMask> changesOfVisit; ///< all of this visit; a mask may be 0
CFRef<const CFString> daemonExecutablePath;
CFRef<CFBundle> daemonBundle; ///< made on first request
AEEventHandler aehandler = nullptr;
std::optional<ChangeWatch> processWatch;
std::optional<ChangeWatch> launchWatch;

/// Whether the process of daemonPSN still runs.
bool daemonPSNIsValid() {
    pid_t pid;
    return daemonPSN != kNoProcess && GetProcessPID(&daemonPSN, &pid) == noErr;
}

/// Looks for the agent, unless daemonPSN is still valid. If it doesn't run the result is false, and
/// daemonPSN keeps its old value.
bool findDaemon() {
    if (daemonPSNIsValid())
        return true;
    ProcessSerialNumber psn = kNoProcess;
    while (GetNextProcess(&psn) == noErr) {
        ProcessInfoRec info{.processInfoLength = kProcessInfoRecLength};
        if (GetProcessInformation(&psn, &info) == noErr && info.processType == kAgentProcessType &&
            info.processSignature == kAgentSignature) {
            daemonPSN = psn;
            return true;
        }
    }
    return false;
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
        AEPutParamPtr(&event, keyDirectObject, typePrefsRecord, &prefs, sizeof prefs) == noErr &&
        AEPutParamPtr(&event, keyChanges, typeUInt32, &changes, sizeof changes) == noErr)
        AESend(&event, &reply, mode, kAEDefaultTimeout);
}

/// An agent that came up after the pane opened has missed the changes so far, which aren't stored
/// yet. It may have missed the opening too. Tells it both.
void informDaemon() {
    if (daemonPSN == informedPSN)
        return;
    informedPSN = daemonPSN;
    if (std::exchange(openingLaunched, false))
        sendPaneOpened();
    if (changesOfVisit)
        sendRecord(*changesOfVisit, kAENoReply);
}

void processesChanged() {
    if (findDaemon())
        informDaemon();
    wranglerShowAgentState();
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
    wranglerSetMasterOnOff(on != 0);
    findDaemon();
    return noErr;
}

} // namespace

void daemonSetup(const CFString* path) {
    if (path)
        daemonExecutablePath = CFRef<const CFString>::retain(path);
    palutilUseBundle(daemonMainBundle);
    if (AEInstallEventHandler(kAgentEventClass, typeWildCard, ae, nullptr) == noErr)
        aehandler = ae;
    processWatch = watchProcesses(processesChanged);
    launchWatch = watchLaunches(wranglerShowAgentState);
    changesOfVisit.reset();
    openingLaunched = !findDaemon();
    if (openingLaunched) {
        daemonStart();
    } else {
        informedPSN = daemonPSN;
        sendPaneOpened();
    }
}

void daemonCleanup() {
    openingLaunched = false; // the pane isn't open any more
    if (findDaemon()) {
        informDaemon(); // it may have read the settings just before they were stored
        sendSimpleDaemonEvent(kAgentEventClass, kPaneClosed);
    }
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

AgentState daemonState() {
    if (findDaemon() && daemonPSN != quitPSN)
        return AgentState::Running;
    const bool isAwaited = daemonExecutablePath && isLaunching(toUTF8(daemonExecutablePath.get()));
    return isAwaited ? AgentState::Starting : AgentState::NotRunning;
}

CFBundle* daemonMainBundle() {
    if (!daemonBundle && daemonExecutablePath)
        if (const auto url = CFURLCreateWithFileSystemPath(daemonExecutablePath.get(), true))
            daemonBundle = CFBundleCreate(url.get());
    return daemonBundle.get();
}
