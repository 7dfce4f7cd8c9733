// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

class GrafPort;
class NSEvent;
class NSView;

/// The widget behind a view that draws itself: it hands the view its events. The form's dynamic
/// property aspectRatio, width by height, makes it as high as its width asks for.
class ViewWidget final : public QWidget {
public:
    explicit ViewWidget(QWidget* parent);

    NSView* view() const { return view_; }

    /// The port that it is drawn into; null but while it is painted.
    GrafPort* port() const { return port_; }

    /// Not owned; outlives the widget.
    void setView(NSView* view);

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
    bool isKeyTaken(QEvent& event);
    void updateFirstResponder();

    NSView* view_ = nullptr;
    GrafPort* port_ = nullptr;
    bool isFirstResponder_ = false;
    bool isKeyTaken_ = false; ///< the view used the key whose press event is yet to come
};
