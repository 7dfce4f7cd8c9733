// SPDX-License-Identifier: MIT
#include "agent/Link.h"

#include "agent/scan/Settings.h"
#include "platform/CoreFoundation/CFPreferences.h"
#include "src/record/settings.h"
#include "src/store/prefs.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <array>

namespace {

constexpr AEEventClass kAgentClass = fourCharCode("Krvx");
constexpr AEEventID kOnOff = fourCharCode("PPon");
constexpr AEEventID kSays = fourCharCode("PPsy");
constexpr AEEventID kSetSettings = fourCharCode("PSet");
constexpr AEKeyword keySettings = fourCharCode("Sets");
constexpr DescType typeBits = fourCharCode("comp");
constexpr SInt32 kPatience = 5 * 60; ///< ticks, for a window that is asked to change settings
constexpr DescType typePrefsRecord = fourCharCode("KrPf");
constexpr DescType typeUTF8Text = fourCharCode("utf8");
constexpr OSType kPaneSignature = fourCharCode("sprf");

std::string line(const QJsonObject& event) {
    return QJsonDocument(event).toJson(QJsonDocument::Compact).toStdString();
}

/// Reads a parameter that has exactly the type and size of `value`.
template <class T>
OSErr read(const AppleEvent& event, AEKeyword keyword, DescType type, T& value,
           std::size_t wanted = sizeof(T)) {
    std::size_t size = 0;
    const OSErr error = AEGetParamPtr(&event, keyword, type, nullptr, &value, wanted, &size);
    return error == noErr && size != wanted ? paramErr : error;
}

bool takesPart(const ProcessSerialNumber& psn) {
    pid_t pid;
    return GetProcessPID(&psn, &pid) == noErr;
}

} // namespace

Link::Link(const EventLog& log) : log_(log) {}

void Link::readSettings(bool isBack) {
    prefsSetup();
    settings_ = checkedRecord(prefs);
    if (!isBack && settings_.on != settings_.activateAtLaunch)
        switchTo(settings_.activateAtLaunch != 0);
}

template <Link::Handler handler>
void Link::install(AEEventClass eventClass, AEEventID eventID) {
    const AEEventHandler call = [](const AppleEvent* event, AppleEvent*, void* link) {
        return (static_cast<Link*>(link)->*handler)(*event);
    };
    AEInstallEventHandler(eventClass, eventID, call, this);
}

void Link::installHandlers() {
    install<&Link::paneOpened>(kAgentClass, fourCharCode("PPop"));
    install<&Link::paneClosed>(kAgentClass, fourCharCode("PPcl"));
    install<&Link::setAllPrefs>(kAgentClass, fourCharCode("SAPr"));
    install<&Link::holdKeys>(kAgentClass, fourCharCode("PPhd"));
    install<&Link::quit>(kCoreEventClass, kAEQuitApplication);
    processes_ = watchProcesses([this] { processesChanged(); });
}

OSErr Link::paneOpened(const AppleEvent& event) {
    ProcessSerialNumber pane;
    if (const OSErr error = read(event, fourCharCode("tPSN"), typeProcessSerialNumber, pane))
        return error;
    pane_ = pane;
    paneIsClosed_ = false;
    log_.append(line({{"event", "PPop"},
                      {"psn", QJsonArray{qint64{pane.highLongOfPSN}, qint64{pane.lowLongOfPSN}}}}));
    if (!trouble_.empty())
        send(kSays, typeUTF8Text, trouble_.data(), trouble_.size());
    return noErr;
}

OSErr Link::paneClosed(const AppleEvent&) {
    paneIsClosed_ = true;
    log_.append(line({{"event", "PPcl"}}));
    setPaneHolds(false);
    return noErr;
}

OSErr Link::setAllPrefs(const AppleEvent& event) {
    PrefsRecord record;
    UInt32 changes = 0;
    if (const OSErr error = read(event, keyDirectObject, typePrefsRecord, record, kRecordSize))
        return error;
    if (const OSErr error = read(event, fourCharCode("Chng"), typeUInt32, changes))
        return error;
    const auto bytes = QByteArray::fromRawData(reinterpret_cast<const char*>(&record), kRecordSize);
    log_.append(line({{"event", "SAPr"},
                      {"mask", qint64{changes}},
                      {"record", QString::fromLatin1(bytes.toHex())}}));
    prefs = record;
    settingsChanged();
    return noErr;
}

