// SPDX-License-Identifier: MIT
#include "platform/AppKit/NSWindow.h"

#include "platform/AppKit/NSView.h"
#include "platform/AppKit/detail/ContentCover.h"
#include "platform/AppKit/detail/ViewWidget.h"
#include "platform/HIToolbox/detail/CarbonWindow.h"
#include "platform/HIToolbox/detail/HostedWindow.h"

#include <QPointer>
#include <QScreen>
#include <QStackedWidget>
#include <QVariant>
#include <QWidget>

#include <algorithm>

namespace {

constexpr double kMillimetresAnInch = 25.4;
/// Points per inch. A display that reports anything beyond these is wrong.
constexpr double kLeastDensity = 40, kMostDensity = 400, kCommonDensity = 96;

NSSize millimetresOf(const QScreen& screen) {
    const QSizeF points = screen.geometry().size(), told = screen.physicalSize();
    const double density =
        told.height() > 0 ? points.height() / told.height() * kMillimetresAnInch : 0;
    const bool isLikely = density >= kLeastDensity && density <= kMostDensity;
    const QSizeF size = isLikely ? told : points / kCommonDensity * kMillimetresAnInch;
    return {static_cast<float>(size.width()), static_cast<float>(size.height())};
}

} // namespace

void NSWindow::makeFirstResponder(NSView* view) {
    const QPointer<QWidget> before = window_->focusWidget();
    if (view)
        view->widget()->setFocus(Qt::OtherFocusReason);
    else if (before)
        before->clearFocus();
    // In an inactive window no focus leaves it.
    if (auto* former = dynamic_cast<ViewWidget*>(before.data()))
        former->updateFirstResponder();
}

bool NSWindow::isKeyWindow() const {
    return window_->isActiveWindow();
}

std::string NSWindow::helpTopic() const {
    const auto topicOf = [](const QWidget* widget) {
        return widget->property("help").toString().toStdString();
    };
    for (const QWidget* each = window_->focusWidget(); each; each = each->parentWidget())
        if (const std::string topic = topicOf(each); !topic.empty())
            return topic;
    for (const auto* pages : window_->findChildren<QStackedWidget*>())
        if (pages->isVisible() && pages->currentWidget())
            return topicOf(pages->currentWidget());
    return {};
}

WindowRef NSWindow::windowRef() const {
    return windowRefOf(window_);
}

void NSWindow::setContentView(NSView* view) {
    // One at a time: the earlier one goes first.
    delete ContentCover::of(window_);
    if (view)
        new ContentCover(window_, view->widget());
}

bool NSWindow::isLeft() {
    return areWindowsLeft;
}

void NSWindow::toggleFullScreen() {
    window_->setWindowState(window_->windowState() ^ Qt::WindowFullScreen);
}

bool NSWindow::isFullScreen() const {
    return window_->isFullScreen();
}

NSScreen NSWindow::screen() const {
    const QScreen& screen = *window_->screen();
    const QSizeF points = screen.geometry().size();
    return {{static_cast<float>(points.width()), static_cast<float>(points.height())},
            millimetresOf(screen),
            std::max(screen.refreshRate(), 1.0)};
}
