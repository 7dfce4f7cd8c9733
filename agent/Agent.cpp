// SPDX-License-Identifier: MIT
#include "agent/Agent.h"

#include "platform/CoreFoundation/CFPreferences.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

constexpr AEEventClass kAgentClass = fourCharCode("Krvx");
constexpr DescType typePrefsRecord = fourCharCode("KrPf");
constexpr std::size_t kRecordSize = 340; ///< bytes; the first one is the on/off state

const CFString* const kDomain = CFSTR("org.korvex.Agent");
const CFString* const kOnKey = CFSTR("on");

bool storedState() {
    bool exists = false;
    const bool on = CFPreferencesGetAppBooleanValue(kOnKey, kDomain, &exists);
    return on || !exists;
}

std::string line(const QJsonObject& event) {
    return QJsonDocument(event).toJson(QJsonDocument::Compact).toStdString();
}

/// Reads a parameter that has exactly the type and size of `value`.
template <class T>
OSErr read(const AppleEvent& event, AEKeyword keyword, DescType type, T& value) {
    std::size_t size = 0;
    const OSErr error = AEGetParamPtr(&event, keyword, type, nullptr, &value, sizeof value, &size);
    return error == noErr && size != sizeof value ? paramErr : error;
}

} // namespace

Agent::Agent(const EventLog& log) : log_(log) {}

void Agent::readStoredState() {
    on_ = storedState();
}

template <Agent::Handler handler>
void Agent::install(AEEventClass eventClass, AEEventID eventID) {
    const AEEventHandler call = [](const AppleEvent* event, AppleEvent*, void* agent) {
        return (static_cast<Agent*>(agent)->*handler)(*event);
    };
    AEInstallEventHandler(eventClass, eventID, call, this);
}

void Agent::installHandlers() {
    install<&Agent::paneOpened>(kAgentClass, fourCharCode("PPop"));
    install<&Agent::paneClosed>(kAgentClass, fourCharCode("PPcl"));
    install<&Agent::setAllPrefs>(kAgentClass, fourCharCode("SAPr"));
    install<&Agent::holdKeys>(kAgentClass, fourCharCode("PPhd"));
    install<&Agent::quit>(kCoreEventClass, kAEQuitApplication);
}

OSErr Agent::paneOpened(const AppleEvent& event) {
    ProcessSerialNumber pane;
    if (const OSErr error = read(event, fourCharCode("tPSN"), typeProcessSerialNumber, pane))
        return error;
    pane_ = pane;
    paneIsClosed_ = false;
    log_.append(line({{"event", "PPop"},
                      {"psn", QJsonArray{qint64{pane.highLongOfPSN}, qint64{pane.lowLongOfPSN}}}}));
    return noErr;
}

OSErr Agent::paneClosed(const AppleEvent&) {
    paneIsClosed_ = true;
    log_.append(line({{"event", "PPcl"}}));
    return noErr;
}

OSErr Agent::setAllPrefs(const AppleEvent& event) {
    std::array<UInt8, kRecordSize> record;
    UInt32 changes = 0;
    if (const OSErr error = read(event, keyDirectObject, typePrefsRecord, record))
        return error;
    if (const OSErr error = read(event, fourCharCode("Chng"), typeUInt32, changes))
        return error;
    on_ = record[0] != 0;
    const auto bytes = QByteArray::fromRawData(reinterpret_cast<const char*>(record.data()),
                                               static_cast<qsizetype>(record.size()));
    log_.append(line({{"event", "SAPr"},
                      {"mask", qint64{changes}},
                      {"record", QString::fromLatin1(bytes.toHex())}}));
    return noErr;
}

OSErr Agent::holdKeys(const AppleEvent& event) {
    UInt8 hold = 0;
    if (const OSErr error = read(event, keyDirectObject, typeBoolean, hold))
        return error;
    log_.append(line({{"event", "PPhd"}, {"hold", hold != 0}}));
    return noErr;
}

OSErr Agent::quit(const AppleEvent&) {
    log_.append(line({{"event", "quit"}}));
    QCoreApplication::quit();
    return noErr;
}

void Agent::flip() {
    on_ = !on_;
    CFPreferencesSetAppValue(kOnKey, on_ ? CFSTR("yes") : CFSTR("no"), kDomain);
    CFPreferencesAppSynchronize(kDomain);
    report();
}

void Agent::report() {
    if (paneIsClosed_)
        return;
    // An agent that the pane launched wasn't told which process shows the pane.
    if (pane_ == kNoProcess)
        pane_ = findOtherApplication(fourCharCode("sprf"));
    AEAddressDesc address;
    AppleEvent event;
    const UInt8 state = on_;
    AECreateDesc(typeProcessSerialNumber, &pane_, sizeof pane_, &address);
    AECreateAppleEvent(kAgentClass, fourCharCode("PPon"), &address, kAutoGenerateReturnID,
                       kAnyTransactionID, &event);
    AEPutParamPtr(&event, keyDirectObject, typeBoolean, &state, sizeof state);
    AESend(&event, nullptr, kAENoReply, kAEDefaultTimeout);
}

ProcessSerialNumber findOtherApplication(OSType signature) {
    ProcessSerialNumber self, psn = kNoProcess;
    const bool takesPart = GetCurrentProcess(&self) == noErr;
    while (GetNextProcess(&psn) == noErr) {
        ProcessInfoRec info{.processInfoLength = kProcessInfoRecLength};
        if (GetProcessInformation(&psn, &info) == noErr &&
            info.processType == fourCharCode("APPL") && info.processSignature == signature &&
            !(takesPart && psn == self))
            return psn;
    }
    return kNoProcess;
}
