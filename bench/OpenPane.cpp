// SPDX-License-Identifier: MIT
#include "bench/OpenPane.h"

#include "bench/Peer.h"
#include "platform/AppKit/NSView.h"

#include <QAbstractButton>
#include <QApplication>
#include <QStackedWidget>

#include <cstdlib>
#include <string>
#include <vector>

OpenPane& OpenPane::instance() {
    static auto* pane = new OpenPane; // lives as long as the application
    return *pane;
}

OpenPane::OpenPane()
    : bundle_(CFBundleCreate(CFURLCreateFromFileSystemRepresentation(KORVEX_BUNDLE, true).get())) {
    peer(); // no other agent is launched
    pane_.initWithBundle(bundle_.get());
    std::vector<std::string> errors;
    if (!pane_.loadMainView(errors))
        std::abort();
    pane_.mainViewDidLoad();
    pane_.willSelect();
    window_ = pane_.mainView()->widget();
    window_->show();
    window_->activateWindow();
    while (!window_->isActiveWindow())
        QCoreApplication::processEvents();
}

template <class Part>
Part& OpenPane::part(const char* name) const {
    auto* found = window_->findChild<Part*>(QString::fromLatin1(name));
    if (!found)
        std::abort();
    return *found;
}

template QWidget& OpenPane::part(const char* name) const;
template QAbstractButton& OpenPane::part(const char* name) const;

void OpenPane::showSectionOf(const QWidget& part) const {
    auto* tabs = window_->findChild<QStackedWidget*>(QStringLiteral("prefsTabs"));
    for (int i = 0; i < tabs->count(); ++i)
        if (tabs->widget(i)->isAncestorOf(&part))
            tabs->setCurrentIndex(i);
}
