// SPDX-License-Identifier: MIT
#pragma once

#include <QFrame>
#include <QPointer>

class QBoxLayout;
class QLabel;
class QPushButton;
class QScrollArea;

/// Shows the current message of UserMessages.h with its buttons: an alert on yellow, a note in the
/// desktop's colours. Hidden without a message. To a screen reader it is an alert named by the
/// message's text. It never takes the focus by itself.
/// F6 goes to its buttons and back; once they are gone, the keyboard is where it was before.
class Strip final : public QFrame {
public:
    explicit Strip(QWidget* parent);
    ~Strip() override;

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void showCurrent();
    void setColors(bool isAlert);
    void addButton(const QString& label, std::function<void()> press);
    void arrangeButtons();
    void makeRoomForText(int textWidth);
    void followFocus(QWidget* before, QWidget* now);
    bool hasKeyboard() const;
    void goThereOrBack();
    void giveKeyboardBack();

    QLabel* text_;
    QWidget* edge_; ///< a line between strip and pane
    QScrollArea* room_;
    QWidget* buttonRow_;
    QBoxLayout* buttons_;
    QBoxLayout* content_;
    QPointer<QWidget> former_; ///< had the keyboard before the strip
};
