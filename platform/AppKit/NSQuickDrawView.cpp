// SPDX-License-Identifier: MIT
#include "platform/AppKit/NSQuickDrawView.h"

#include "platform/AppKit/detail/ViewWidget.h"

GrafPtr NSQuickDrawView::qdPort() const {
    return static_cast<const ViewWidget*>(widget())->port();
}
