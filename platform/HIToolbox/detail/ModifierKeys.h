// SPDX-License-Identifier: MIT
#pragma once

class QKeyEvent;

/// Whether the key is a modifier key, by its place or by the active layout.
bool isModifierKey(const QKeyEvent& event);
