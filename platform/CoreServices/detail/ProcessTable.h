// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CoreServices/detail/ProcessName.h"

#include <QDBusServiceWatcher>
#include <QTimer>

#include <map>

/// Who takes part, by bus name. The bus announces every change; those that have reached this
/// process are taken in before each look, so that a look is fresh and asks nobody.
class ProcessTable final : public QObject {
public:
    struct Process {
        ProcessSerialNumber psn;
        ProcessName name;
    };

    /// The table, made and filled on first use; null without a bus.
    static ProcessTable* shared();

    const Process* find(const ProcessSerialNumber& psn) const;

    /// The one with the next higher serial number.
    const Process* findAfter(const ProcessSerialNumber& psn) const;

    /// The first, in no order, that `fits`; null when none does.
    template <class Predicate>
    const Process* findIf(Predicate fits) const {
        for (const auto& [busName, process] : processes_)
            if (fits(process))
                return &process;
        return nullptr;
    }

    /// Fires from the event loop after processes have come or gone, once for all of them.
    const QTimer& changed() const { return changed_; }

private:
    explicit ProcessTable(QObject* parent);
    void fill();
    void setOwner(const QString& busName, const QString& owner);

    QDBusServiceWatcher announcements_;
    QTimer changed_;
    std::map<QString, Process> processes_;
};