OSErr Link::holdKeys(const AppleEvent& event) {
    UInt8 holds = 0;
    if (const OSErr error = read(event, keyDirectObject, typeBoolean, holds))
        return error;
    log_.append(line({{"event", "PPhd"}, {"hold", holds != 0}}));
    setPaneHolds(holds != 0);
    return noErr;
}

OSErr Link::quit(const AppleEvent&) {
    log_.append(line({{"event", "quit"}}));
    QCoreApplication::quit();
    return noErr;
}

/// A pane that crashed gives nothing back.
void Link::processesChanged() {
    const bool isThere =
        pane_ == kNoProcess ? findApplication(kPaneSignature) != kNoProcess : takesPart(pane_);
    if (paneHolds_ && !isThere)
        setPaneHolds(false);
}

void Link::setPaneHolds(bool holds) {
    if (paneHolds_ == holds)
        return;
    paneHolds_ = holds;
    if (listener_)
        listener_->paneHoldsKeys(holds);
}

void Link::settingsChanged() {
    settings_ = checkedRecord(prefs);
    if (listener_)
        listener_->settingsChanged();
}

void Link::switchTo(bool on) {
    prefs.on = on;
    CFPreferencesSetAppValue(CFSTR(settingAt(offsetof(PrefsRecord, on)).key),
                             on ? CFSTR("yes") : CFSTR("no"), kAgentBundleID);
    CFPreferencesAppSynchronize(kAgentBundleID);
    const UInt8 state = on;
    send(kOnOff, typeBoolean, &state, sizeof state);
    settingsChanged();
}

void Link::setTrouble(const std::string& text) {
    if (trouble_ == text)
        return;
    trouble_ = text;
    send(kSays, typeUTF8Text, trouble_.data(), trouble_.size());
}

void Link::change(const SettingSet& settings, const PrefsRecord& record) {
    const ProcessSerialNumber window = paneIsClosed_ ? kNoProcess : findApplication(kPaneSignature);
    if (window == kNoProcess)
        return store(settings, record);
    AppleEvent event = eventTo(window, kSetSettings);
    const std::uint64_t bits = settings.to_ullong();
    AEPutParamPtr(&event, keyDirectObject, typePrefsRecord, &record, kRecordSize);
    AEPutParamPtr(&event, keySettings, typeBits, &bits, sizeof bits);
    sendThen(event, kPatience, [=, this](OSErr error) {
        if (error != noErr) // it has just closed, or hangs
            store(settings, record);
    });
}

void Link::store(const SettingSet& settings, const PrefsRecord& record) {
    copySettings(settings, record, prefs);
    for (std::size_t i = 0; i < kSettings.size(); ++i)
        if (settings[i])
            CFPreferencesSetAppValue(CFSTR(kSettings[i].key),
                                     kSettings[i].notation->write(kSettings[i].in(record)).get(),
                                     kAgentBundleID);
    CFPreferencesAppSynchronize(kAgentBundleID);
    settingsChanged();
}

void Link::send(AEEventID eventID, DescType type, const void* data, std::size_t size) {
    if (paneIsClosed_)
        return;
    // An agent that the pane launched wasn't told which process shows the pane.
    if (pane_ == kNoProcess)
        pane_ = findApplication(kPaneSignature);
    AppleEvent event = eventTo(pane_, eventID);
    AEPutParamPtr(&event, keyDirectObject, type, data, size);
    AESend(&event, nullptr, kAENoReply, kAEDefaultTimeout);
}

AppleEvent Link::eventTo(const ProcessSerialNumber& process, AEEventID eventID) {
    AEAddressDesc address;
    AppleEvent event;
    AECreateDesc(typeProcessSerialNumber, &process, sizeof process, &address);
    AECreateAppleEvent(kAgentClass, eventID, &address, kAutoGenerateReturnID, kAnyTransactionID,
                       &event);
    return event;
}
