// SPDX-License-Identifier: MIT
#include "host/PaneWindow.h"

#include "host/Strip.h"
#include "platform/AppKit/NSView.h"
#include "platform/AppKit/detail/ContentCover.h"

#include <QBoxLayout>
#include <QCloseEvent>
#include <QScreen>
#include <QScrollArea>
#include <QShortcut>
#include <QWindow>

PaneWindow::PaneWindow(NSView* pane) : pane_(pane), formSize_(pane->widget()->size()) {
    auto* scroller = new QScrollArea;
    scroller->setFrameShape(QFrame::NoFrame);
    scroller->setFocusPolicy(Qt::NoFocus);
    scroller->setWidgetResizable(true);
    scroller->setWidget(pane->widget());
    auto* covered = new QWidget; // by other pages, but the strip never is
    covered->setObjectName(kCoveredPart);
    auto* whole = new QVBoxLayout(covered);
    whole->setContentsMargins(0, 0, 0, 0);
    whole->addWidget(scroller);
    auto* content = new QWidget;
    auto* rows = new QVBoxLayout(content);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(0);
    rows->addWidget(covered, 1);
    rows->addWidget(new Strip(content)); // below, so that what is pressed stays where it is
    setCentralWidget(content);
    for (const auto key : {Qt::CTRL | Qt::Key_W, Qt::CTRL | Qt::Key_Q})
        new QShortcut(QKeySequence(key), this, this, &QWidget::close);
}

void PaneWindow::open() {
    create();
    // Room for the window's frame, which isn't known before the window is shown.
    constexpr QSize kFrame(16, 48);
    const NSSize needed = pane_->fittingSize(); // now that all that it shows is there
    const QSize fitting(static_cast<int>(needed.width), static_cast<int>(needed.height));
    resize(formSize_.expandedTo(fitting).boundedTo(screen()->availableSize() - kFrame));
    windowHandle()->installEventFilter(this);
    show();
}

void PaneWindow::bringToFront() {
    setWindowState(windowState() & ~Qt::WindowMinimized);
    raise();
    activateWindow();
}

bool PaneWindow::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Expose && windowHandle()->isExposed()) {
        watched->removeEventFilter(this);
        // This event draws the frame, after the filters.
        QMetaObject::invokeMethod(
            this, [this] { onShown(); }, Qt::QueuedConnection);
    }
    return false;
}

void PaneWindow::closeEvent(QCloseEvent* event) {
    event->ignore(); // the end of the visit hides the window
    onClosed();
}
