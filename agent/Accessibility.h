// SPDX-License-Identifier: MIT
#pragma once

#include "agent/scan/Geometry.h"

#include <QDBusConnection>
#include <QDBusPendingCall>
#include <QDeadlineTimer>
#include <QString>
#include <QVariant>

#include <atomic>
#include <cstdint>
#include <string>
#include <vector>

/// What programs tell assistive technologies about themselves, by AT-SPI's D-Bus interface. All
/// roles, states and kinds of coordinates below are its constants.
namespace accessibility {

enum class Role : std::uint32_t {
    Canvas = 6,
    CheckBox = 7,
    ComboBox = 11,
    DrawingArea = 18,
    ListItem = 32,
    Menu = 33,
    MenuBar = 34,
    MenuItem = 35,
    PageTab = 37,
    PasswordText = 40,
    PushButton = 43,
    RadioButton = 44,
    Slider = 51,
    SpinButton = 52,
    Terminal = 60,
    Text = 61,
    ToggleButton = 62,
    Entry = 79,
    Link = 88,
    PushButtonMenu = 129
};

enum class State : std::uint32_t { Active = 1, Editable = 7, Sensitive = 24, Showing = 25 };

/// An object of a program on the accessibility bus.
struct Object {
    QString program;
    QString path;
};

/// The states of an object.
struct States {
    QList<quint32> bits;

    bool has(State state) const;
};

/// A question that is on its way, so that several can be.
template <class Answer>
class Asked {
public:
    Asked(QDBusPendingCall call, Answer (*read)(const QVariant&)) : call_(call), read_(read) {}

    /// Waits for it. An empty one when none comes in time.
    Answer get() {
        call_.waitForFinished();
        return read_(call_.reply().arguments().value(0));
    }

private:
    QDBusPendingCall call_;
    Answer (*read_)(const QVariant&);
};

constexpr int kCallMs = 300; ///< for one answer

/// Tells the session that there are assistive technologies: some programs answer only then. Waits
/// for the session, kCallMs at most.
void wakePrograms();

/// A connection for one thread and for a bounded time. Questions after it get empty answers at
/// once, as do those that a program doesn't answer within kCallMs. The first connection of a
/// session may take longer: it starts the accessibility bus.
class Bus {
public:
    explicit Bus(int patienceMs);
    ~Bus();
    Bus(const Bus&) = delete;
    Bus& operator=(const Bus&) = delete;

    bool isLate() const { return deadline_.hasExpired(); }

    /// The root, whose children are the programs.
    static Object root();

    Asked<std::vector<Object>> children(const Object& object) const;
    Asked<Role> role(const Object& object) const;
    Asked<States> states(const Object& object) const;
    Asked<std::string> name(const Object& object) const;
    /// On the screen, in the program's own pixels.
    Asked<Area> place(const Object& object) const;
    /// Of a program. 0 for none.
    Asked<std::uint32_t> process(const Object& program) const;

private:
    QDBusPendingCall ask(const Object& object, const QString& interface, const char* method,
                         const QVariantList& arguments = {}) const;

    static inline std::atomic<int> count = 0;

    QString name_; ///< of the connection, in this process
    QDBusConnection bus_;
    QDeadlineTimer deadline_;
};

} // namespace accessibility
