// SPDX-License-Identifier: MIT
#pragma once

#include <QPointer>
#include <QWidget>

/// Lies between a window's content and its sheet. It dims the content, keeps clicks, keys and
/// shortcut letters from it, and holds the sheet at the top. To a screen reader it is a
/// notification with the sheet's name and description.
class SheetShade final : public QWidget {
public:
    /// Takes the sheet, which must have no parent, and shows it. When the shade goes, the sheet is
    /// hidden and has no parent again.
    SheetShade(QWidget* window, QWidget* sheet);
    ~SheetShade() override;

    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    bool focusNextPrevChild(bool next) override;

private:
    QSize sheetSize() const;
    void place();
    void focusMoved(QWidget* focus);
    void takeKeyboardFrom(QWidget* focus);
    void giveKeyboardBack();

    QPointer<QWidget> sheet_;
    QPointer<QWidget> entry_;       ///< gets the focus in the sheet
    QPointer<QWidget> formerFocus_; ///< had the focus before the sheet
};
