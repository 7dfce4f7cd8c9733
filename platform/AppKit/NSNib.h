// SPDX-License-Identifier: MIT
#pragma once

#include "platform/AppKit/NSView.h"

#include <map>
#include <memory>
#include <string>
#include <vector>

class QWidget;

/// A loaded interface file: a Qt Designer form, read at run time. Dynamic properties describe its
/// widgets:
///
/// - customClass: the widget makes an object of that class, from the class registry or a control of
///   this layer. If the class is no view, the widget only groups the object's parts.
/// - outlet: the field that the widget's object is stored in. It belongs to the enclosing object.
/// - action: the selector that the control sends to the enclosing object. If that has no such
///   action, the next object outward gets it.
/// - tag, minValue, maxValue: see NSMatrix and NSSlider.
/// - keepsKeyboard: while the widget has the focus, no sheet takes it away; see Sheets.h.
///
/// The outermost object is the file's owner, which exists before.
class NSNib {
public:
    NSNib();
    ~NSNib();
    NSNib(const NSNib&) = delete;
    NSNib& operator=(const NSNib&) = delete;

    /// Loads the form and wires it to `owner`. Then sends awakeFromNib to every object made, and
    /// last to the owner. False when anything is wrong: a file that can't be read or is no form, an
    /// unknown class, an outlet or action that the class lacks, a wrong type, an empty outlet.
    /// `errors` then says what, a line each, beginning with the file's path; awakeFromNib isn't
    /// sent. Call it once.
    bool instantiate(const std::string& path, NSObject& owner, std::vector<std::string>& errors);

    /// The form's outermost widget. The nib deletes it, unless its parent has done so. Null until
    /// loaded.
    QWidget* topLevelWidget() const { return form_; }

    /// Null until loaded.
    NSView* topLevelView() const { return view_; }

private:
    QWidget* form_ = nullptr;
    NSView* view_ = nullptr;
    std::vector<std::unique_ptr<NSObject>> objects_;
};
