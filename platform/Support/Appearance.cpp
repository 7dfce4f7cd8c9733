// SPDX-License-Identifier: MIT
#include "platform/Support/Appearance.h"

#include <QApplication>
#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QProxyStyle>

namespace {

const auto kService = QStringLiteral("org.freedesktop.portal.Desktop");
const auto kPath = QStringLiteral("/org/freedesktop/portal/desktop");
const auto kInterface = QStringLiteral("org.freedesktop.portal.Settings");

using Groups = QMap<QString, QVariantMap>;

/// Milliseconds. The portal may have to be started first.
constexpr int kTimeoutMs = 10'000;

/// A number outside counts as no wish.
constexpr double kLeastTextScale = 0.5, kMostTextScale = 3;

/// Three components from 0 to 1. Anything else counts as no wish.
QColor color(const QVariant& value) {
    if (!value.canConvert<QDBusArgument>())
        return {};
    const auto argument = value.value<QDBusArgument>();
    if (argument.currentSignature() != QLatin1String("(ddd)"))
        return {};
    double parts[3];
    argument.beginStructure();
    for (double& part : parts)
        argument >> part;
    argument.endStructure();
    for (const double part : parts)
        if (!(part >= 0 && part <= 1))
            return {};
    return QColor::fromRgbF(static_cast<float>(parts[0]), static_cast<float>(parts[1]),
                            static_cast<float>(parts[2]));
}

DesktopLook::Scheme scheme(const QVariant& value) {
    using Scheme = DesktopLook::Scheme;
    return value == 1U ? Scheme::Dark : value == 2U ? Scheme::Light : Scheme::Any;
}

double scale(const QVariant& value) {
    const double wish = value.toDouble();
    return wish >= kLeastTextScale && wish <= kMostTextScale ? wish : 1;
}

/// The desktops' common settings, and GNOME's where there is no common one. A value of another type
/// counts as no wish.
constexpr struct Wish {
    const char *group, *key;
    void (*take)(DesktopLook&, const QVariant&);
} kWishes[] = {
    {"org.freedesktop.appearance", "color-scheme",
     [](DesktopLook& look, const QVariant& value) { look.scheme = scheme(value); }},
    {"org.freedesktop.appearance", "contrast",
     [](DesktopLook& look, const QVariant& value) { look.highContrast = value == 1U; }},
    {"org.freedesktop.appearance", "reduced-motion",
     [](DesktopLook& look, const QVariant& value) { look.reducedMotion = value == 1U; }},
    {"org.freedesktop.appearance", "accent-color",
     [](DesktopLook& look, const QVariant& value) { look.accent = color(value); }},
    {"org.gnome.desktop.a11y.interface", "high-contrast",
     [](DesktopLook& look, const QVariant& value) { look.highContrast = value == true; }},
    {"org.gnome.desktop.interface", "enable-animations",
     [](DesktopLook& look, const QVariant& value) { look.reducedMotion = value == false; }},
    {"org.gnome.desktop.interface", "text-scaling-factor",
     [](DesktopLook& look, const QVariant& value) { look.textScale = scale(value); }},
};

/// The X server reports a resolution for text, which includes the desktop's text scale.
bool serverScalesText() {
    return QGuiApplication::platformName() == QLatin1String("xcb");
}

/// Adwaita draws controls in its own colours. With another palette their text couldn't be read.
bool styleTakesPalette() {
    const QStyle* style = QApplication::style();
    if (const auto* proxy = qobject_cast<const QProxyStyle*>(style))
        style = proxy->baseStyle();
    return !style->name().startsWith(QLatin1String("adwaita"), Qt::CaseInsensitive) &&
           !style->name().startsWith(QLatin1String("highcontrast"), Qt::CaseInsensitive);
}

} // namespace

void Appearance::follow() {
    new Appearance(QCoreApplication::instance());
}

Appearance::Appearance(QObject* application)
    : QObject(application), themeFont_(QApplication::font()),
      themeAnimates_(QApplication::isEffectEnabled(Qt::UI_General)) {
    auto bus = QDBusConnection::sessionBus();
    // From any sender: asking who owns the portal's name would mean waiting.
    bus.connect(QString(), kPath, kInterface, QStringLiteral("SettingChanged"), this,
                SLOT(settingChanged(QDBusMessage)));
    ask();
}

void Appearance::ask() {
    auto call =
        QDBusMessage::createMethodCall(kService, kPath, kInterface, QStringLiteral("ReadAll"));
    QStringList groups;
    for (const Wish& wish : kWishes)
        groups << QLatin1String(wish.group);
    groups.removeDuplicates();
    call << groups;
    auto* watcher = new QDBusPendingCallWatcher(
        QDBusConnection::sessionBus().asyncCall(call, kTimeoutMs), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher] {
        watcher->deleteLater();
        const QDBusMessage reply = watcher->reply();
        if (reply.signature() != QLatin1String("a{sa{sv}}"))
            return;
        const auto told = qdbus_cast<Groups>(reply.arguments().constFirst());
        for (auto group = told.begin(); group != told.end(); ++group)
            for (auto each = group->begin(); each != group->end(); ++each)
                take(group.key(), each.key(), each.value());
        apply();
    });
}

void Appearance::settingChanged(const QDBusMessage& signal) {
    if (signal.signature() != QLatin1String("ssv"))
        return;
    const auto told = signal.arguments();
    take(told[0].toString(), told[1].toString(), told[2].value<QDBusVariant>().variant());
    apply();
}

void Appearance::take(const QString& group, const QString& key, const QVariant& value) {
    for (const Wish& wish : kWishes)
        if (group == QLatin1String(wish.group) && key == QLatin1String(wish.key))
            wish.take(look_, value);
}

void Appearance::apply() {
    if (look_ == applied_)
        return;
    applied_ = look_;
    if (styleTakesPalette()) {
        QApplication::setPalette(QPalette()); // the theme's, as it is now
        QApplication::setPalette(desktopPalette(look_, QApplication::palette()));
    }
    if (!serverScalesText() && themeFont_.pointSizeF() > 0) {
        QFont font = themeFont_;
        font.setPointSizeF(font.pointSizeF() * look_.textScale);
        QApplication::setFont(font);
    }
    QApplication::setEffectEnabled(Qt::UI_General, themeAnimates_ && !look_.reducedMotion);
}
