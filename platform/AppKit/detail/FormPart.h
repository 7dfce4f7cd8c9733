// SPDX-License-Identifier: MIT
#pragma once

/// A widget of a form that stands for a whole row, frame or list. When its properties are set, it
/// builds the parts that are always the same.
class FormPart {
public:
    FormPart() = default;
    FormPart(const FormPart&) = delete;
    FormPart& operator=(const FormPart&) = delete;
    virtual ~FormPart() = default;

    /// Called once, when the whole form is read. Surrounding parts are built first.
    virtual void build() = 0;
};
