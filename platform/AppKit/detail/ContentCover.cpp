// SPDX-License-Identifier: MIT
#include "platform/AppKit/detail/ContentCover.h"

#include "platform/HIToolbox/detail/CarbonWindow.h"

#include <QEvent>
#include <QVBoxLayout>

namespace {

constexpr auto kName = QLatin1String("contentCover");

QWidget* coveredPart(QWidget* window) {
    auto* part = window->findChild<QWidget*>(kCoveredPart);
    return part ? part : window;
}

} // namespace

ContentCover* ContentCover::of(QWidget* window) {
    return dynamic_cast<ContentCover*>(
        coveredPart(window)->findChild<QWidget*>(kName, Qt::FindDirectChildrenOnly));
}

ContentCover::ContentCover(QWidget* window, QWidget* content)
    : QWidget(coveredPart(window)), content_(content), formerFocus_(window->focusWidget()) {
    setObjectName(kName);
    setAutoFillBackground(true);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(content);
    QWidget* part = parentWidget();
    setGeometry(part->rect());
    part->installEventFilter(this);
    for (auto* child : part->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
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
    if (areWindowsLeft)
        return;
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
