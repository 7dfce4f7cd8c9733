// SPDX-License-Identifier: MIT
#pragma once

#include "platform/AppKit/detail/PopUpMenu.h"

#include <QPushButton>

/// The widget behind an NSPopUpButton: a button that opens a menu. A caption without room is
/// shortened, but the property `leastText` always has room.
class PopUpButtonWidget final : public QPushButton {
public:
    explicit PopUpButtonWidget(QWidget* parent);

    bool isMenuOpen() const { return menu_.isVisible(); }

    /// `pressedAt`: see PopUpMenu::open.
    void openMenu(std::optional<QPoint> pressedAt = {});

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

    std::function<std::vector<PopUpEntry>()> entries; ///< asked each time before the menu opens
    std::function<void(const QString& title)> onChosen;

protected:
    void initStyleOption(QStyleOptionButton* option) const override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void changeEvent(QEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    friend class PopUpButtonInterface;

    void showIsOpen(bool isOpen);
    int widthOf(const QString& caption) const;

    PopUpMenu& menu_; ///< a child
};
