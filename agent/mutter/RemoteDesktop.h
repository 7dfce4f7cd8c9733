// SPDX-License-Identifier: MIT
#pragma once

#include <QDBusMessage>
#include <QObject>
#include <QPoint>

#include <cstdint>
#include <functional>
#include <vector>

/// mutter's own remote control, `org.gnome.Mutter.RemoteDesktop`, which asks nobody: it moves the
/// pointer and presses buttons and keys. Places are given for a screen that is recorded; nobody
/// reads the records, so none is made. While it is open, GNOME shows that the screen is shared.
///
/// Opening waits for mutter; what is done then doesn't. mutter lets go of all that is held when the
/// program that holds it ends.
class RemoteDesktop final : public QObject {
    Q_OBJECT

public:
    RemoteDesktop();

    /// Whether a program on the session bus offers it.
    static bool isOffered();

    /// Opens it, if it isn't open. False when mutter refuses, or doesn't answer in a second.
    bool open();

    /// Calls that when mutter has done what it had to do by now, or doesn't answer in a second.
    void whenIdle(std::function<void()> then);

    /// In units of the screen whose corner that is; on the first screen if none has it.
    void move(QPoint screen, double x, double y);
    /// The kernel's number of a button.
    void button(std::int32_t button, bool isDown);
    /// By notches: down or right ones are positive.
    void scroll(bool isAcross, std::int32_t notches);
    /// A symbol of X's, which the active layout must have.
    void key(std::uint32_t symbol, bool isDown);

private Q_SLOTS:
    void close();

private:
    struct Screen {
        QPoint corner;
        QString connector;
        QString stream; ///< its record
    };

    bool readScreens();
    bool record();
    void notify(const char* method, const QVariantList& arguments);

    QString session_; ///< empty: it isn't open
    std::vector<Screen> screens_;
};
