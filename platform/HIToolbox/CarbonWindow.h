#pragma once

#include "platform/HIToolbox/CarbonEvent.h"
#include "platform/HIToolbox/MacWindows.h"

#include <QWidget>

#include <memory>

class GrafPort;

/// A top-level widget as a Carbon window.
class CarbonWindow {
public:
    /// Takes the widget, which has no parent.
    explicit CarbonWindow(std::unique_ptr<QWidget> widget);
    /// Hides the widget at once. It is deleted later, because one of its events may be on its way.
    virtual ~CarbonWindow();
    CarbonWindow(const CarbonWindow&) = delete;
    CarbonWindow& operator=(const CarbonWindow&) = delete;

    QWidget& widget() const { return *widget_; }

    CarbonEventTarget& target() { return target_; }

    void select();

    /// In points, global coordinates.
    virtual void moveTo(QPoint) {}

    virtual void resizeTo(QSize) {}

    /// Null for a window whose picture is its widgets' alone.
    virtual GrafPort* port() { return nullptr; }

protected:
    /// Leaves the widget to whoever owns it; for a destructor.
    void leaveWidget() { static_cast<void>(widget_.release()); }

private:
    std::unique_ptr<QWidget> widget_;
    CarbonEventTarget target_;
};
