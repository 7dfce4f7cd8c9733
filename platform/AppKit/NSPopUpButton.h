// SPDX-License-Identifier: MIT
#pragma once

#include "platform/AppKit/NSControl.h"
#include "platform/AppKit/NSMenuItem.h"

#include <memory>
#include <vector>

class NSPopUpButton;

/// Told of what a menu is about to do.
class NSMenuDelegate {
public:
    virtual ~NSMenuDelegate() = default;

    /// Each time just before the menu opens: the place to give its items their pictures, or to
    /// change them.
    virtual void menuNeedsUpdate(NSPopUpButton* menu) = 0;
};

/// A button that opens a menu of actions. It is a pull-down menu: the button shows a caption of its
/// own, never an item, and sends no action of its own; the chosen item sends its own. In the form
/// it is a QPushButton promoted to NSPopUpButton.
///
/// The menu closes by itself when the button is disabled or hidden. It doesn't open while it has no
/// items.
class NSPopUpButton final : public NSControl {
public:
    void attachWidget(QWidget* widget) override;

    /// Another caption than the form's, and the one to wear where there is little room, as the
    /// form's property shortText; in UTF-8.
    void setTitle(std::string_view utf8, std::string_view brief);

    /// Adds an item at the end. It replaces the item of the same title, if there is one, which
    /// dies.
    void addItemWithTitle(std::string_view utf8);

    void removeAllItems() { items_.clear(); }

    /// Null when there is no item of that title. Owned by the pop-up button.
    NSMenuItem* itemWithTitle(std::string_view utf8) const;

    /// In the menu's order.
    const std::vector<std::unique_ptr<NSMenuItem>>& itemArray() const { return items_; }

    /// While on, as it is at first, an item that has no target or no action can't be chosen.
    void setAutoenablesItems(bool autoenables) { autoenablesItems_ = autoenables; }

    /// Not owned; null for none.
    void setDelegate(NSMenuDelegate* delegate) { delegate_ = delegate; }

private:
    std::vector<std::unique_ptr<NSMenuItem>> items_;
    NSMenuDelegate* delegate_ = nullptr;
    bool autoenablesItems_ = true;
};
