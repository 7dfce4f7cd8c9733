#include "platform/CoreServices/Processes.h"

#include "platform/CoreServices/detail/AppleEventObject.h"
#include "platform/CoreServices/detail/ProcessName.h"
#include "platform/CoreServices/detail/SessionBus.h"

#include <QCoreApplication>
#include <QDBusPendingReply>
#include <QDBusReply>
#include <QDBusServiceWatcher>
#include <QPointer>

#include <map>
#include <utility>
#include <vector>

namespace {

struct Process {
    ProcessSerialNumber psn;
    ProcessName name;
};

/// Who takes part, by bus name. The bus announces every change; those that have reached this
/// process are taken in before each look, so that a look is fresh and asks nobody.
class ProcessTable final : public QObject {
public:
    /// The table, made and filled on first use; null without a bus.
    static ProcessTable* shared();

    const Process* find(const ProcessSerialNumber& psn) const;
    const Process* findAfter(const ProcessSerialNumber& psn) const;

private:
    explicit ProcessTable(QObject* parent);
    void fill();
    void setOwner(const QString& busName, const QString& owner);

    QDBusServiceWatcher announcements_;
    std::map<QString, Process> processes_;
};

ProcessTable::ProcessTable(QObject* parent) : QObject(parent) {
    announcements_.setConnection(sessionBus());
    announcements_.setWatchMode(QDBusServiceWatcher::WatchForOwnerChange);
    announcements_.addWatchedService(QStringLiteral("org.korvex.Process1*"));
    connect(&announcements_, &QDBusServiceWatcher::serviceOwnerChanged, this,
            [this](const QString& busName, const QString&, const QString& owner) {
                setOwner(busName, owner);
            });
    // What is announced from here on comes after what is listed now, and is taken in after it.
    fill();
}

ProcessTable* ProcessTable::shared() {
    static QPointer<ProcessTable> table;
    if (!sessionBus().isConnected())
        return nullptr;
    if (!table)
        table = new ProcessTable(QCoreApplication::instance());
    QCoreApplication::sendPostedEvents(&table->announcements_);
    return table;
}

void ProcessTable::fill() {
    const QDBusConnection bus = sessionBus();
    const QDBusReply<QStringList> names =
        bus.call(busMethod(QStringLiteral("ListNames"), {}), QDBus::Block, kBusTimeout);
    std::vector<std::pair<QString, QDBusPendingReply<QString>>> owners;
    for (const QString& busName : names.value()) {
        if (parseProcessName(busName))
            owners.emplace_back(
                busName,
                bus.asyncCall(busMethod(QStringLiteral("GetNameOwner"), {busName}), kBusTimeout));
    }
    for (auto& [busName, owner] : owners) {
        owner.waitForFinished();
        if (owner.isValid())
            setOwner(busName, owner.value());
    }
}

void ProcessTable::setOwner(const QString& busName, const QString& owner) {
    const auto name = parseProcessName(busName);
    const auto psn = parseUniqueName(owner);
    if (name && psn)
        processes_.insert_or_assign(busName, Process{*psn, *name});
    else
        processes_.erase(busName);
}

const Process* ProcessTable::find(const ProcessSerialNumber& psn) const {
    for (const auto& [busName, process] : processes_) {
        if (process.psn == psn)
            return &process;
    }
    return nullptr;
}

const Process* ProcessTable::findAfter(const ProcessSerialNumber& psn) const {
    const Process* next = nullptr;
    for (const auto& [busName, process] : processes_) {
        if (process.psn > psn && (!next || process.psn < next->psn))
            next = &process;
    }
    return next;
}

const Process* findProcess(const ProcessSerialNumber* psn) {
    const ProcessTable* table = ProcessTable::shared();
    return table && psn ? table->find(*psn) : nullptr;
}

/// Whether the bus gave this connection the name, or had given it before.
bool requestName(const QString& busName) {
    constexpr uint doNotQueue = 4, primaryOwner = 1, alreadyOwner = 4;
    const QDBusReply<uint> reply = sessionBus().call(
        busMethod(QStringLiteral("RequestName"), {busName, doNotQueue}), QDBus::Block, kBusTimeout);
    return reply.isValid() && (reply.value() == primaryOwner || reply.value() == alreadyOwner);
}

} // namespace

bool registerCurrentProcess(OSType type, OSType signature) {
    // The object first: events may come as soon as the name can be seen.
    return sessionBus().isConnected() && exportAppleEventObject() &&
           requestName(formatProcessName({type, signature, getpid()}));
}

OSErr GetCurrentProcess(ProcessSerialNumber* psn) {
    const auto own = parseUniqueName(sessionBus().baseService());
    if (!psn || !own || !findProcess(&*own))
        return procNotFound;
    *psn = *own;
    return noErr;
}

OSErr GetNextProcess(ProcessSerialNumber* psn) {
    const ProcessTable* table = ProcessTable::shared();
    const Process* next = table && psn ? table->findAfter(*psn) : nullptr;
    if (!next)
        return procNotFound;
    *psn = next->psn;
    return noErr;
}

OSErr GetProcessInformation(const ProcessSerialNumber* psn, ProcessInfoRec* info) {
    if (!info || info->processInfoLength != kProcessInfoRecLength)
        return paramErr;
    const Process* process = findProcess(psn);
    if (!process)
        return procNotFound;
    info->processType = process->name.type;
    info->processSignature = process->name.signature;
    return noErr;
}

OSStatus GetProcessPID(const ProcessSerialNumber* psn, pid_t* pid) {
    const Process* process = findProcess(psn);
    if (!process || !pid)
        return procNotFound;
    *pid = process->name.pid;
    return noErr;
}
