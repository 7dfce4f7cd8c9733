#pragma once

#include <functional>

/// Makes this the one instance of the program in the session, which other starts of it ask to come
/// to the front: the name org.korvex.Preferences and the interface org.freedesktop.Application on
/// the session bus. Each ask calls `onActivate`.
///
/// False when there is another instance, which has then been asked; its answer is awaited for at
/// most two seconds. Without a session bus every start is on its own: true.
bool becomeSingleInstance(std::function<void()> onActivate);
