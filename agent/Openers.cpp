// SPDX-License-Identifier: MIT
#include "agent/Openers.h"

#include "platform/CoreFoundation/Localization.h"
#include "platform/Support/EventMoment.h"

#include <QProcess>
#include <QStandardPaths>

#include <algorithm>
#include <iterator>
#include <utility>

namespace {

constexpr int kLookMs = 50;            ///< between two looks for a menu
constexpr double kClickTime = 0.03;    ///< s
constexpr double kBlindPatience = 0.5; ///< s

/// How a desktop opens its menu of applications: by a program or by keys.
struct Way {
    const char* desktop; ///< as XDG_CURRENT_DESKTOP has it
    const char* program;
    const char* keys;
    bool isMenu; ///< else it is drawn by the desktop itself, and the screen is scanned
};

constexpr Way kWays[] = {
    {"GNOME", nullptr, "Super_L", false},
    {"KDE", nullptr, "Alt+F1", false},
    {"LXDE", "lxpanelctl menu", nullptr, true},
    {"LXQt", nullptr, "Alt+F1", true},
    {"MATE", nullptr, "Alt+F1", true},
    {"X-Cinnamon", nullptr, "Super_L", false},
    {"XFCE", "xfce4-popup-applicationsmenu", nullptr, true},
};

/// Null for one that isn't in the table.
const Way* wayOfDesktop() {
    const QStringList desktops = qEnvironmentVariable("XDG_CURRENT_DESKTOP").split(QChar(':'));
    const auto* const way = std::find_if(std::begin(kWays), std::end(kWays), [&](const Way& row) {
        return desktops.contains(QLatin1String(row.desktop), Qt::CaseInsensitive);
    });
    return way == std::end(kWays) ? nullptr : way;
}

bool run(const char* command) {
    QStringList words = QProcess::splitCommand(QString::fromLatin1(command));
    const QString program = QStandardPaths::findExecutable(words.takeFirst());
    return !program.isEmpty() && QProcess::startDetached(program, words);
}

std::string noApplications() {
    return localized("Agent", "This desktop has no menu of applications that Korvex can open.");
}

} // namespace

Openers::Openers(Session& session, std::function<void()> opened,
                 std::function<void(const std::string&)> cantDo)
    : session_(session), opened_(std::move(opened)), cantDo_(std::move(cantDo)),
      list_(session.overlays()) {
    look_.setInterval(kLookMs);
    QObject::connect(&look_, &QTimer::timeout, [this] { lookForMenu(); });
}

std::optional<Area> Openers::list() const {
    return list_.place();
}

void Openers::close() {
    look_.stop();
    list_.close();
}

/// On the mouse pointer's screen.
void Openers::choose(std::vector<std::string> rows, std::function<void(std::size_t)> chosen) {
    const auto screens = session_.desktop().screens();
    const auto here = std::ranges::find_if(screens, [&](const Screen& screen) {
        return screen.area.contains(session_.desktop().pointer());
    });
    list_.open(std::move(rows), here == screens.end() ? screens.front() : *here, std::move(chosen));
    QTimer::singleShot(0, &look_, [this] { opened_(); });
}

// Windows ----------------------------------------------------------------------------------------

void Openers::windows() {
    const auto windows = session_.windows().windows();
    if (windows.empty())
        return cantDo_(localized("Agent", "No window is open."));
    std::vector<std::string> titles;
    for (const auto& window : windows)
        titles.push_back(window.title);
    choose(titles, [this, windows](std::size_t row) {
        if (!session_.windows().activate(windows[row].id))
            cantDo_(localized("Agent", "The window manager can't bring windows to the front."));
    });
}

// Menus ------------------------------------------------------------------------------------------

void Openers::menus() {
    const auto active = session_.windows().active();
    if (!active && session_.desktop().tellsMenus())
        return cantDo_(localized("Agent", "No window is active."));
    if (!active)
        return pressMenuKey();
    askForMenuBar(session_.windows().processOf(*active), &look_,
                  [this](const std::vector<BarMenu>& menus) { chooseMenu(menus); });
}

void Openers::chooseMenu(const std::vector<BarMenu>& menus) {
    if (menus.empty())
        return pressMenuKey();
    if (menus.size() == 1)
        return openMenu(menus[0]);
    std::vector<std::string> names;
    for (const BarMenu& menu : menus)
        names.push_back(menu.name);
    choose(names, [this, menus](std::size_t row) { openMenu(menus[row]); });
}

void Openers::openMenu(const BarMenu& menu) {
    session_.hand().whenOverlaysAreGone([this, place = menu.place.middle()] {
        session_.hand().click({.place = place, .duration = kClickTime});
        expectMenu(localized("Agent", "The menu doesn't open."));
    });
}

/// Toolkits open the only menu of a window, or the first of its bar, by this key.
void Openers::pressMenuKey() {
    session_.typist().type("F10");
    expectMenu(localized("Agent", "This window has no menu that Korvex can open."));
}

/// Where nobody tells of menus one is taken to open soon.
void Openers::expectMenu(const std::string& otherwise) {
    const bool isTold = session_.desktop().tellsMenus();
    otherwise_ = isTold ? otherwise : "";
    until_ = monotonicNow() + (isTold ? kPatience : kBlindPatience);
    look_.start();
}

void Openers::lookForMenu() {
    const bool isOpen = !session_.desktop().openMenus().empty();
    if (!isOpen && monotonicNow() < until_)
        return;
    look_.stop();
    if (isOpen || otherwise_.empty())
        opened_();
    else
        cantDo_(otherwise_);
}

// Applications -----------------------------------------------------------------------------------

void Openers::applications() {
    const Way* way = wayOfDesktop();
    std::string fault;
    if (!way)
        session_.windows().askForRootMenu();
    else if (way->program)
        fault = run(way->program) ? "" : noApplications();
    else
        fault = session_.typist().type(way->keys);
    if (!fault.empty())
        return cantDo_(fault);
    expectMenu(way && !way->isMenu ? "" : noApplications());
}
