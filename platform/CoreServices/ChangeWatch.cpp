// SPDX-License-Identifier: MIT
#include "platform/CoreServices/ChangeWatch.h"

#include "platform/CoreServices/detail/ProcessTable.h"
#include "platform/CoreServices/detail/StartedApplications.h"

struct ChangeWatch::Connection {
    QMetaObject::Connection made;

    ~Connection() { QObject::disconnect(made); }
};

ChangeWatch::ChangeWatch(const QTimer* changed, std::function<void()> onChange)
    : connection_(std::make_unique<Connection>()) {
    if (changed)
        connection_->made = QObject::connect(changed, &QTimer::timeout, std::move(onChange));
}

ChangeWatch::ChangeWatch(ChangeWatch&&) noexcept = default;
ChangeWatch& ChangeWatch::operator=(ChangeWatch&&) noexcept = default;
ChangeWatch::~ChangeWatch() = default;

ChangeWatch watchProcesses(std::function<void()> onChange) {
    const ProcessTable* table = ProcessTable::shared();
    return {table ? &table->changed() : nullptr, std::move(onChange)};
}

ChangeWatch watchLaunches(std::function<void()> onChange) {
    return {&StartedApplications::shared().changed(), std::move(onChange)};
}
