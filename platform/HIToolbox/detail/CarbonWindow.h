// SPDX-License-Identifier: MIT
#pragma once

#include "platform/HIToolbox/MacWindows.h"
#include "platform/HIToolbox/detail/EventRecord.h"

#include <QEventLoop>
#include <QPointer>
#include <QRect>
#include <QTimer>
#include <QWidget>

#include <memory>

class GrafPort;

/// The host sets this before its window goes for good. From then on windows are left as they are.
/// Raising or hiding one asks the display server: that would wait for one that hangs and crash
/// without one.
inline bool areWindowsLeft = false;

/// A top-level widget as a Carbon window.
class CarbonWindow {
public:
    /// Takes over the widget, which must have no parent.
    explicit CarbonWindow(std::unique_ptr<QWidget> widget);
    /// Hides the widget at once and deletes it later, since one of its events may be under way.
    /// Does neither when windows are left as they are.
    virtual ~CarbonWindow();
    CarbonWindow(const CarbonWindow&) = delete;
    CarbonWindow& operator=(const CarbonWindow&) = delete;

    QWidget& widget() const { return *widget_; }

    CarbonEventTarget& target() { return target_; }

    OSStatus send(EventRecord event) { return target_.send(event); }

    /// Null for a window that only shows its widgets.
    virtual GrafPort* port() { return nullptr; }

    virtual void show();

    /// As last set, in points and global coordinates.
    const QRect& bounds() const { return bounds_; }

    void setBounds(const QRect& bounds);

    /// Handles events until endModal. Returns endModal's argument.
    OSStatus runModal();
    void endModal(OSStatus result);

    /// Asks for the keyboard until the window has it or is hidden. After five seconds in vain the
    /// modal loop ends with errCouldntSetUserFocus, since no key could end it.
    void takeKeyboard();

protected:
    /// Gives up ownership of the widget; for a destructor.
    void leaveWidget() { static_cast<void>(widget_.release()); }

private:
    void tryToTakeKeyboard();
    bool takeKeyboardOnce();

    std::unique_ptr<QWidget> widget_;
    CarbonEventTarget target_;
    QRect bounds_;
    QPointer<QEventLoop> modalLoop_; ///< while one runs
    QTimer tryAgain_;                ///< for the keyboard
    int triesLeft_ = 0;
};
