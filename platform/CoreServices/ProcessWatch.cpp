// SPDX-License-Identifier: MIT
#include "platform/CoreServices/ProcessWatch.h"

#include "platform/CoreServices/detail/ProcessTable.h"

struct ProcessWatch::Connection {
    QMetaObject::Connection made;
};

ProcessWatch::ProcessWatch(std::function<void()> onChange)
    : connection_(std::make_unique<Connection>()) {
    if (const ProcessTable* table = ProcessTable::shared())
        connection_->made =
            QObject::connect(&table->changed(), &QTimer::timeout, std::move(onChange));
}

ProcessWatch::~ProcessWatch() {
    QObject::disconnect(connection_->made);
}
