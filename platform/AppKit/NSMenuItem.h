// SPDX-License-Identifier: MIT
#pragma once

#include "platform/AppKit/NSImage.h"
#include "platform/AppKit/NSObject.h"

/// An entry of a menu, which owns it. When chosen it sends its action to its target, with itself as
/// the sender.
class NSMenuItem final : public NSObject {
public:
    explicit NSMenuItem(std::string_view utf8Title) : title_(utf8Title) {}

    /// In UTF-8.
    const std::string& title() const { return title_; }

    /// 0 until set.
    int tag() const { return tag_; }

    void setTag(int tag) { tag_ = tag; }

    /// Neither is owned; without both, nothing is sent.
    void setTarget(NSObject* target) { target_ = target; }

    void setAction(SEL action) { action_ = action; }

    /// True when it has a target and an action.
    bool canSendAction() const { return target_ && action_; }

    /// What choosing the item does.
    void sendAction();

    /// Shown before the title.
    const NSImage& image() const { return image_; }

    void setImage(const NSImage& image) { image_ = image; }

private:
    std::string title_;
    int tag_ = 0;
    NSObject* target_ = nullptr;
    SEL action_ = nullptr;
    NSImage image_;
};
