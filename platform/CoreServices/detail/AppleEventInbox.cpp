// SPDX-License-Identifier: MIT
#include "platform/CoreServices/detail/AppleEventInbox.h"

#include "platform/CoreServices/detail/AppleEventHandlers.h"

#include <algorithm>
#include <utility>

namespace {

constexpr int kMostAtOnce = 50;
constexpr std::size_t kRoom = 4u << 20;      ///< bytes for one sender
constexpr std::size_t kEachEvent = 4u << 10; ///< beside its parameters

} // namespace

AppleEventInbox::AppleEventInbox(QObject* parent) : QObject(parent) {
    look_.setSingleShot(true);
    connect(&look_, &QTimer::timeout, this, [this] { deliver(); });
}

std::size_t AppleEventInbox::Waiting::bytes() const {
    std::size_t sum = kEachEvent;
    for (const auto& [keyword, desc] : event.parameters)
        sum += desc.data.size();
    return sum;
}

bool AppleEventInbox::put(AppleEvent event, const QDBusMessage& message,
                          const QDBusConnection& connection) {
    Waiting next{std::move(event), message, connection};
    const std::lock_guard lock(guard_);
    if (taken_[message.service()] + next.bytes() > kRoom) {
        if (message.isReplyRequired())
            return false;
        replaceLast(std::move(next));
    } else {
        taken_[message.service()] += next.bytes();
        waiting_.push_back(std::move(next));
    }
    // A timer, since posted events are handled until there are none, and that may be never.
    if (!std::exchange(isAnnounced_, true))
        QMetaObject::invokeMethod(
            this, [this] { look_.start(0); }, Qt::QueuedConnection);
    return true;
}

/// Puts the report in the place of that sender's last one of the same kind. Without one it is
/// dropped. Under the guard, as `put`.
void AppleEventInbox::replaceLast(Waiting report) {
    const auto last = std::find_if(waiting_.rbegin(), waiting_.rend(), [&](const Waiting& each) {
        return each.event.eventClass == report.event.eventClass &&
               each.event.eventID == report.event.eventID &&
               each.message.service() == report.message.service() &&
               !each.message.isReplyRequired();
    });
    if (last == waiting_.rend())
        return;
    taken_[report.message.service()] += report.bytes() - last->bytes();
    *last = std::move(report);
}

std::optional<AppleEventInbox::Waiting> AppleEventInbox::take() {
    const std::lock_guard lock(guard_);
    if (waiting_.empty())
        return std::nullopt;
    std::optional<Waiting> next(std::move(waiting_.front()));
    waiting_.pop_front();
    const auto sender = taken_.find(next->message.service());
    if ((sender->second -= next->bytes()) == 0)
        taken_.erase(sender);
    return next;
}

void AppleEventInbox::deliver() {
    {
        const std::lock_guard lock(guard_);
        isAnnounced_ = false;
    }
    for (int i = 0; i < kMostAtOnce; ++i) {
        const auto next = take();
        if (!next)
            return;
        AppleEvent reply;
        const OSErr result = dispatchAppleEvent(next->event, &reply);
        if (next->message.isReplyRequired())
            next->connection.send(next->message.createReply(int{result}));
    }
    look_.start(0);
}
