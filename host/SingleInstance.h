#pragma once

#include "host/DesktopApplication.h"

/// Makes this the one instance of the program in the session, which other starts of it and the
/// desktop ask to come to the front. Each ask calls `onShow`.
///
/// False when there is another instance, which has then been asked for `request`; its answer is
/// awaited for at most two seconds. Without a session bus every start is on its own: true.
bool becomeSingleInstance(const ShowRequest& request, const QVariantMap& activation,
                          std::function<void(const ShowRequest&)> onShow);
