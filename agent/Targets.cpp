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
                           const Windows::Shown& window) {
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

/// An object that lies in the part, or has no place, with the answers that are on their way.
struct Asking {
    Area box;
    Asked<States> states;
    Asked<Role> role;
    Asked<std::vector<Object>> children;
};

/// Most objects are elsewhere: more than the place is asked only of those that aren't.
std::vector<Asking> askAbout(const Bus& bus, const std::vector<Object>& level,
                             const ToldPlaces& places, const Area& part) {
    std::vector<Asked<Area>> boxes;
    for (const Object& object : level)
        boxes.push_back(bus.place(object));
    std::vector<Asking> asking;
    for (std::size_t i = 0; i < level.size(); ++i) {
        const Area box = places.inPixels(boxes[i].get());
        if (box.isEmpty() || !intersection(box, part).isEmpty())
            asking.push_back(
                {box, bus.states(level[i]), bus.role(level[i]), bus.children(level[i])});
    }
    return asking;
}

/// A level of the tree after the other: one program answers the questions of a level together.
std::vector<Target> targetsIn(const Bus& bus, const Root& root, const Area& part) {
    std::vector<Target> targets;
    std::vector<Object> level = {root.object};
    for (std::size_t seen = 0; !level.empty() && seen < kMostObjects && !bus.isLate();) {
        std::vector<Asking> asking = askAbout(bus, level, root.places, part);
        seen += level.size();
        level.clear();
        for (auto& [box, askedStates, askedRole, askedChildren] : asking) {
            const States states = askedStates.get();
            const Role role = askedRole.get();
            // What has no place itself, such as a part of a page, may hold something that has.
            if (!states.has(State::Showing) && (!box.isEmpty() || role == Role::Menu))
                continue;
            const Use use = states.has(State::Editable) ? Use::Place : useOf(role);
            const bool isPressed = use == Use::Press && states.has(State::Sensitive);
            if (!box.isEmpty() && (isPressed || use == Use::Place))
                targets.push_back({box, isPressed});
            if (use != Use::Place) {
                const auto children = askedChildren.get();
                level.insert(level.end(), children.begin(), children.end());
            }
        }
    }
    return targets;
}

/// Without what a window above covers.
void removeCovered(std::vector<Target>& targets, std::span<const Windows::Shown> above) {
    std::erase_if(targets, [above](const Target& target) {
        return std::ranges::any_of(above, [&target](const Windows::Shown& window) {
            return window.area.contains(target.box.middle());
        });
    });
}

void search(const std::vector<Windows::Shown>& windows, const Area& part,
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

void Targets::lookFor(const std::vector<Windows::Shown>& windows, const Area& part) {
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
