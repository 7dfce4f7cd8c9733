// SPDX-License-Identifier: MIT
#pragma once

#include <QTabBar>

/// The list of sections at a window's side: a tab bar with its texts upright, an icon before each.
/// Alt with a section's letter goes there, see `onLetter`.
class SectionBar final : public QTabBar {
public:
    explicit SectionBar(QWidget* parent);

    /// `holds` says in a few words what the section holds. It stands in the second line and is the
    /// tab's tool tip, which screen readers take for its description.
    void addSection(const QString& name, const QString& holds, const QString& icon);

    std::function<void()> onLetter; ///< called when a letter has chosen the current section

protected:
    QSize tabSizeHint(int index) const override;
    QSize minimumTabSizeHint(int index) const override;
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void drawTexts(QPainter& painter, int index, const QRect& place) const;
};
