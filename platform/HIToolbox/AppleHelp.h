// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CoreFoundation/CFString.h"
#include "platform/CoreServices/Files.h"

constexpr OSStatus kAHInternalErr = -10790;

/// Makes the help book of the bundle at `bundle` known under its CFBundleHelpBookName. The book is
/// the folder of HTML pages in the bundle's resources that CFBundleHelpBookFolder names; it starts
/// with index.html. kAHInternalErr when the bundle names no book or the start page isn't there.
OSStatus AHRegisterHelpBook(const FSRef* bundle);

/// Opens a page of a registered book in the desktop's browser, without waiting for it: the start
/// page when `path`, relative to the book's folder, is null. `anchor`, null for none, names a place
/// in the page. kAHInternalErr when the book isn't known or the page isn't there.
OSStatus AHGotoPage(const CFString* bookName, const CFString* path, const CFString* anchor);
