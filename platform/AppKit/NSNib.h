// SPDX-License-Identifier: MIT
#pragma once

#include "platform/AppKit/NSView.h"

#include <map>
#include <memory>
#include <string>
#include <vector>

class QWidget;

/// A loaded interface file: a Qt Designer form, read at run time. Dynamic properties in the form
/// say what becomes of its widgets:
///
/// - customClass: the widget makes an object of that class, one of the class registry or of the
///   layer's controls. If the class isn't a view, the widget only groups the object's parts.
/// - outlet: the field, of the object that encloses the widget, that the widget's object fills.
/// - action: the selector that the control sends to the object that encloses it or, if that has no
///   such action, to the next object outward.
/// - tag, minValue, maxValue: see NSMatrix and NSSlider.
/// - keepsKeyboard: while the keyboard acts on the widget, no sheet takes it away; see Sheets.h.
///
/// The outermost object is the file's owner, which exists already.
class NSNib {
public:
    NSNib();
    ~NSNib();
    NSNib(const NSNib&) = delete;
    NSNib& operator=(const NSNib&) = delete;

    /// Loads the form and wires it to `owner`, then sends awakeFromNib to every object made, and at
    /// last to the owner. False when anything is wrong: a file that can't be read or isn't a form,
    /// an unknown class, an outlet or action that the class lacks, a wrong type, an outlet left
    /// empty. `errors` then says what, one line each, beginning with the file's path; nothing has
    /// awoken. Call once.
    bool instantiate(const std::string& path, NSObject& owner, std::vector<std::string>& errors);

    /// The form's outermost widget. The nib deletes it in the end, if a parent that it was given
    /// has not done so before. Null until loaded.
    QWidget* topLevelWidget() const { return form_; }

    /// Null until loaded.
    NSView* topLevelView() const { return view_; }

private:
    QWidget* form_ = nullptr;
    NSView* view_ = nullptr;
    std::vector<std::unique_ptr<NSObject>> objects_;
};
