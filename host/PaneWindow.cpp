// SPDX-License-Identifier: MIT
#include "host/PaneWindow.h"

#include "host/Strip.h"
#include "platform/AppKit/detail/SectionFrame.h"

#include <QBoxLayout>
#include <QCloseEvent>
#include <QScreen>
#include <QScrollArea>
#include <QShortcut>
#include <QWindow>

PaneWindow::PaneWindow(QWidget* pane) : pane_(pane), formSize_(pane->size()) {
    auto* scroller = new QScrollArea;
    scroller->setFrameShape(QFrame::NoFrame);
    scroller->setFocusPolicy(Qt::NoFocus);
    scroller->setWidgetResizable(true);
    scroller->setWidget(pane);
    auto* content = new QWidget;
    auto* rows = new QVBoxLayout(content);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(0);
    rows->addWidget(scroller, 1);
    rows->addWidget(new Strip(content)); // below, so that what is pressed stays where it is
    setCentralWidget(content);
    for (const auto key : {Qt::CTRL | Qt::Key_W, Qt::CTRL | Qt::Key_Q})
        new QShortcut(QKeySequence(key), this, this, &QWidget::close);
}

void PaneWindow::open() {
    create();
    // Room for the window's frame, which isn't known before the window is shown.
    constexpr QSize kFrame(16, 48);
    for (auto* part : pane_->findChildren<QWidget*>())
        if (auto* sections = dynamic_cast<SectionFrame*>(part))
            sections->measure(); // now that all that it shows is there
    const QSize needed = pane_->sizeHint();
    resize(formSize_.expandedTo(needed).boundedTo(screen()->availableSize() - kFrame));
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
