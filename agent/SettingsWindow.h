// SPDX-License-Identifier: MIT
#pragma once

/// Brings the settings' window to the front, or opens it, at the section that was used last. Never
/// waits.
void showSettingsWindow();
