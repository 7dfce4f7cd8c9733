// SPDX-License-Identifier: MIT
#pragma once

#include <QLineEdit>

#include <functional>
#include <optional>

class QLabel;

/// A field that shows a value and accepts a typed one. The text is taken when Return is pressed or
/// the focus leaves. Escape shows the old value again.
class ValueField final : public QLineEdit {
public:
    explicit ValueField(QWidget* parent);

    /// Shows a text and drops what was typed.
    void showText(const QString& text);

    /// The label that shows refusals in place of its own text. Not owned; null for none.
    void setExplanation(QLabel* label);

    /// Shows the old value again and explains why the typed one isn't accepted. The explanation
    /// stays until the focus leaves or something else is typed.
    void refuse(const QString& why);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

    std::function<void()> onTyped; ///< called with a new text in the field

    enum class Step { MuchLess, Less, More, MuchMore };

    std::function<void(Step step)> onStep; ///< called by the arrow keys and by Page Up and Down

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    static std::optional<Step> stepOf(int key);
    void commit();
    void withdrawRefusal();

    int widest_ = 0; ///< of the texts that were shown, in points
    QString shown_;
    QLabel* explanation_ = nullptr;
    QString reason_; ///< the explanation's own text while a refusal stands there
};
