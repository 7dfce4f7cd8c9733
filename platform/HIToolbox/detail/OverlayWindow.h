// SPDX-License-Identifier: MIT
#pragma once

#include "platform/HIToolbox/detail/CarbonWindow.h"
#include "platform/HIToolbox/detail/DesktopPicture.h"
#include "platform/HIToolbox/detail/WindowPort.h"

#include <QPointer>
#include <QTimer>
#include <QWindow>

/// A window without a frame, above all others of all programs. It is transparent where nothing is
/// drawn, and gets the clicks there too. Where windows can't be transparent, it shows the desktop
/// as it was when the window was shown. While it is shown the program's other windows get no input.
///
/// When the displays change, it is told that its bounds have: whoever made it sets them anew.
class OverlayWindow final : public CarbonWindow {
public:
    OverlayWindow();
    ~OverlayWindow() override;

    /// Whether the desktop can have such a window.
    static bool isSupported();

    GrafPort* port() override { return &port_; }

    void show() override;

private:
    friend class OverlayWidget;

    void followDisplays();
    void takeDesktopPicture();

    WindowPort port_;
    DesktopPicture desktop_;
    QPointer<QWindow> focusedBefore_;
    QTimer displaysChanged_;
};
