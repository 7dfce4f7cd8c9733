// SPDX-License-Identifier: MIT
#pragma once

/// Continues without the session bus if it doesn't answer within two seconds. Otherwise every
/// connection would wait for it. Call it before anything connects. Programs started from here then
/// have no bus either.
void leaveOutHangingBus();
