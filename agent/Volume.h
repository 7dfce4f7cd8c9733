// SPDX-License-Identifier: MIT
#pragma once

#include <QProcess>
#include <QTimer>

#include <functional>
#include <string>

/// The volume of what the computer plays. It is changed by PulseAudio's own program, which
/// PipeWire knows, too, and nothing waits for it.
class Volume {
public:
    /// `cantDo` is told why, in a sentence.
    explicit Volume(std::function<void(const std::string&)> cantDo);
    ~Volume();

    /// By so many percent, between silence and kLoudest. One at a time: while one is under way,
    /// others are left out.
    void change(int percent);
    void toggleMute();

    static constexpr int kLoudest = 100;   ///< percent; more is distorted
    static constexpr double kPatience = 2; ///< seconds that the program may take

private:
    void run(const QStringList& arguments, std::function<void(const QByteArray&)> done);
    void ended();

    std::function<void(const std::string&)> cantDo_;
    std::function<void(const QByteArray&)> done_; ///< what follows
    QProcess program_;
    QTimer patience_;
};
