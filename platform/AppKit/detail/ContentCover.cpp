// SPDX-License-Identifier: MIT
#include "platform/AppKit/detail/ContentCover.h"

#include <QEvent>
#include <QVBoxLayout>

namespace {

constexpr auto kName = QLatin1String("contentCover");

} // namespace

ContentCover* ContentCover::of(QWidget* window) {
    return dynamic_cast<ContentCover*>(
        window->findChild<QWidget*>(kName, Qt::FindDirectChildrenOnly));
}

ContentCover::ContentCover(QWidget* window, QWidget* content)
    : QWidget(window), content_(content), formerFocus_(window->focusWidget()) {
    setObjectName(kName);
    setAutoFillBackground(true);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(content);
    setGeometry(window->rect());
    window->installEventFilter(this);
    for (auto* child : window->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
        // Before the window is shown, its content is hidden too, but not explicitly.
        const bool isHidden =
            child->isHidden() && child->testAttribute(Qt::WA_WState_ExplicitShowHide);
        if (child == this || child->isWindow() || isHidden)
            continue;
        hidden_.emplace_back(child);
        child->hide();
    }
    content->show();
    raise();
    show();
}

ContentCover::~ContentCover() {
    if (content_) {
        content_->hide();
        content_->setParent(nullptr);
    }
    for (const auto& child : hidden_)
        if (child)
            child->show();
    if (formerFocus_)
        formerFocus_->setFocus(Qt::OtherFocusReason);
}

bool ContentCover::eventFilter(QObject* watched, QEvent* event) {
    if (watched == parentWidget() && event->type() == QEvent::Resize)
        setGeometry(parentWidget()->rect());
    return false;
}
