// SPDX-License-Identifier: MIT
#pragma once

/// A widget of a form that stands for a whole row, frame or list. Once it has the form's
/// properties, it builds what is always the same.
class FormPart {
public:
    FormPart() = default;
    FormPart(const FormPart&) = delete;
    FormPart& operator=(const FormPart&) = delete;
    virtual ~FormPart() = default;

    /// Called once, when the whole form has been read; those around it have been built before.
    virtual void build() = 0;
};
