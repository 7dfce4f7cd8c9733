// SPDX-License-Identifier: MIT
#include "agent/Volume.h"

#include "platform/CoreFoundation/Localization.h"

#include <QRegularExpression>

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

const QString kSink = QStringLiteral("@DEFAULT_SINK@");
constexpr int kMillisecondsASecond = 1000;

/// From "Volume: front-left: 42598 /  65% / -11.22 dB, ...". -1 when there is none.
int percentIn(const QByteArray& text) {
    static const QRegularExpression number(QStringLiteral("(\\d+)%"));
    const auto match = number.match(QString::fromUtf8(text));
    return match.hasMatch() ? match.captured(1).toInt() : -1;
}

} // namespace

Volume::Volume(std::function<void(const std::string&)> cantDo) : cantDo_(std::move(cantDo)) {
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C"));
    program_.setProcessEnvironment(environment);
    program_.setStandardErrorFile(QProcess::nullDevice());
    patience_.setSingleShot(true);
    patience_.setInterval(static_cast<int>(std::lround(kPatience * kMillisecondsASecond)));
    QObject::connect(&patience_, &QTimer::timeout, [this] { program_.kill(); });
    QObject::connect(&program_, &QProcess::finished, [this] { ended(); });
    QObject::connect(&program_, &QProcess::errorOccurred, [this](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart) {
            patience_.stop();
            cantDo_(localized("Agent", "The volume needs pactl. Install pulseaudio-utils."));
        }
    });
}

Volume::~Volume() {
    program_.disconnect();
    program_.kill();
    program_.waitForFinished(kMillisecondsASecond);
}

void Volume::change(int percent) {
    run({QStringLiteral("get-sink-volume"), kSink}, [this, percent](const QByteArray& answer) {
        const int now = percentIn(answer);
        // What somebody has set above the loudest isn't made quieter by making it louder.
        const int wanted = std::clamp(now + percent, 0, std::max(now, kLoudest));
        run({QStringLiteral("set-sink-volume"), kSink, QStringLiteral("%1%").arg(wanted)}, {});
    });
}

void Volume::toggleMute() {
    run({QStringLiteral("set-sink-mute"), kSink, QStringLiteral("toggle")}, {});
}

void Volume::run(const QStringList& arguments, std::function<void(const QByteArray&)> done) {
    if (program_.state() != QProcess::NotRunning)
        return;
    done_ = std::move(done);
    patience_.start();
    program_.start(QStringLiteral("pactl"), arguments);
}

void Volume::ended() {
    patience_.stop();
    const auto done = std::exchange(done_, nullptr);
    if (program_.exitStatus() != QProcess::NormalExit || program_.exitCode() != 0)
        cantDo_(localized("Agent", "No sound server answers."));
    else if (done)
        done(program_.readAllStandardOutput());
}
