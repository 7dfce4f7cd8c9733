// SPDX-License-Identifier: MIT
#pragma once

#include "src/record/PrefsRecord.h"
#include "tests/agent/TargetWindow.h"
#include "tests/support/FakeDevice.h"
#include "tests/support/XvfbServer.h"

#include <QProcess>

#include <optional>

/// A display server with a keyboard, a window that covers the screen, and a session bus of their
/// own, in which the built agent scans. Its settings are the stored ones of this process. Several
/// can be there at once; make and destroy them in one thread, then each may be used in another one.
class AgentDesktop {
public:
    AgentDesktop(int width, int height);
    ~AgentDesktop();
    AgentDesktop(const AgentDesktop&) = delete;
    AgentDesktop& operator=(const AgentDesktop&) = delete;

    /// Starts the agent with these settings, whose scan key must be kScanKey, and returns when it
    /// has the key. Another one ends before. False when it doesn't take the key in ten seconds.
    bool startAgent(const PrefsRecord& record);
    void killAgent();

    pid_t agent() const { return static_cast<pid_t>(agent_.processId()); }

    pid_t server() const { return server_.pid(); }

    /// A program on this desktop.
    void start(QProcess& program, const QString& path, const QStringList& arguments = {}) const;

    /// When something happened: between two moments.
    struct Span {
        double from, to;

        double middle() const { return (from + to) / 2; }
    };

    /// Moves a key, of the server's code.
    Span key(int code, bool isDown);
    /// A short press of a key. When it went down.
    Span press(int code = kScanKey);

    /// What the window is told of a button, and when.
    struct Told {
        double moment;
        int x, y; ///< pixels of the screen
    };

    /// The next event of that type (XCB_BUTTON_PRESS or XCB_BUTTON_RELEASE); others before it are
    /// dropped. None when it doesn't come in two seconds.
    std::optional<Told> next(std::uint8_t type);

    static constexpr int kScanKey = 38; ///< A

private:
    bool hasKey();

    XvfbServer server_;
    FakeDevice keyboard_{FakeDevice::Kind::Keyboard};
    TargetWindow target_;
    QProcess bus_, agent_;
    QProcessEnvironment environment_;
};

/// Waits until that moment of XServer::now().
void sleepUntil(double moment);

/// Settings of those who scan with kScanKey alone. Nothing is heard.
PrefsRecord scanKeyRecord();
