// SPDX-License-Identifier: MIT
#pragma once

#include <QMainWindow>

#include <functional>

class NSView;

/// The window around a pane. Assistive technology recognises it by its class. It can be resized;
/// what doesn't fit is scrolled.
class PaneWindow final : public QMainWindow {
public:
    /// Takes the widget of `pane` as a child.
    explicit PaneWindow(NSView* pane);

    std::function<void()> onShown;  ///< called once, after the first frame is on the screen
    std::function<void()> onClosed; ///< called when the user closes it; it still exists

    /// Shows the window in the size that the form or its contents need, but never larger than the
    /// screen.
    void open();
    void bringToFront();

    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    const NSView* pane_;
    QSize formSize_;
};
