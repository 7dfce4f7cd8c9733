// SPDX-License-Identifier: MIT
// A plug-in that any Qt program can load. After the program's first frame it reports the time and
// the resident memory to the file descriptor KORVEX_FRAME_PROBE.

#include <QCoreApplication>
#include <QGenericPlugin>
#include <QTimer>
#include <QWidget>

#include <chrono>
#include <cstdint>
#include <fstream>
#include <unistd.h>

namespace {

class Probe final : public QObject {
public:
    Probe() { QCoreApplication::instance()->installEventFilter(this); }

    bool eventFilter(QObject* watched, QEvent* event) override {
        const auto* widget = qobject_cast<QWidget*>(watched);
        if (!reporting_ && event->type() == QEvent::Paint && widget && !widget->isWindow()) {
            reporting_ = true;
            QTimer::singleShot(0, this, [this] { report(); }); // when all of it has been painted
        }
        return false;
    }

private:
    void report() {
        long pages = 0;
        std::ifstream("/proc/self/statm").ignore(32, ' ') >> pages;
        const std::int64_t values[] = {std::chrono::steady_clock::now().time_since_epoch().count(),
                                       pages * std::int64_t{sysconf(_SC_PAGESIZE)}};
        const int file = qEnvironmentVariableIntValue("KORVEX_FRAME_PROBE");
        if (write(file, values, sizeof values) != sizeof values)
            qWarning("frame probe: nobody listens");
    }

    bool reporting_ = false;
};

} // namespace

class FrameProbePlugin final : public QGenericPlugin {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "FrameProbe.json")

public:
    QObject* create(const QString&, const QString&) override { return new Probe; }
};

#include "FrameProbe.moc"
