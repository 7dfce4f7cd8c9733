// SPDX-License-Identifier: MIT
#pragma once

class QUrl;

/// Shows a page of a help book in a window of this program, for a desktop without a browser. It
/// says where the page's file is. There is one such window; a further page replaces its page.
void showHelpPage(const QUrl& page);
