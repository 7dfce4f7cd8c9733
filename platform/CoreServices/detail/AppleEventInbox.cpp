// SPDX-License-Identifier: MIT
#include "platform/CoreServices/detail/AppleEventInbox.h"

#include "platform/CoreServices/detail/AppleEventHandlers.h"

#include <algorithm>
#include <set>
#include <utility>

namespace {

constexpr int kMostAtOnce = 50;
constexpr std::size_t kRoom = 16u << 20;     ///< bytes for one sender
constexpr std::size_t kEachEvent = 1u << 10; ///< beside its parameters

using Kind = std::pair<AEEventClass, AEEventID>;

Kind kindOf(const AppleEvent& event) {
    return {event.eventClass, event.eventID};
}

/// The kinds of which the last one counts.
class Reports {
public:
    void add(Kind kind) {
        const std::lock_guard lock(guard_);
        kinds_.insert(kind);
    }

    bool contains(Kind kind) {
        const std::lock_guard lock(guard_);
        return kinds_.contains(kind);
    }

private:
    std::mutex guard_;
    std::set<Kind> kinds_;
};

Reports& reports() {
    static Reports& all = *new Reports;
    return all;
}

} // namespace

void keepLastReportOnly(AEEventClass eventClass, AEEventID eventID) {
    reports().add({eventClass, eventID});
}

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
    if (replaceLast(next))
        return true;
    std::size_t& taken = taken_[message.service()];
    if (taken + next.bytes() > kRoom)
        return false;
    taken += next.bytes();
    waiting_.push_back(std::move(next));
    // A timer, since posted events are handled until there are none, and that may be never.
    if (!std::exchange(isAnnounced_, true))
        QMetaObject::invokeMethod(
            this, [this] { look_.start(0); }, Qt::QueuedConnection);
    return true;
}

/// Puts a report whose last one counts in the place of that sender's earlier one. False when none
/// waits. Under the guard, as `put`.
bool AppleEventInbox::replaceLast(Waiting& report) {
    if (report.message.isReplyRequired() || !reports().contains(kindOf(report.event)))
        return false;
    const auto last = std::find_if(waiting_.rbegin(), waiting_.rend(), [&](const Waiting& each) {
        return kindOf(each.event) == kindOf(report.event) && !each.message.isReplyRequired() &&
               each.message.service() == report.message.service();
    });
    if (last == waiting_.rend())
        return false;
    taken_[report.message.service()] += report.bytes() - last->bytes();
    *last = std::move(report);
    return true;
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
