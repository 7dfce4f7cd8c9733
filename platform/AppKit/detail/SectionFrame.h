// SPDX-License-Identifier: MIT
#pragma once

#include "platform/AppKit/detail/FormPart.h"

#include <QWidget>

class QMenu;
class QPushButton;
class QScrollArea;
class QStackedWidget;
class SectionBar;

/// The window's sections: a list beside the stack of PageAreas that the form lays out in it. A
/// page's window title, with a letter marked by “&”, is its section's name, its accessible
/// description says what the section holds, and its property `icon` names the section's icon. A
/// widget that the form has beside the stack stands above a page that names it in its property
/// `above`. The pages' contents and what stands above them get their margins here.
///
/// In a narrow or low window a button with a menu takes the list's place: the one that the property
/// `menuButton` names. Then widgets whose property `wideOnly` is true vanish, and buttons beside it
/// wear their property `shortText` instead of their text. In a low window the rows go without their
/// explanations.
///
/// From anywhere in the window Ctrl+Tab, Ctrl+Shift+Tab, Ctrl+Page Up and Page Down go to the
/// neighbouring section, Alt+1 to Alt+9 to the one in that place, and Alt with its letter to the
/// first control in it.
class SectionFrame final : public QWidget, public FormPart {
public:
    explicit SectionFrame(QWidget* parent);

    void build() override;

    /// From now on, `sizeHint` is room for the whole of every section as it is; in two columns if
    /// that spares scrolling on this screen.
    void measure();

    QSize sizeHint() const override;

protected:
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    QScrollArea* page(int index) const;
    QSize sizeIn(int columns) const;
    void addSections();
    void addShortcuts();
    void choose(int section);
    void enterPage();
    void showCurrent();
    void fitWindow();
    void setPageMargins(bool narrow);
    void setNarrow(bool narrow);
    void fitHeader();
    void setLow(bool low);

    QStackedWidget* pages_ = nullptr;
    QList<QWidget*> aboves_; ///< what stands above some of the pages
    SectionBar* bar_ = nullptr;
    QPushButton* button_ = nullptr; ///< the form's; null when it has none
    QMenu* menu_ = nullptr;
    QSize measured_;
    bool isNarrow_ = false;
    bool isLow_ = false;
};
