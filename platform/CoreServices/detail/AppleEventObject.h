// SPDX-License-Identifier: MIT
#pragma once

/// From now on receives events at /org/korvex/AppleEvents and gives them to their handlers. False
/// without a bus. A second call does nothing.
bool exportAppleEventObject();
