// SPDX-License-Identifier: MIT
#pragma once

#include "platform/AppKit/detail/FormPart.h"

#include <QWidget>

class QMenu;
class QPushButton;
class QScrollArea;
class QStackedWidget;
class SectionBar;

/// The window's sections: a list beside the form's stack of PageAreas. For each page:
/// - its window title is the section's name, with a letter marked by “&”;
/// - its accessible description says what the section holds;
/// - its property `icon` names the section's icon;
/// - its property `above` may name a widget beside the stack, which is shown above the page.
/// This class sets the margins of the pages' contents and of the widgets above them.
///
/// In a narrow or low window a button with a menu replaces the list. The property `menuButton`
/// names it. The parts of the layout around it are put one above the other if the window is too
/// narrow for all. Widgets whose property `wideOnly` is true are then hidden, and the buttons
/// beside it show their property `shortText` instead of their text. In a low window the widget
/// above a page scrolls with it.
///
/// These keys work in the whole window. Ctrl+Tab, Ctrl+Shift+Tab, Ctrl+Page Up and Ctrl+Page Down
/// go to the neighbouring section. Alt+1 to Alt+9 go to the section with that number. Alt and a
/// section's letter go to its first control.
class SectionFrame final : public QWidget, public FormPart {
public:
    explicit SectionFrame(QWidget* parent);

    void build() override;

    /// Makes `sizeHint` large enough for each section as it is now. It counts on two columns if
    /// nothing has to scroll on this screen then.
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
    void placeAboves();
    void fitWindow();
    void setPageMargins(bool narrow);
    void setNarrow(bool narrow);
    void fitHeader();
    void foldHeader();
    void setLow(bool low);

    QStackedWidget* pages_ = nullptr;
    QList<QWidget*> aboves_; ///< the widgets above pages
    SectionBar* bar_ = nullptr;
    QPushButton* button_ = nullptr; ///< the form's; null when it has none
    QMenu* menu_ = nullptr;
    QSize measured_;
    bool isNarrow_ = false;
    bool isLow_ = false;
};
