// SPDX-License-Identifier: MIT
#include "platform/Support/Appearance.h"
#include "tests/support/ProcessTest.h"

#include <QApplication>
#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusVirtualObject>
#include <QTest>

struct Accent {
    double red, green, blue;
};
Q_DECLARE_METATYPE(Accent)

QDBusArgument& operator<<(QDBusArgument& argument, const Accent& accent) {
    argument.beginStructure();
    argument << accent.red << accent.green << accent.blue;
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, Accent&) {
    return argument;
}

namespace {

const auto kPath = QStringLiteral("/org/freedesktop/portal/desktop");
const auto kInterface = QStringLiteral("org.freedesktop.portal.Settings");
const auto kAppearance = QStringLiteral("org.freedesktop.appearance");
const auto kGnome = QStringLiteral("org.gnome.desktop.interface");

using Groups = QMap<QString, QVariantMap>;

/// A stand-in for the desktop's portal, with its own connection.
class Portal final : public QDBusVirtualObject {
public:
    Portal() {
        qDBusRegisterMetaType<Accent>();
        qDBusRegisterMetaType<Groups>();
        EXPECT_TRUE(bus_.registerVirtualObject(kPath, this) &&
                    bus_.registerService("org.freedesktop.portal.Desktop"));
    }

    QString introspect(const QString&) const override { return {}; }

    bool handleMessage(const QDBusMessage& message, const QDBusConnection& bus) override {
        const Groups told = {{kAppearance, {{"color-scheme", 1U}}}};
        return bus.send(message.createReply(QVariant::fromValue(told)));
    }

    void change(const QString& group, const QString& key, const QVariant& value) {
        auto signal =
            QDBusMessage::createSignal(kPath, kInterface, QStringLiteral("SettingChanged"));
        signal << group << key << QVariant::fromValue(QDBusVariant(value));
        bus_.send(signal);
    }

private:
    QDBusConnection bus_ =
        QDBusConnection::connectToBus(QDBusConnection::SessionBus, QStringLiteral("portal"));
};

QColor color(QPalette::ColorRole role) {
    return QApplication::palette().color(role);
}

bool isDark() {
    return color(QPalette::Window).lightness() < color(QPalette::WindowText).lightness();
}

using AppearanceTest = ApplicationTest<QApplication>;

TEST_F(AppearanceTest, TheApplicationLooksAsThePortalWishes) {
    Portal portal;
    const double points = QApplication::font().pointSizeF();
    const QColor themeHighlight = color(QPalette::Highlight);
    QApplication::setEffectEnabled(Qt::UI_General);
    Appearance::follow();
    EXPECT_FALSE(isDark()) << "it waited";
    ASSERT_TRUE(QTest::qWaitFor([] { return isDark(); }));

    const QVariant yellow = QVariant::fromValue(Accent{1, 1, 0});

    const struct {
        QString group, key;
        QVariant value;
        std::function<bool()> then;
    } changes[] = {
        {kAppearance, "accent-color", yellow,
         [] { return color(QPalette::Highlight) == Qt::yellow && isDark(); }},
        {kAppearance, "contrast", 1U, [] { return color(QPalette::Window) == Qt::black; }},
        {kAppearance, "color-scheme", 2U, [] { return color(QPalette::Window) == Qt::white; }},
        {kAppearance, "contrast", "much", [] { return !isDark(); }},
        {kAppearance, "accent-color", QVariant::fromValue(Accent{-1, 0, 0}),
         [&] { return color(QPalette::Highlight) == themeHighlight; }},
        {kAppearance, "reduced-motion", 1U,
         [] { return !QApplication::isEffectEnabled(Qt::UI_General); }},
        {kGnome, "enable-animations", true,
         [] { return QApplication::isEffectEnabled(Qt::UI_General); }},
        {kGnome, "text-scaling-factor", 1.5,
         [&] { return QApplication::font().pointSizeF() == 1.5 * points; }},
        {kGnome, "text-scaling-factor", 1000.0,
         [&] { return QApplication::font().pointSizeF() == points; }},
    };

    for (const auto& change : changes) {
        portal.change(change.group, change.key, change.value);
        EXPECT_TRUE(QTest::qWaitFor(change.then)) << change.key.toStdString();
        const auto lightness = [](QPalette::ColorRole role) { return color(role).lightness(); };
        EXPECT_GT(abs(lightness(QPalette::Highlight) - lightness(QPalette::HighlightedText)), 100);
    }
}

} // namespace
