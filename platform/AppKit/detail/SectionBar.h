// SPDX-License-Identifier: MIT
#pragma once

#include "platform/AppKit/NSAccessibility.h"

#include <QTabBar>

/// The list of sections at a window's side: a tab bar with upright texts, an icon before each. Alt
/// and a section's mnemonic choose it, see `onLetter`.
class SectionBar final : public QTabBar, public NSAccessibilityList {
public:
    explicit SectionBar(QWidget* parent);

    /// `holds` says in a few words what the section holds. It is the second line and the tab's tool
    /// tip, which screen readers say as its description.
    void addSection(const QString& name, const QString& holds, const QString& icon);

    std::function<void()> onLetter; ///< called when a mnemonic has chosen the section

    // Qt's own description says of the current tab that it has the focus, wherever that is.
    int accessibilityCount() const override { return count(); }

    NSAccessibilityElement accessibilityElement(int index) const override;

    int accessibilityFocusedIndex() const override { return currentIndex(); }

    void accessibilityPress(int index) override { setCurrentIndex(index); }

protected:
    QSize tabSizeHint(int index) const override;
    QSize minimumTabSizeHint(int index) const override;
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void drawTexts(QPainter& painter, int index, const QRect& place) const;
};
