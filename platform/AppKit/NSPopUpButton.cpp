// SPDX-License-Identifier: MIT
#include "platform/AppKit/NSPopUpButton.h"

#include "platform/AppKit/detail/PopUpButtonWidget.h"

#include <QVariant>

#include <algorithm>

namespace {

QString toQString(std::string_view utf8) {
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

} // namespace

void NSPopUpButton::attachWidget(QWidget* widget) {
    NSControl::attachWidget(widget);
    auto* button = static_cast<PopUpButtonWidget*>(widget);
    button->entries = [this] {
        if (delegate_)
            delegate_->menuNeedsUpdate(this);
        std::vector<PopUpEntry> entries;
        for (const auto& item : items_) {
            const QIcon* icon = item->image().icon();
            entries.push_back({QString::fromStdString(item->title()), icon ? *icon : QIcon(),
                               !autoenablesItems_ || item->canSendAction()});
        }
        return entries;
    };
    button->onChosen = [this](const QString& title) {
        if (NSMenuItem* item = itemWithTitle(title.toStdString()))
            item->sendAction();
    };
}

void NSPopUpButton::setTitle(std::string_view utf8, std::string_view brief) {
    auto* button = static_cast<PopUpButtonWidget*>(widget());
    button->setProperty("longText", toQString(utf8));
    button->setProperty("shortText", toQString(brief));
    button->setText(toQString(button->property("isShort").toBool() ? brief : utf8));
}

void NSPopUpButton::addItemWithTitle(std::string_view utf8) {
    const auto hasTitle = [&](const auto& item) { return item->title() == utf8; };
    std::erase_if(items_, hasTitle);
    items_.push_back(std::make_unique<NSMenuItem>(utf8));
}

NSMenuItem* NSPopUpButton::itemWithTitle(std::string_view utf8) const {
    const auto found = std::find_if(items_.begin(), items_.end(),
                                    [&](const auto& item) { return item->title() == utf8; });
    return found == items_.end() ? nullptr : found->get();
}
