// SPDX-License-Identifier: MIT
#pragma once

#include "platform/AppKit/NSControl.h"
#include "platform/AppKit/NSMenuItem.h"

#include <memory>
#include <vector>

class NSPopUpButton;

/// Is told what a menu is about to do.
class NSMenuDelegate {
public:
    virtual ~NSMenuDelegate() = default;

    /// Called just before the menu opens, to set or change its items and their pictures.
    virtual void menuNeedsUpdate(NSPopUpButton* menu) = 0;
};

/// A button with a pull-down menu of actions. The button shows a caption, never an item, and sends
/// no action; the chosen item sends its own. In the form it is a QPushButton promoted to
/// NSPopUpButton.
///
/// The menu closes when the button is disabled or hidden. It doesn't open without items.
class NSPopUpButton final : public NSControl {
public:
    void attachWidget(QWidget* widget) override;

    /// Replaces the form's caption. `brief` is used where there is little room, like the property
    /// shortText. UTF-8.
    void setTitle(std::string_view utf8, std::string_view brief);

    /// Adds an item at the end. An item with the same title is deleted.
    void addItemWithTitle(std::string_view utf8);

    void removeAllItems() { items_.clear(); }

    /// Null when there is no item of that title. Owned by the pop-up button.
    NSMenuItem* itemWithTitle(std::string_view utf8) const;

    /// In the menu's order.
    const std::vector<std::unique_ptr<NSMenuItem>>& itemArray() const { return items_; }

    /// While it is on, as at first, an item without target or action can't be chosen.
    void setAutoenablesItems(bool autoenables) { autoenablesItems_ = autoenables; }

    /// Not owned; null for none.
    void setDelegate(NSMenuDelegate* delegate) { delegate_ = delegate; }

private:
    std::vector<std::unique_ptr<NSMenuItem>> items_;
    NSMenuDelegate* delegate_ = nullptr;
    bool autoenablesItems_ = true;
};
