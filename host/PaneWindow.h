// SPDX-License-Identifier: MIT
#pragma once

#include <QMainWindow>

#include <functional>

/// The window around a pane, which assistive technology knows as one by its class. It grows and
/// shrinks as the user likes: what doesn't fit is scrolled.
class PaneWindow final : public QMainWindow {
public:
    /// Takes `pane` as its child.
    explicit PaneWindow(QWidget* pane);

    std::function<void()> onShown;  ///< called once, after the first frame is on the screen
    std::function<void()> onClosed; ///< called when the user closes it; it is still there

    /// Shows the window, of the size that the pane has in its form or that its contents need, but
    /// never beyond the screen.
    void open();
    void bringToFront();

    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    QWidget* pane_;
    QSize formSize_;
};
