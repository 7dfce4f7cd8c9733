// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CoreFoundation/CFString.h"
#include "platform/CoreServices/Files.h"

constexpr OSStatus kAHInternalErr = -10790;

/// Registers the help book of the bundle at `bundle` under its CFBundleHelpBookName. The book is a
/// folder of HTML pages in the bundle's resources, which CFBundleHelpBookFolder names. Its start
/// page is index.html. kAHInternalErr when the bundle names no book or the start page is missing.
OSStatus AHRegisterHelpBook(const FSRef* bundle);

/// Opens a page of a registered book in the desktop's browser, without waiting. `path` is relative
/// to the book's folder; null means the start page. `anchor` (may be null) is a place in the page.
/// kAHInternalErr when the book or the page isn't known.
OSStatus AHGotoPage(const CFString* bookName, const CFString* path, const CFString* anchor);
