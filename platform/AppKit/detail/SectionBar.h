// SPDX-License-Identifier: MIT
#pragma once

#include <QTabBar>

/// The list of sections at a window's side: a tab bar with upright texts, an icon before each. Alt
/// and a section's mnemonic choose it, see `onLetter`.
class SectionBar final : public QTabBar {
public:
    explicit SectionBar(QWidget* parent);

    /// `holds` says in a few words what the section holds. It is the second line and the tab's tool
    /// tip, which screen readers say as its description.
    void addSection(const QString& name, const QString& holds, const QString& icon);

    std::function<void()> onLetter; ///< called when a mnemonic has chosen the section

protected:
    QSize tabSizeHint(int index) const override;
    QSize minimumTabSizeHint(int index) const override;
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void drawTexts(QPainter& painter, int index, const QRect& place) const;
};
