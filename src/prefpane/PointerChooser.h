#pragma once

class NSTextField;
class NumberChangeTarget;

/// The wrangler's part for the choice of a pointer.
class PointerChooser {
public:
    NSTextField* pointerName = nullptr; ///< filled by the interface file; not owned

    /// `changes` hears of every choice; not owned.
    explicit PointerChooser(NumberChangeTarget& changes) : changes_(changes) {}

    /// Chooses the next pointer, or the previous one, and reports the change, also when it is the
    /// same one. Does nothing when the agent has no pointers.
    void bumpPointer(bool forward);
    /// Shows the name of the pointer that the preview draws.
    void updatePointerName();

private:
    NumberChangeTarget& changes_;
};
