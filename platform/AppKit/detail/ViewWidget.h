// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

class GrafPort;
class QHelpEvent;
class NSEvent;
class NSView;

/// The widget behind a view that draws itself. It passes events to the view. The dynamic property
/// aspectRatio, width divided by height, sets its height by its width.
class ViewWidget final : public QWidget {
public:
    explicit ViewWidget(QWidget* parent);

    NSView* view() const { return view_; }

    /// The port that it is painted into. Null except while it is painted.
    GrafPort* port() const { return port_; }

    /// Not owned. Must outlive the widget.
    void setView(NSView* view);

    /// Tells the view whether it is the first responder, if that has changed.
    void updateFirstResponder();

    bool hasHeightForWidth() const override;
    int heightForWidth(int width) const override;

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    NSEvent mouseEventOf(const QMouseEvent& event) const;
    bool showName(const QHelpEvent& help);
    bool isKeyTaken(QEvent& event);

    NSView* view_ = nullptr;
    GrafPort* port_ = nullptr;
    bool isFirstResponder_ = false;
    bool isKeyTaken_ = false; ///< the view has used the key; the press event follows
};
