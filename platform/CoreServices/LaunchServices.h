#pragma once

#include "platform/CoreFoundation/CFURL.h"

constexpr OSStatus kLSNotAnApplicationErr = -10811;
constexpr OSStatus kLSApplicationNotFoundErr = -10814;

/// Starts the application whose bundle the URL names, detached from this process: its executable is
/// Contents/Linux/<CFBundleExecutable>. An application that this process started before and that
/// still runs, or is still starting, isn't started a second time. Nothing waits for it to come up.
OSStatus LSOpenCFURLRef(const CFURL* url, CFRef<CFURL>* launched);
