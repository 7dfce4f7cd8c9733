// SPDX-License-Identifier: MIT
#pragma once

#include <QLineEdit>

class QLabel;

/// A field that shows a value and takes another one that is typed. What is typed counts when
/// Return is pressed or the field is left; Escape gives the shown value back.
class ValueField final : public QLineEdit {
public:
    explicit ValueField(QWidget* parent);

    /// Shows a text in place of what was typed.
    void showText(const QString& text);

    /// Where a refusal is told, in place of the label's own text; not owned, null for nowhere.
    void setExplanation(QLabel* label);

    /// Gives the shown value back, and says why what was typed isn't taken until the field is left
    /// or something else is typed.
    void refuse(const QString& why);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

    std::function<void()> onTyped; ///< called with a new text in the field

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    void commit();
    void withdrawRefusal();

    int widest_ = 0; ///< of the texts that were shown, in points
    QString shown_;
    QLabel* explanation_ = nullptr;
    QString reason_; ///< the explanation's own text while a refusal stands there
};
