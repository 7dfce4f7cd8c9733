// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractNativeEventFilter>
#include <QEvent>

#include <deque>

class QKeyEvent;

/// When keys went down and up, in the display server's milliseconds.
///
/// If assistive technology looks at keys first, Qt delivers copies without times, later and in the
/// same order. The second press of a key may happen before the first one's copy comes. So each
/// moment is kept until its key has come.
class KeyMoments final : public QAbstractNativeEventFilter {
public:
    KeyMoments();

    /// Gives a copy its original's time.
    void restore(QKeyEvent& copy);

    /// Forgets all keys up to this one, which has come.
    void forget(const QKeyEvent& key);

    bool nativeEventFilter(const QByteArray& kind, void* message, qintptr* result) override;

private:
    struct Moment {
        QEvent::Type type;
        quint32 scanCode;
        quint32 time;

        bool operator==(const Moment&) const = default;
    };

    std::deque<Moment> expected_; ///< without repetitions
};
