#include "src/prefpane/Daemon.h"

#include "platform/CoreServices/LaunchServices.h"
#include "src/prefpane/PreferenceWrangler.h"

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

ProcessSerialNumber daemonPSN; ///< the agent as last found; kNoProcess when unknown
CFRef<const CFString> daemonExecutablePath;
CFRef<CFBundle> daemonBundle; ///< made on first request
AEEventHandler aehandler = nullptr;

/// Whether the agent is running; daemonPSN then names it.
bool daemonPSNIsValid() {
    pid_t pid;
    if (daemonPSN != kNoProcess && GetProcessPID(&daemonPSN, &pid) == noErr)
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

/// Makes an event for the agent; false when it isn't running.
bool newDaemonAppleEvent(AppleEvent* event, AEEventClass eventClass, AEEventID eventID) {
    if (!daemonPSNIsValid())
        return false;
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

/// Handles the events of the agent's class: its reports of its on/off state.
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
    daemonPSNIsValid();
    return noErr;
}

} // namespace

void daemonSetup(const CFString* path) {
    if (path)
        daemonExecutablePath = CFRef<const CFString>::retain(path);
    if (AEInstallEventHandler(kAgentEventClass, typeWildCard, ae, nullptr) == noErr)
        aehandler = ae;
    if (daemonPSNIsValid())
        sendPaneOpened();
    else
        daemonStart();
}

void daemonCleanup() {
    if (daemonPSNIsValid())
        sendSimpleDaemonEvent(kAgentEventClass, kPaneClosed);
    if (aehandler)
        AERemoveEventHandler(kAgentEventClass, typeWildCard, aehandler);
    aehandler = nullptr;
    daemonBundle = nullptr;
    daemonExecutablePath = nullptr;
}

void daemonSendChanges(ChangeMask changes, bool doNotWait) {
    if ((changes & kChangeForceOnOff) && !prefs.on) {
        sendSimpleDaemonEvent(kCoreEventClass, kAEQuitApplication);
        daemonPSN = kNoProcess;
        return;
    }
    if (prefs.on && !daemonPSNIsValid())
        daemonStart();

    AppleEvent event, reply;
    if (newDaemonAppleEvent(&event, kAgentEventClass, kSetAllPrefs) &&
        AEPutParamPtr(&event, keyDirectObject, typePrefsRecord, &prefs, sizeof prefs) == noErr &&
        AEPutParamPtr(&event, keyChanges, typeUInt32, &changes, sizeof changes) == noErr)
        AESend(&event, &reply, doNotWait ? kAENoReply : kAEWaitReply, kAEDefaultTimeout);
}

CFBundle* daemonMainBundle() {
    if (!daemonBundle && daemonExecutablePath)
        if (const auto url = CFURLCreateWithFileSystemPath(daemonExecutablePath.get(), true))
            daemonBundle = CFBundleCreate(url.get());
    return daemonBundle.get();
}
