// SPDX-License-Identifier: MIT
#pragma once

/// Receives events at /org/korvex/AppleEvents from now on and gives them to their handlers. False
/// without a bus. Calling it again does nothing.
bool exportAppleEventObject();
