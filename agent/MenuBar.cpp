// SPDX-License-Identifier: MIT
#include "agent/MenuBar.h"

#include "agent/Accessibility.h"

#include <QCoreApplication>
#include <QPointer>
#include <QThread>
#include <QThreadPool>

#include <deque>

using namespace accessibility;

namespace {

constexpr int kPatienceMs = 2500; ///< for all answers
/// A program that is just told to answer makes its tree first.
constexpr int kTries = 4, kRetryMs = 250;
constexpr std::size_t kMostObjects = 400;

/// The windows of the process that are active.
std::vector<Object> windowsOf(const Bus& bus, quint32 process) {
    std::vector<Object> windows;
    for (const Object& program : bus.children(Bus::root()).get()) {
        if (bus.process(program).get() != process)
            continue;
        for (const Object& window : bus.children(program).get())
            if (bus.states(window).get().has(State::Active))
                windows.push_back(window);
    }
    return windows;
}

/// The menus of the first bar that is shown, in the order of nearness to the window.
std::vector<BarMenu> menusIn(const Bus& bus, const std::vector<Object>& windows) {
    std::deque<Object> left(windows.begin(), windows.end());
    for (std::size_t seen = 0; !left.empty() && seen < kMostObjects && !bus.isLate(); ++seen) {
        const Object object = left.front();
        left.pop_front();
        const auto children = bus.children(object).get();
        if (bus.role(object).get() != Role::MenuBar ||
            !bus.states(object).get().has(State::Showing)) {
            left.insert(left.end(), children.begin(), children.end());
            continue;
        }
        std::vector<BarMenu> menus;
        for (const Object& child : children) {
            const Role role = bus.role(child).get();
            const BarMenu menu{bus.name(child).get(), bus.place(child).get()};
            if ((role == Role::Menu || role == Role::MenuItem) && !menu.name.empty() &&
                !menu.place.isEmpty())
                menus.push_back(menu);
        }
        if (!menus.empty())
            return menus;
    }
    return {};
}

std::vector<BarMenu> menuBarOf(quint32 process) {
    wakePrograms();
    const Bus bus(kPatienceMs);
    for (int tries = 0; tries < kTries; ++tries) {
        if (tries > 0)
            QThread::msleep(kRetryMs);
        if (const auto menus = menusIn(bus, windowsOf(bus, process)); !menus.empty())
            return menus;
    }
    return {};
}

} // namespace

void askForMenuBar(std::uint32_t process, QObject* context,
                   std::function<void(const std::vector<BarMenu>&)> done) {
    QThreadPool::globalInstance()->start([=, guarded = QPointer(context)] {
        const auto menus = menuBarOf(process);
        QMetaObject::invokeMethod(
            qApp,
            [=] {
                if (guarded)
                    done(menus);
            },
            Qt::QueuedConnection);
    });
}
