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

/// Set by the host when its window is about to go for good. From then on windows are left as they
/// are: raising or hiding one asks the display's server, which would wait for one that hangs and
/// crash without one.
inline bool areWindowsLeft = false;

/// A top-level widget as a Carbon window.
class CarbonWindow {
public:
    /// Takes the widget, which has no parent.
    explicit CarbonWindow(std::unique_ptr<QWidget> widget);
    /// Hides the widget at once. It is deleted later, because one of its events may be on its way.
    /// When windows are to be left as they are, neither happens.
    virtual ~CarbonWindow();
    CarbonWindow(const CarbonWindow&) = delete;
    CarbonWindow& operator=(const CarbonWindow&) = delete;

    QWidget& widget() const { return *widget_; }

    CarbonEventTarget& target() { return target_; }

    OSStatus send(EventRecord event) { return target_.send(event); }

    /// Null for a window whose picture is its widgets' alone.
    virtual GrafPort* port() { return nullptr; }

    virtual void show();

    /// In points, global coordinates; as last set.
    const QRect& bounds() const { return bounds_; }

    void setBounds(const QRect& bounds);

    /// Handles events until endModal. Gives what that was called with.
    OSStatus runModal();
    void endModal(OSStatus result);

    /// Asks for the keyboard until the window has it or is hidden. After five seconds without
    /// success, nobody could end the window by a key: its modal loop ends with
    /// errCouldntSetUserFocus.
    void takeKeyboard();

protected:
    /// Leaves the widget to whoever owns it; for a destructor.
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
