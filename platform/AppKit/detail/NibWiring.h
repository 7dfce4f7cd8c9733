// SPDX-License-Identifier: MIT
#pragma once

#include "platform/AppKit/NSObject.h"

#include <QStringList>

#include <memory>
#include <set>
#include <string>
#include <vector>

class NSControl;
class NSMatrix;
class NSView;
class QWidget;

/// Makes the objects for a form's widgets and connects outlets and actions. It goes on after an
/// error, so that one run finds all errors.
class NibWiring {
public:
    /// `owner` is the outermost object. New objects are added to `objects`.
    NibWiring(NSObject& owner, std::vector<std::unique_ptr<NSObject>>& objects);

    /// Makes and wires the objects of the widget and of those inside, then looks for empty outlets.
    /// Returns the widget's view.
    NSView* wireForm(QWidget* form);

    const QStringList& errors() const { return errors_; }

private:
    struct Named {
        NSObject* object;
        QString name; ///< for messages
    };

    NSView* wire(QWidget* widget, NSView* superview);
    NSObject* makeCustomObject(QWidget* widget, const QString& className);
    NSView* makeView(QWidget* widget, NSView* superview, NSObject* object);
    void connectOutlet(const QWidget* widget, NSObject& object);
    void connectAction(const QWidget* widget, NSView& view);
    void checkCells(const QWidget* widget, const NSMatrix& matrix);
    void checkOutlets(const NSObject& object, const QString& name);
    void checkLayout(const NSObject& object, const QString& name);
    void report(const QWidget* widget, const QString& message);

    std::vector<std::unique_ptr<NSObject>>& objects_;
    std::vector<NSObject*> enclosing_; ///< innermost last
    std::vector<Named> named_;
    std::set<std::pair<NSObject*, std::string_view>> connected_;
    QStringList errors_;
};
