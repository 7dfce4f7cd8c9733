// SPDX-License-Identifier: MIT
#pragma once

#include <QFrame>

class QBoxLayout;
class QLabel;
class QPushButton;

/// Shows the current message of UserMessages.h with its buttons. Hidden without a message. To a
/// screen reader it is an alert named by the message's text. It never takes the focus by itself.
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
