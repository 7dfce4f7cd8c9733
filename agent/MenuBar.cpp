// SPDX-License-Identifier: MIT
#include "agent/MenuBar.h"

#include <QCoreApplication>
#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusReply>
#include <QDeadlineTimer>
#include <QPointer>
#include <QThread>
#include <QThreadPool>

#include <atomic>
#include <deque>

namespace {

// Of AT-SPI's constants, as its D-Bus interface has them.
constexpr quint32 kRoleMenu = 33, kRoleMenuBar = 34, kRoleMenuItem = 35;
constexpr quint32 kStateActive = 1, kStateShowing = 25;
constexpr quint32 kScreenCoordinates = 0;

constexpr int kCallMs = 300;      ///< for one answer
constexpr int kPatienceMs = 2500; ///< for all
/// A program that is just told to answer makes its tree first.
constexpr int kTries = 4, kRetryMs = 250;
constexpr std::size_t kMostObjects = 400;

const QString kAccessible = QStringLiteral("org.a11y.atspi.Accessible");

/// An object of a program on the accessibility bus.
struct Object {
    QString program;
    QString path;
};

class Bus {
public:
    /// Programs that answer assistive technologies only when there are some are told so.
    Bus() : name_(QStringLiteral("accessibility-%1").arg(++count)), bus_(name_) {
        const auto session = QDBusConnection::sessionBus();
        auto enable = QDBusMessage::createMethodCall(
            QStringLiteral("org.a11y.Bus"), QStringLiteral("/org/a11y/bus"),
            QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("Set"));
        enable << QStringLiteral("org.a11y.Status") << QStringLiteral("IsEnabled")
               << QVariant::fromValue(QDBusVariant(true));
        session.call(enable, QDBus::Block, kCallMs);
        const QDBusReply<QString> address =
            session.call(QDBusMessage::createMethodCall(
                             QStringLiteral("org.a11y.Bus"), QStringLiteral("/org/a11y/bus"),
                             QStringLiteral("org.a11y.Bus"), QStringLiteral("GetAddress")),
                         QDBus::Block, kCallMs);
        bus_ = QDBusConnection::connectToBus(address.value(), name_);
    }

    ~Bus() { QDBusConnection::disconnectFromBus(name_); }

    Bus(const Bus&) = delete;
    Bus& operator=(const Bus&) = delete;

    bool isLate() const { return deadline_.hasExpired(); }

    QVariant ask(const Object& object, const QString& interface, const char* method,
                 const QVariantList& arguments = {}) const {
        if (isLate())
            return {};
        auto call = QDBusMessage::createMethodCall(object.program, object.path, interface,
                                                   QLatin1String(method));
        call.setArguments(arguments);
        return bus_.call(call, QDBus::Block, kCallMs).arguments().value(0);
    }

    std::vector<Object> children(const Object& object) const {
        std::vector<Object> all;
        const auto list = ask(object, kAccessible, "GetChildren").value<QDBusArgument>();
        if (list.currentType() != QDBusArgument::ArrayType)
            return all;
        list.beginArray();
        while (!list.atEnd()) {
            Object child;
            QDBusObjectPath path;
            list.beginStructure();
            list >> child.program >> path;
            list.endStructure();
            child.path = path.path();
            all.push_back(child);
        }
        return all;
    }

    quint32 role(const Object& object) const {
        return ask(object, kAccessible, "GetRole").toUInt();
    }

    bool hasState(const Object& object, quint32 state) const {
        const auto bits = qdbus_cast<QList<quint32>>(ask(object, kAccessible, "GetState"));
        return state / 32 < static_cast<quint32>(bits.size()) &&
               (bits[state / 32] >> state % 32 & 1) != 0;
    }

    std::string name(const Object& object) const {
        return ask(object, QStringLiteral("org.freedesktop.DBus.Properties"), "Get",
                   {kAccessible, QStringLiteral("Name")})
            .value<QDBusVariant>()
            .variant()
            .toString()
            .toStdString();
    }

    Area place(const Object& object) const {
        int left = 0, top = 0, width = 0, height = 0;
        const auto extents = ask(object, QStringLiteral("org.a11y.atspi.Component"), "GetExtents",
                                 {kScreenCoordinates})
                                 .value<QDBusArgument>();
        if (extents.currentType() != QDBusArgument::StructureType)
            return {};
        extents.beginStructure();
        extents >> left >> top >> width >> height;
        extents.endStructure();
        return {double(left), double(top), double(width), double(height)};
    }

    bool belongsTo(const Object& program, quint32 process) const {
        const Object bus{QStringLiteral("org.freedesktop.DBus"),
                         QStringLiteral("/org/freedesktop/DBus")};
        return ask(bus, bus.program, "GetConnectionUnixProcessID", {program.program}).toUInt() ==
               process;
    }

private:
    static inline std::atomic<int> count = 0;

    QString name_; ///< of the connection, in this process
    QDBusConnection bus_;
    QDeadlineTimer deadline_{kPatienceMs};
};

/// The windows of the process that are active.
std::vector<Object> windowsOf(const Bus& bus, quint32 process) {
    std::vector<Object> windows;
    const Object root{QStringLiteral("org.a11y.atspi.Registry"),
                      QStringLiteral("/org/a11y/atspi/accessible/root")};
    for (const Object& program : bus.children(root)) {
        if (!bus.belongsTo(program, process))
            continue;
        for (const Object& window : bus.children(program))
            if (bus.hasState(window, kStateActive))
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
        const auto children = bus.children(object);
        if (bus.role(object) != kRoleMenuBar || !bus.hasState(object, kStateShowing)) {
            left.insert(left.end(), children.begin(), children.end());
            continue;
        }
        std::vector<BarMenu> menus;
        for (const Object& child : children) {
            const quint32 role = bus.role(child);
            const BarMenu menu{bus.name(child), bus.place(child)};
            if ((role == kRoleMenu || role == kRoleMenuItem) && !menu.name.empty() &&
                !menu.place.isEmpty())
                menus.push_back(menu);
        }
        if (!menus.empty())
            return menus;
    }
    return {};
}

std::vector<BarMenu> menuBarOf(quint32 process) {
    const Bus bus;
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
