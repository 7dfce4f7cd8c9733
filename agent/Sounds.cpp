// SPDX-License-Identifier: MIT
#include "agent/Sounds.h"

#include <canberra.h>

#include <array>
#include <cmath>
#include <condition_variable>
#include <mutex>
#include <string>
#include <system_error>
#include <thread>
#include <utility>

namespace {

// Names of freedesktop.org's list of sounds. The first that the theme has is heard: the
// theme "freedesktop", which is there when no other is, lacks the fitting ones.
constexpr const char* kClick[] = {"button-pressed", "audio-volume-change", nullptr};
constexpr const char* kArm[] = {"button-toggle-on", "message", nullptr};
constexpr const char* kPickUp[] = {"drag-start", "device-added", nullptr};
constexpr const char* kDrop[] = {"drag-accept", "device-removed", nullptr};
constexpr const char* kRefuse[] = {"drag-fail", "dialog-error", "bell", nullptr};

} // namespace

/// The thread and what it shares with the main thread. The thread owns it too, and outlives Sounds
/// while the sound server keeps it waiting.
class Sounds::Player : public std::enable_shared_from_this<Player> {
public:
    ~Player() {
        if (context_)
            ca_context_destroy(context_);
    }

    void play(const char* const* names, double decibels) {
        const std::lock_guard lock(mutex_);
        names_ = names;
        decibels_ = decibels;
        if (!runs_)
            start();
        changed_.notify_one();
    }

    void end() {
        const std::lock_guard lock(mutex_);
        ended_ = true;
        changed_.notify_one();
    }

private:
    void start() {
        try {
            std::thread([self = shared_from_this()] { self->run(); }).detach();
            runs_ = true;
        } catch (const std::system_error&) { // no thread: the next sound tries again
        }
    }

    void run() {
        std::unique_lock lock(mutex_);
        for (;;) {
            changed_.wait(lock, [this] { return names_ || ended_; });
            if (ended_)
                return;
            const char* const* names = std::exchange(names_, nullptr);
            const double decibels = decibels_;
            lock.unlock();
            playFirstOf(names, decibels);
            lock.lock();
        }
    }

    /// Waits for the sound server: for ever if that hangs.
    void playFirstOf(const char* const* names, double decibels) {
        if (!context_ && ca_context_create(&context_) != CA_SUCCESS)
            return;
        const std::string volume = std::to_string(std::lround(decibels)); // no decimal comma
        int played = CA_ERROR_NOTFOUND;
        for (; *names && played == CA_ERROR_NOTFOUND; ++names)
            played = ca_context_play(context_, 0, CA_PROP_EVENT_ID, *names, CA_PROP_APPLICATION_ID,
                                     "org.korvex.Agent", CA_PROP_CANBERRA_VOLUME, volume.c_str(),
                                     nullptr);
    }

    std::mutex mutex_;
    std::condition_variable changed_;
    const char* const* names_ = nullptr; ///< what is to be played next
    double decibels_ = 0;
    bool runs_ = false, ended_ = false;
    ca_context* context_ = nullptr; ///< the thread's
};

Sounds::Sounds() : player_(std::make_shared<Player>()) {}

Sounds::~Sounds() {
    player_->end();
}

void Sounds::use(const PrefsRecord& record) {
    level_ = record.soundLevel;
    hearsClicks_ = record.playClickSounds;
    hearsPrompts_ = record.playDragPrompts;
}

void Sounds::click() {
    play(hearsClicks_, kClick);
}

void Sounds::arm() {
    play(hearsClicks_, kArm);
}

void Sounds::pickUp() {
    play(hearsPrompts_, kPickUp);
}

void Sounds::drop() {
    play(hearsPrompts_, kDrop);
}

void Sounds::refuse() {
    play(hearsPrompts_, kRefuse);
}

double Sounds::decibels(UInt32 level) {
    return 10 * std::log2(level / 100.0);
}

void Sounds::play(bool wanted, const char* const* names) {
    if (wanted && level_ > 0)
        player_->play(names, decibels(level_));
}
