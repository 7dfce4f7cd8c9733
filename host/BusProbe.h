// SPDX-License-Identifier: MIT
#pragma once

/// Goes on without the session bus when it is there but doesn't answer within two seconds: whoever
/// connects to it would wait for as long as it hangs. To be called before anybody connects. What is
/// started from here has no bus then either.
void leaveOutHangingBus();
