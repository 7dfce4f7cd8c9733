// SPDX-License-Identifier: MIT
#pragma once

#include "platform/HIToolbox/detail/CarbonWindow.h"
#include "platform/HIToolbox/detail/DesktopPicture.h"
#include "platform/HIToolbox/detail/WindowPort.h"

#include <QPointer>
#include <QTimer>
#include <QWindow>

/// A frameless window above all windows of all programs. It is transparent where nothing is drawn,
/// and gets clicks there too. Where windows can't be transparent, it shows a picture of the desktop
/// from when it was shown. While it is shown the program's other windows get no input.
///
/// When the displays change, it sends kEventWindowBoundsChanged. Its owner then sets the bounds
/// again.
class OverlayWindow final : public CarbonWindow {
public:
    OverlayWindow();
    ~OverlayWindow() override;

    /// Whether the desktop allows such a window.
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
