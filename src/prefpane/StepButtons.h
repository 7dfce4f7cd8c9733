#pragma once

class NSButton;
class NumberController;

/// Makes a minus and a plus button repeat while they are held down.
void setStepButtonsAutoRepeat(NSButton* decBtn, NSButton* incBtn);

/// Enables each button exactly when its controller's value can go that way.
void updateStepButtons(const NumberController& controller, NSButton* decBtn, NSButton* incBtn);
