#pragma once

#include "platform/CoreFoundation/CFURL.h"

constexpr OSStatus kLSUnknownErr = -10810;
constexpr OSStatus kLSNotAnApplicationErr = -10811;
constexpr OSStatus kLSApplicationNotFoundErr = -10814;

/// Starts the application whose bundle the URL names, detached from this process: its executable is
/// Contents/Linux/<CFBundleExecutable>. An application that this process started before and that
/// still runs, or is still starting, isn't started a second time. Nothing waits for it to come up.
///
/// It inherits environment, current folder, output and errors; its input is /dev/null. `launched`
/// (may be null) receives the bundle's URL. kLSApplicationNotFoundErr when the URL names no bundle,
/// kLSNotAnApplicationErr when the bundle has no executable, kLSUnknownErr when that can't be
/// started.
OSStatus LSOpenCFURLRef(const CFURL* url, CFRef<CFURL>* launched);
