// SPDX-License-Identifier: MIT
#pragma once

#include "host/DesktopApplication.h"

enum class SingleInstance { First, Second, SecondToOneThatHangs };

/// Makes this the one instance of the program in the session, which other starts of it and the
/// desktop ask to come to the front. Each ask calls `onShow`.
///
/// When there is another instance, that one has been asked for `request`; its answer is awaited for
/// at most two seconds. Without a session bus every start is the first.
SingleInstance becomeSingleInstance(const ShowRequest& request, const QVariantMap& activation,
                                    std::function<void(const ShowRequest&)> onShow);
