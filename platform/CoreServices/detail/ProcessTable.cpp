// SPDX-License-Identifier: MIT
#include "platform/CoreServices/detail/ProcessTable.h"

#include "platform/CoreServices/detail/SessionBus.h"

#include <QCoreApplication>
#include <QDBusPendingReply>
#include <QDBusReply>
#include <QPointer>

#include <utility>
#include <vector>

ProcessTable::ProcessTable(QObject* parent) : QObject(parent) {
    changed_.setSingleShot(true);
    announcements_.setConnection(sessionBus());
    announcements_.setWatchMode(QDBusServiceWatcher::WatchForOwnerChange);
    announcements_.addWatchedService(QStringLiteral("org.korvex.Process1*"));
    connect(&announcements_, &QDBusServiceWatcher::serviceOwnerChanged, this,
            [this](const QString& busName, const QString&, const QString& owner) {
                setOwner(busName, owner);
                changed_.start();
            });
    // Announcements from here on are taken in after what is listed now.
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

const ProcessTable::Process* ProcessTable::find(const ProcessSerialNumber& psn) const {
    return findIf([&](const Process& process) { return process.psn == psn; });
}

const ProcessTable::Process* ProcessTable::findAfter(const ProcessSerialNumber& psn) const {
    const Process* next = nullptr;
    for (const auto& [busName, process] : processes_) {
        if (process.psn > psn && (!next || process.psn < next->psn))
            next = &process;
    }
    return next;
}
