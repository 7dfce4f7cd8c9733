// SPDX-License-Identifier: MIT
#pragma once

#include "platform/AppKit/NSWindow.h"
#include "platform/CoreFoundation/CFBundle.h"

#include <cstdio>
#include <memory>
#include <string>
#include <vector>

/// Opens the page, of which there is one, kept in `page`. It is shown in place of the window's
/// content, from the bundle's form of that name. Does nothing while it is open or without the form.
/// Faults of the form go to standard error. The target isn't owned; `bundle` may be null.
template <class Page, class Target>
void openPage(std::unique_ptr<Page>& page, const char* name, const CFBundle* bundle,
              NSWindow window, Target& target) {
    const auto form = bundle ? CFBundleCopyResourceURL(bundle, CFSTR(name), CFSTR("ui"), nullptr)
                             : CFRef<CFURL>();
    if (page || !form)
        return;
    page = std::make_unique<Page>(window, target);
    std::vector<std::string> errors;
    if (!page->show(form->path(), errors))
        page.reset();
    for (const std::string& error : errors)
        std::fprintf(stderr, "%s\n", error.c_str());
}

/// Closes the page. At the end of a visit it stays as it is; the window deletes its widgets.
template <class Page>
void closePage(std::unique_ptr<Page>& page) {
    if (!NSWindow::isLeft())
        page.reset();
}
