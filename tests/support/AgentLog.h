// SPDX-License-Identifier: MIT
#pragma once

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>
#include <gtest/gtest.h>

#include <cstdlib>
#include <cstring>
#include <string>

/// Reads the agent's log, event by event. The test's event loop runs while it waits.
class AgentLog {
public:
    /// Every agent started from now on logs here.
    AgentLog() : file_(QString::fromStdString(path())) {
        setenv("KORVEX_AGENT_LOG", path().c_str(), 1);
    }

    static std::string path() {
        return std::string(std::getenv("KORVEX_TEST_SANDBOX")) + "/agent.log";
    }

    /// The next event that isn't about the keys.
    QJsonObject next() {
        QJsonObject event = nextOfAll();
        while (event["event"] == "PPhd")
            event = nextOfAll();
        return event;
    }

    /// Whether the agent is asked next to let go of the keys, or to take them again.
    bool nextHold() {
        const QJsonObject event = nextOfAll();
        EXPECT_EQ(event["event"].toString().toStdString(), "PPhd");
        return event["hold"].toBool();
    }

    /// The next event. An empty object and a failed test when none comes within ten seconds.
    QJsonObject nextOfAll() {
        if (!QTest::qWaitFor([this] { return readLine(); }, 10'000)) {
            ADD_FAILURE() << "the agent logged nothing more";
            return {};
        }
        return QJsonDocument::fromJson(std::exchange(line_, {})).object();
    }

    /// The change mask of the next event.
    long nextMask() { return static_cast<long>(next()["mask"].toInteger()); }

    /// The name of the next event.
    std::string nextName() { return next()["event"].toString().toStdString(); }

private:
    /// Completes line_. False when its end isn't in the file yet.
    bool readLine() {
        if (!file_.isOpen() && !file_.open(QIODevice::ReadOnly))
            return false;
        line_ += file_.readLine();
        return line_.endsWith('\n');
    }

    QFile file_;
    QByteArray line_;
};

/// A field of the record that the agent received with an event.
template <class T>
T recordField(const QJsonObject& event, std::size_t offset) {
    const QByteArray record = QByteArray::fromHex(event["record"].toString().toLatin1());
    T value{};
    const QByteArray bytes = record.mid(static_cast<qsizetype>(offset), sizeof value);
    std::memcpy(&value, bytes.constData(), static_cast<std::size_t>(bytes.size()));
    return value;
}
