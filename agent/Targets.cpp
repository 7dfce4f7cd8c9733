// SPDX-License-Identifier: MIT
#include "agent/Targets.h"

#include "agent/Accessibility.h"

#include <QCoreApplication>
#include <QPointer>
#include <QThreadPool>

#include <algorithm>

using namespace accessibility;

namespace {

constexpr int kPatienceMs = 1000;
constexpr std::size_t kMostObjects = 3000; ///< of a window

enum class Use { None, Press, Place };

/// Editable ones apart, what isn't named here is of no use.
Use useOf(Role role) {
    switch (role) {
    case Role::CheckBox:
    case Role::ComboBox:
    case Role::ListItem:
    case Role::Menu:
    case Role::MenuItem:
    case Role::PageTab:
    case Role::PushButton:
    case Role::RadioButton:
    case Role::ToggleButton:
    case Role::Link:
    case Role::PushButtonMenu:
        return Use::Press;
    case Role::Canvas:
    case Role::DrawingArea:
    case Role::PasswordText:
    case Role::Slider:
    case Role::SpinButton:
    case Role::Terminal:
    case Role::Text:
    case Role::Entry:
        return Use::Place;
    default:
        return Use::None;
    }
}

/// A program's window, and how its places are to be read.
struct Root {
    Object object;
    ToldPlaces places;
};

std::optional<Root> rootOf(const Bus& bus, const std::vector<Object>& programs,
                           const WindowManager::Shown& window) {
    std::optional<Root> best;
    for (const Object& program : programs) {
        if (bus.process(program).get() != window.process)
            continue;
        for (const Object& object : bus.children(program).get()) {
            const auto places = ToldPlaces::of(bus.place(object).get(), window.area);
            if (places && (!best || places->misfit() < best->places.misfit()))
                best = {object, *places};
        }
    }
    return best;
}

/// An object with the answers that are on their way.
struct Asking {
    Object object;
    Asked<Area> place;
    Asked<States> states;
    Asked<Role> role;
    Asked<std::vector<Object>> children;
};

/// A level of the tree after the other: one program answers the questions of a level together.
std::vector<Target> targetsIn(const Bus& bus, const Root& root, const Area& part) {
    std::vector<Target> targets;
    std::vector<Object> level = {root.object};
    for (std::size_t seen = 0; !level.empty() && seen < kMostObjects && !bus.isLate();) {
        std::vector<Asking> asking;
        for (const Object& object : level)
            asking.push_back({object, bus.place(object), bus.states(object), bus.role(object),
                              bus.children(object)});
        seen += level.size();
        level.clear();
        for (Asking& each : asking) {
            const Area box = root.places.inPixels(each.place.get());
            const bool isElsewhere = !box.isEmpty() && intersection(box, part).isEmpty();
            const States states = each.states.get();
            if (isElsewhere || !states.has(State::Showing))
                continue;
            const Use use = states.has(State::Editable) ? Use::Place : useOf(each.role.get());
            const bool isPressed = use == Use::Press && states.has(State::Sensitive);
            if (!box.isEmpty() && (isPressed || use == Use::Place))
                targets.push_back({box, isPressed});
            if (use != Use::Place) {
                const auto children = each.children.get();
                level.insert(level.end(), children.begin(), children.end());
            }
        }
    }
    return targets;
}

/// Without what a window above covers.
void removeCovered(std::vector<Target>& targets, std::span<const WindowManager::Shown> above) {
    std::erase_if(targets, [above](const Target& target) {
        return std::ranges::any_of(above, [&target](const WindowManager::Shown& window) {
            return window.area.contains(target.box.middle());
        });
    });
}

void search(const std::vector<WindowManager::Shown>& windows, const Area& part,
            const std::function<void(std::vector<Target>)>& tell) {
    const Bus bus(kPatienceMs);
    const auto programs = bus.children(Bus::root()).get();
    for (std::size_t i = 0; i < windows.size(); ++i) {
        if (intersection(windows[i].area, part).isEmpty())
            continue;
        const auto root = rootOf(bus, programs, windows[i]);
        if (!root)
            continue;
        auto targets = targetsIn(bus, *root, part);
        removeCovered(targets, std::span(windows).first(i));
        tell(std::move(targets));
    }
}

} // namespace

void Targets::lookFor(const std::vector<WindowManager::Shown>& windows, const Area& part) {
    forget();
    const auto tell = [this, number = search_,
                       guarded = QPointer(&context_)](std::vector<Target> targets) {
        QMetaObject::invokeMethod(
            qApp,
            [=, this] {
                if (guarded && number == search_)
                    found_.insert(found_.end(), targets.begin(), targets.end());
            },
            Qt::QueuedConnection);
    };
    QThreadPool::globalInstance()->start([=] { search(windows, part, tell); });
}

void Targets::forget() {
    ++search_;
    found_.clear();
}
