// SPDX-License-Identifier: MIT
#pragma once

/// Makes Qt ask here for the accessibility of sliders. Calling it again does nothing.
void installSliderAccessibility();
