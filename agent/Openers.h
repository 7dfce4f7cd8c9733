// SPDX-License-Identifier: MIT
#pragma once

#include "agent/ListWindow.h"
#include "agent/MenuBar.h"
#include "agent/session/Session.h"

#include <QTimer>

#include <functional>
#include <memory>
#include <optional>
#include <string>

/// Opens what is scanned at once: a window's menus, the desktop's applications, the list of
/// windows. Nothing waits for other programs.
class Openers {
public:
    /// `session` must outlive it. `opened` is called when there is something to scan, `cantDo` with
    /// the reason in a sentence. The list needs a QGuiApplication.
    Openers(Session& session, std::function<void()> opened,
            std::function<void(const std::string&)> cantDo);

    /// The active window's menus, to choose from.
    void menus();
    void applications();
    /// The open windows, to choose from.
    void windows();

    /// Where the list to choose from is, while it is open.
    std::optional<Area> list() const;

    /// Closes the list, and expects no menu any more.
    void close();

    static constexpr double kPatience = 2; ///< seconds that a menu may take to open

private:
    void choose(std::vector<std::string> rows, std::function<void(std::size_t)> chosen);
    void chooseMenu(const std::vector<BarMenu>& menus);
    void openMenu(const BarMenu& menu);
    void pressMenuKey();
    void expectMenu(const std::string& otherwise);
    void lookForMenu();

    Session& session_;
    std::function<void()> opened_;
    std::function<void(const std::string&)> cantDo_;
    ListWindow list_;
    QTimer look_; ///< for a menu that opens
    double until_ = 0;
    std::string otherwise_; ///< what is said when none opens
};
