// SPDX-License-Identifier: MIT
#pragma once

#include "platform/AppKit/NSAccessibility.h"

#include <QIcon>
#include <QListWidget>

#include <functional>
#include <optional>
#include <vector>

/// What a menu shows of an item.
struct PopUpEntry {
    QString title;
    QIcon icon;
    bool enabled = true;
};

/// The menu that a button opens, in a window of its own. Its entries are as high as buttons. It
/// shows all of them at once, in as few columns as the room above or below the button allows, read
/// from top to bottom; it scrolls, column by column, only when the whole screen is too small.
/// Assistive technology can press each: Qt's own lists offer no action that chooses.
class PopUpMenu final : public QListWidget, public NSAccessibilityList {
public:
    explicit PopUpMenu(QWidget* button);

    /// `pressedAt` is where on the screen the mouse button went down. Without it the menu starts at
    /// its first entry, for the keyboard.
    void open(const std::vector<PopUpEntry>& entries, std::optional<QPoint> pressedAt);

    std::function<void(const QString& title)> onChosen; ///< the menu is closed by then
    std::function<void()> onClosed;                     ///< after a choice or without one

    int accessibilityCount() const override { return count(); }

    NSAccessibilityElement accessibilityElement(int index) const override;

    int accessibilityFocusedIndex() const override { return currentRow(); }

    void accessibilityPress(int index) override { choose(index); }

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    /// The entries in columns of equal length; the last may be shorter.
    struct Grid {
        int rows;
        int width; ///< of all columns
    };

    /// The target of a key: `row`, or the next row in this direction that can be chosen.
    struct Move {
        int row;
        int onward; ///< 1 or -1
    };

    void fill(const std::vector<PopUpEntry>& entries);
    void placeAtButton();
    Grid gridIn(int height) const;
    int aroundEntries() const;    ///< both sides' margins and frames together
    int heightOf(int rows) const; ///< of the menu
    std::optional<Move> moveOf(int key) const;
    void go(Move move);
    bool canChoose(int row) const;
    void choose(int row);

    int entryHeight_ = 0;
    int rows_ = 1; ///< in a column
    std::optional<QPoint> pressedAt_;
    bool isPressed_ = false; ///< a mouse button went down in the menu
};
