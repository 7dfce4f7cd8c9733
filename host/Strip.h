// SPDX-License-Identifier: MIT
#pragma once

#include <QFrame>

class QBoxLayout;
class QLabel;
class QPushButton;

/// Shows the current message of UserMessages.h, in words and with its buttons; without one it is
/// hidden. To a screen reader it is an alert that has the message's text as its name. It never
/// takes the keyboard by itself.
class Strip final : public QFrame {
public:
    explicit Strip(QWidget* parent);
    ~Strip() override;

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void showCurrent();
    void addButton(const QString& label, std::function<void()> press);
    void arrangeButtons();

    QLabel* text_;
    QWidget* buttonRow_;
    QBoxLayout* buttons_;
};
