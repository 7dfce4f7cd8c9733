// SPDX-License-Identifier: MIT
#pragma once

/// Makes Qt use this for sliders' accessibility. A second call does nothing.
void installSliderAccessibility();
