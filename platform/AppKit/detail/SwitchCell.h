// SPDX-License-Identifier: MIT
#pragma once

#include <QRadioButton>

/// One side of a switch: radio buttons side by side, drawn as one control. Arrow keys move the
/// focus to the other side without choosing it. Space or Return chooses.
class SwitchCell final : public QRadioButton {
public:
    using QRadioButton::QRadioButton;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    bool hitButton(const QPoint& place) const override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    SwitchCell* other(int step) const;
};
