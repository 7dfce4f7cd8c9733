// SPDX-License-Identifier: MIT
#pragma once

#include "host/DesktopApplication.h"

enum class SingleInstance { First, Second, SecondToOneThatHangs };

/// Makes this the session's one instance of the program. Other starts and the desktop ask it to
/// come to the front; each request calls `onShow`.
///
/// If there already is an instance, it gets `request`. Its answer is awaited for two seconds at
/// most. Without a session bus every start is the first.
SingleInstance becomeSingleInstance(const ShowRequest& request, const QVariantMap& activation,
                                    std::function<void(const ShowRequest&)> onShow);
