// SPDX-License-Identifier: MIT
// Opens the pane with its real agent and drags the scan line's transparency for ten seconds with
// 120 changes a second. Prints the longest main-thread time of a change and its drawing, in
// seconds. Fails when the agent didn't receive every change in order.
// With "bare" it drags a slider in a window that draws the same preview, shows the value and sends
// a record's bytes, directly with Qt.

#include "bench/BarePreview.h"
#include "bench/Figures.h"
#include "platform/AppKit/NSView.h"
#include "platform/CoreServices/Processes.h"
#include "src/pane/VLDKorvexPane.h"
#include "src/store/prefs.h"

#include <QApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLabel>
#include <QPainter>
#include <QSlider>
#include <QStackedWidget>
#include <QTemporaryDir>
#include <QThread>
#include <QVBoxLayout>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <thread>
#include <vector>

namespace {

using Clock = std::chrono::steady_clock;
using namespace std::chrono_literals;

constexpr int kChanges = 1200;
constexpr auto kInterval = 1'000'000'000ns / 120;

/// Runs the event loop until `condition` holds. False when that takes more than ten seconds.
template <class Condition>
bool waitFor(Condition&& condition) {
    const auto end = Clock::now() + 10s;
    while (!condition()) {
        if (Clock::now() > end)
            return false;
        QCoreApplication::processEvents();
        std::this_thread::sleep_for(1ms);
    }
    return true;
}

ProcessSerialNumber findAgent() {
    ProcessSerialNumber psn = kNoProcess;
    while (GetNextProcess(&psn) == noErr) {
        ProcessInfoRec info{.processInfoLength = kProcessInfoRecLength};
        if (GetProcessInformation(&psn, &info) == noErr &&
            info.processSignature == fourCharCode("Krvx"))
            return psn;
    }
    return kNoProcess;
}

/// The transparencies that the agent has logged, in its order.
std::vector<double> received(const QString& log) {
    std::vector<double> values;
    QFile file(log);
    if (!file.open(QIODevice::ReadOnly))
        return values;
    for (QByteArray line = file.readLine(); line.endsWith('\n'); line = file.readLine()) {
        const QJsonObject event = QJsonDocument::fromJson(line).object();
        if (event["event"].toString() != QLatin1String("SAPr"))
            continue;
        const QByteArray record = QByteArray::fromHex(event["record"].toString().toLatin1());
        double value = -1;
        std::memcpy(&value, record.constData() + offsetof(PrefsRecord, lineTransparency),
                    sizeof value);
        values.push_back(value);
    }
    return values;
}

/// Drags back and forth. Returns the longest frame; `sent` receives what was sent.
double drag(QSlider& slider, std::vector<double>& sent) {
    double longest = 0;
    int step = 1;
    slider.setSliderDown(true);
    auto next = Clock::now();
    for (int i = 0; i < kChanges; ++i) {
        std::this_thread::sleep_until(next += kInterval);
        if (slider.value() == slider.maximum() || slider.value() == slider.minimum())
            step = slider.value() == slider.minimum() ? 1 : -1;
        const double before = threadSeconds();
        slider.setSliderPosition(slider.value() + step);
        QCoreApplication::processEvents();
        longest = std::max(longest, threadSeconds() - before);
        sent.push_back(prefs.lineTransparency);
    }
    slider.setSliderDown(false);
    return longest;
}

void killAgent() {
    ProcessSerialNumber agent = findAgent();
    pid_t pid;
    if (agent != kNoProcess && GetProcessPID(&agent, &pid) == noErr)
        kill(pid, SIGTERM);
}

class BarePreview : public QWidget {
public:
    BarePreview() { setFixedSize(kPreviewSize); }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        drawBarePreview(*this, painter);
    }
};

void sendBareChange() {
    auto message = QDBusMessage::createSignal(QStringLiteral("/bench"), QStringLiteral("org.bench"),
                                              QStringLiteral("Change"));
    message << QByteArray(sizeof(PrefsRecord), '\0');
    QDBusConnection::sessionBus().send(message);
}

int dragBare() {
    QWidget window;
    auto* layout = new QVBoxLayout(&window);
    auto* slider = new QSlider(Qt::Horizontal);
    auto* value = new QLabel;
    auto* preview = new BarePreview;
    for (QWidget* part : {static_cast<QWidget*>(preview), static_cast<QWidget*>(slider),
                          static_cast<QWidget*>(value)})
        layout->addWidget(part);
    QObject::connect(slider, &QSlider::valueChanged, [=](int position) {
        value->setNum(position);
        preview->update();
        sendBareChange();
    });
    window.show();
    waitFor([&] { return window.isVisible(); });
    std::vector<double> sent;
    std::printf("%.9f\n", drag(*slider, sent));
    return EXIT_SUCCESS;
}

int dragInPane() {
    const QTemporaryDir folder;
    const QString log = folder.filePath(QStringLiteral("agent.log"));
    qputenv("KORVEX_AGENT_LOG", log.toUtf8());
    registerCurrentProcess(fourCharCode("APPL"), fourCharCode("sprf"));

    VLDKorvexPane pane;
    const auto bundle =
        CFBundleCreate(CFURLCreateFromFileSystemRepresentation(KORVEX_BUNDLE, true).get());
    std::vector<std::string> errors;
    pane.initWithBundle(bundle.get());
    if (!pane.loadMainView(errors))
        return EXIT_FAILURE;
    pane.mainViewDidLoad();
    pane.willSelect();
    QWidget* window = pane.mainView()->widget();
    auto* slider = window->findChild<QSlider*>(QStringLiteral("lineTransparencySlider"));
    auto* sections = window->findChild<QStackedWidget*>(QStringLiteral("prefsTabs"));
    for (int i = 0; i < sections->count(); ++i)
        if (sections->widget(i)->isAncestorOf(slider))
            sections->setCurrentIndex(i);
    window->show();
    const bool agentRuns = waitFor([] { return findAgent() != kNoProcess; });

    std::vector<double> sent;
    const double longest = drag(*slider, sent);
    const bool arrived = waitFor([&] { return received(log).size() >= sent.size(); });
    const bool inOrder = received(log) == sent;
    pane.didUnselect();
    killAgent();
    std::printf("%.9f\n", longest);
    return agentRuns && arrived && inOrder ? EXIT_SUCCESS : EXIT_FAILURE;
}

} // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    return argc > 1 && std::strcmp(argv[1], "bare") == 0 ? dragBare() : dragInPane();
}
