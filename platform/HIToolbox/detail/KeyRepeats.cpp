// SPDX-License-Identifier: MIT
#include "platform/HIToolbox/detail/KeyRepeats.h"

#include "platform/HIToolbox/detail/KeyMoments.h"
#include "platform/HIToolbox/detail/KeysDown.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QPointer>
#include <QTimer>

#include <memory>
#include <utility>

namespace {

constexpr int kPatienceMs = 50; ///< for the press that makes a release a half of a repetition

/// Sees the keys of every window before Qt does.
class KeyRepeats final : public QObject {
public:
    KeyRepeats() : QObject(qApp) {
        patience_.setSingleShot(true);
        patience_.setInterval(kPatienceMs);
        connect(&patience_, &QTimer::timeout, this, &KeyRepeats::deliverRelease);
    }

    bool eventFilter(QObject* target, QEvent* event) override {
        if (event->type() != QEvent::KeyRelease && event->type() != QEvent::KeyPress)
            return false;
        auto& key = static_cast<QKeyEvent&>(*event);
        if (key.timestamp() == 0)
            moments_.restore(key);
        if (!target->isWindowType())
            moments_.forget(key);
        if (event == delivered_ || !target->isWindowType())
            return false;
        return event->type() == QEvent::KeyRelease ? isKeptBack(*target, key)
                                                   : isRepetition(*target, key);
    }

private:
    /// A release of a key that is down is a half of a repetition, or its key was pressed again.
    bool isKeptBack(QObject& window, const QKeyEvent& release) {
        deliverRelease();
        if (release.isAutoRepeat() || !isKeyDown(release.nativeScanCode()))
            return false;
        window_ = &window;
        release_.reset(release.clone());
        patience_.start();
        return true;
    }

    bool isRepetition(QObject& window, const QKeyEvent& press) {
        const bool isOther = !release_ || window_ != &window ||
                             release_->nativeScanCode() != press.nativeScanCode() ||
                             release_->timestamp() != press.timestamp();
        if (isOther) {
            deliverRelease();
            return false;
        }
        release_.reset();
        QKeyEvent repetition(press.type(), press.key(), press.modifiers(), press.nativeScanCode(),
                             press.nativeVirtualKey(), press.nativeModifiers(), press.text(), true,
                             static_cast<quint16>(press.count()));
        repetition.setTimestamp(press.timestamp());
        deliver(window, repetition);
        return true;
    }

    void deliverRelease() {
        patience_.stop();
        if (const auto release = std::move(release_); release && window_)
            deliver(*window_, *release);
    }

    // Sending it would mark it as made by this program. Then it would pass by assistive technology
    // and overtake its own press.
    void deliver(QObject& window, QKeyEvent& event) {
        delivered_ = &event;
        qApp->notify(&window, &event);
        delivered_ = nullptr;
    }

    QPointer<QObject> window_;
    std::unique_ptr<QKeyEvent> release_; ///< kept back
    QTimer patience_;
    const QEvent* delivered_ = nullptr; ///< by this object
    KeyMoments moments_;
};

} // namespace

void correctKeyRepeats() {
    static QPointer<KeyRepeats> only;
    if (!only)
        only = new KeyRepeats;
    qApp->installEventFilter(only); // once more: in front of all that came since
}
