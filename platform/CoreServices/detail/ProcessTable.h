// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CoreServices/detail/ProcessName.h"

#include <QDBusServiceWatcher>
#include <QTimer>

#include <map>

/// Who takes part, by bus name. The bus announces every change. Each look first takes in the
/// announcements that have arrived. So it is up to date without asking anybody.
class ProcessTable final : public QObject {
public:
    struct Process {
        ProcessSerialNumber psn;
        ProcessName name;
    };

    /// Made and filled on first use. Null without a bus.
    static ProcessTable* shared();

    const Process* find(const ProcessSerialNumber& psn) const;

    /// The process with the next higher serial number.
    const Process* findAfter(const ProcessSerialNumber& psn) const;

    /// The first that `fits`, in no particular order. Null when none does.
    template <class Predicate>
    const Process* findIf(Predicate fits) const {
        for (const auto& [busName, process] : processes_)
            if (fits(process))
                return &process;
        return nullptr;
    }

    /// Times out after processes have come or gone, once for all of them.
    const QTimer& changed() const { return changed_; }

private:
    explicit ProcessTable(QObject* parent);
    void fill();
    void setOwner(const QString& busName, const QString& owner);

    QDBusServiceWatcher announcements_;
    QTimer changed_;
    std::map<QString, Process> processes_;
};
