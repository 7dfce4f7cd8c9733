// SPDX-License-Identifier: MIT
#include "platform/AppKit/detail/SectionFrame.h"

#include "platform/AppKit/detail/CardColumns.h"
#include "platform/AppKit/detail/PaneColors.h"
#include "platform/AppKit/detail/RowText.h"
#include "platform/AppKit/detail/SectionBar.h"

#include <QAccessibleWidget>
#include <QCoreApplication>
#include <QEvent>
#include <QHBoxLayout>
#include <QMenu>
#include <QPainter>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QShortcut>
#include <QStackedWidget>
#include <QVariant>

namespace {

constexpr int kListMargin = 10; // points, like the margins of a page
constexpr int kPageSide = 28;
constexpr int kPageAbove = 18;
constexpr int kNarrowPageSide = 10;
constexpr QMargins kWideHeader(20, 12, 20, 12);
constexpr QMargins kNarrowHeader(8, 6, 8, 6);
constexpr int kNarrow = 68; // heights of a line; a window below this width,
constexpr int kLow = 28;    // or this height, has a button instead of the list
constexpr int kMostNumbered = 9;
constexpr int kFrame = 48;  // points of the window, at most
constexpr int kHeader = 70; // above this frame

/// Qt calls a stack a layered pane and a line around something a frame. Screen readers would say
/// that for each. Qt's own interface of a scroll area has a fault: if a scroll bar vanishes after
/// the children were counted, asking for it crashes the program.
QAccessibleInterface* makeInterface(const QString& className, QObject* object) {
    const bool meansNothing = className == QLatin1String("QStackedWidget") ||
                              className == QLatin1String("QFrame") ||
                              className == QLatin1String("QScrollArea");
    return meansNothing ? new QAccessibleWidget(qobject_cast<QWidget*>(object), QAccessible::Client)
                        : nullptr;
}

/// Hidden widgets don't tell the layouts around them that they need another size. This makes all
/// layouts inside the widget ask again.
void forgetSizes(const QWidget& widget) {
    for (auto* part : widget.findChildren<QWidget*>())
        part->updateGeometry();
    for (auto* layout : widget.findChildren<QLayout*>())
        layout->invalidate();
}

} // namespace

// The factory comes first: once there are pages, Qt may ask for their interfaces.
SectionFrame::SectionFrame(QWidget* parent) : QWidget(parent) {
    [[maybe_unused]] static const bool isKnown = [] {
        QAccessible::installFactory(makeInterface);
        return true;
    }();
}

void SectionFrame::build() {
    pages_ = findChild<QStackedWidget*>(QString(), Qt::FindDirectChildrenOnly);
    bar_ = new SectionBar(this);
    bar_->setObjectName(objectName() + QStringLiteral("Bar"));
    bar_->setAccessibleName(accessibleName());
    bar_->setAccessibleDescription(accessibleDescription());
    auto* list = new QVBoxLayout;
    list->setContentsMargins(kListMargin, kListMargin, kListMargin, kListMargin);
    list->addWidget(bar_);
    list->addStretch();
    auto* columns = qobject_cast<QBoxLayout*>(layout());
    auto* beside = new QVBoxLayout;
    while (QLayoutItem* part = columns->takeAt(0)) {
        part->widget()->raise(); // after the list, for the reading order
        if (part->widget() != pages_)
            aboves_ << part->widget();
        beside->addItem(part);
    }
    beside->setStretchFactor(pages_, 1);
    columns->addLayout(list);
    columns->addLayout(beside, 1);
    button_ = window()->findChild<QPushButton*>(property("menuButton").toString());
    addSections();
    addShortcuts();
    setPageMargins(false); // for measure
    showCurrent();
}

/// The size of the largest page in that many columns, with the widget above it.
QSize SectionFrame::sizeIn(int columns) const {
    QSize size;
    for (int index = 0; index < pages_->count(); ++index) {
        const auto* cards = dynamic_cast<const CardColumns*>(page(index)->widget());
        if (!cards)
            continue;
        QSize needed = cards->sizeIn(columns);
        for (const QWidget* above : aboves_)
            if (above->objectName() == page(index)->property("above"))
                needed.rheight() += above->minimumSizeHint().height();
        size = size.expandedTo(needed);
    }
    return size + QSize(bar_->sizeHint().width() + 2 * kListMargin, 0);
}

void SectionFrame::measure() {
    const QSize room = screen()->availableSize() - QSize(kFrame, kFrame + kHeader);
    forgetSizes(*pages_);
    measured_ = sizeIn(1);
    if (measured_.height() > room.height())
        if (const QSize two = sizeIn(2); two.width() <= room.width())
            measured_ = two;
    updateGeometry();
}

QSize SectionFrame::sizeHint() const {
    return measured_.isValid() ? measured_ : QWidget::sizeHint();
}

QScrollArea* SectionFrame::page(int index) const {
    return qobject_cast<QScrollArea*>(pages_->widget(index));
}

void SectionFrame::addSections() {
    menu_ = new QMenu(this);
    for (int index = 0; index < pages_->count(); ++index) {
        const QWidget* page = pages_->widget(index);
        bar_->addSection(page->windowTitle(), page->accessibleDescription(),
                         page->property("icon").toString());
        QAction* action = menu_->addAction(page->windowTitle());
        action->setCheckable(true);
        connect(action, &QAction::triggered, this, [this, index] { choose(index); });
    }
    connect(bar_, &QTabBar::currentChanged, pages_, &QStackedWidget::setCurrentIndex);
    connect(pages_, &QStackedWidget::currentChanged, this, [this] { showCurrent(); });
    bar_->onLetter = [this] { enterPage(); };
    if (button_) {
        button_->setMenu(menu_);
        button_->hide();
    }
}

void SectionFrame::addShortcuts() {
    const auto add = [this](const QKeySequence& keys, auto go) {
        new QShortcut(keys, this, this, go, Qt::WindowShortcut);
    };
    const auto step = [this](int places) {
        const int count = pages_->count();
        choose((pages_->currentIndex() + places + count) % count);
    };
    for (const auto key : {Qt::Key_Tab, Qt::Key_PageDown})
        add(QKeySequence(Qt::CTRL | key), [step] { step(1); });
    for (const auto keys : {Qt::CTRL | Qt::SHIFT | Qt::Key_Backtab, Qt::CTRL | Qt::Key_PageUp})
        add(QKeySequence(keys), [step] { step(-1); });
    for (int index = 0; index < std::min(pages_->count(), kMostNumbered); ++index)
        add(QKeySequence(Qt::ALT | static_cast<Qt::Key>(Qt::Key_1 + index)),
            [this, index] { choose(index); });
}

/// Goes to a section. The focus goes along if it was in the previous one.
void SectionFrame::choose(int section) {
    const QWidget* focus = window()->focusWidget();
    const bool wasInside = !focus || (focus != bar_ && isAncestorOf(focus));
    pages_->setCurrentIndex(section);
    if (wasInside)
        enterPage();
}

void SectionFrame::enterPage() {
    QWidget* page = pages_->currentWidget();
    for (auto* each : page->findChildren<QWidget*>()) { // in the reading order
        if (each->isVisible() && each->isEnabled() && (each->focusPolicy() & Qt::TabFocus)) {
            each->setFocus(Qt::TabFocusReason);
            return;
        }
    }
}

void SectionFrame::showCurrent() {
    const int current = pages_->currentIndex();
    bar_->setCurrentIndex(current);
    placeAboves();
    for (int index = 0; index < menu_->actions().size(); ++index)
        menu_->actions().at(index)->setChecked(index == current);
    if (!button_)
        return;
    const QString title = withoutMnemonic(bar_->tabText(current));
    button_->setText(title);
    button_->setAccessibleName(
        QCoreApplication::translate("SectionFrame", "Section: %1").arg(title));
}

/// Shows the current page's widget above it: outside of what scrolls, or in a low window inside.
void SectionFrame::placeAboves() {
    auto* cards = dynamic_cast<CardColumns*>(page(pages_->currentIndex())->widget());
    for (QWidget* above : aboves_) {
        const bool isCurrent =
            above->objectName() == pages_->currentWidget()->property("above").toString();
        const bool scrolls = isLow_ && isCurrent && cards;
        if (auto* former = dynamic_cast<CardColumns*>(above->parentWidget());
            former && !(scrolls && former == cards))
            former->setAbove(nullptr);
        if (scrolls)
            cards->setAbove(above);
        else if (above->parentWidget() != this)
            static_cast<QBoxLayout*>(layout()->itemAt(1)->layout())->insertWidget(0, above);
        above->setVisible(isCurrent);
    }
}

void SectionFrame::fitWindow() {
    const int line = fontMetrics().height();
    const QSize size = window()->size();
    setLow(size.height() < kLow * line);
    setNarrow(button_ && (isLow_ || size.width() < kNarrow * line));
    if (button_)
        foldHeader();
}

/// Puts the parts of the header one above the other if they don't fit side by side in any section.
void SectionFrame::foldHeader() {
    const QString shown = button_->text();
    int widest = 0;
    for (int index = 0; isNarrow_ && index < bar_->count(); ++index) {
        button_->setText(withoutMnemonic(bar_->tabText(index)));
        widest = std::max(widest, button_->sizeHint().width());
    }
    button_->setText(shown);
    button_->setMinimumWidth(widest); // the others stay where they are
    QWidget* header = button_->parentWidget();
    auto* parts = qobject_cast<QBoxLayout*>(header->layout());
    parts->setStretch(0, isNarrow_ ? 0 : 1); // all grow
    parts->setDirection(QBoxLayout::LeftToRight);
    forgetSizes(*header);
    if (isNarrow_ && parts->minimumSize().width() > window()->width())
        parts->setDirection(QBoxLayout::TopToBottom);
}

void SectionFrame::setPageMargins(bool narrow) {
    const int aside = narrow ? kNarrowPageSide : kPageSide;
    const int above = narrow ? kNarrowPageSide : kPageAbove;
    QList<QWidget*> parts = aboves_;
    for (int index = 0; index < pages_->count(); ++index)
        parts << page(index)->widget();
    for (QWidget* part : parts)
        part->layout()->setContentsMargins(aside, above, aside, above);
}

void SectionFrame::setNarrow(bool narrow) {
    if (narrow == isNarrow_)
        return;
    isNarrow_ = narrow;
    const bool hadFocus = bar_->hasFocus() || (button_ && button_->hasFocus());
    bar_->setVisible(!narrow);
    if (button_)
        button_->setVisible(narrow);
    for (auto* widget : window()->findChildren<QWidget*>())
        if (widget->property("wideOnly").toBool())
            widget->setVisible(!narrow);
    if (hadFocus)
        narrow ? button_->setFocus() : bar_->setFocus();
    const int side = narrow ? 0 : kListMargin;
    layout()->itemAt(0)->layout()->setContentsMargins(side, side, side, side);
    if (button_)
        fitHeader();
    setPageMargins(narrow);
    update();
}

/// Makes the widgets beside the sections' button as small as the window needs.
void SectionFrame::fitHeader() {
    QWidget* header = button_->parentWidget();
    const QMargins margins = isNarrow_ ? kNarrowHeader : kWideHeader;
    header->layout()->setContentsMargins(margins);
    header->layout()->setSpacing(margins.top());
    for (auto* button : header->findChildren<QAbstractButton*>()) {
        button->setProperty("isTight", isNarrow_);
        const QVariant brief = button->property("shortText");
        if (!brief.isValid())
            continue;
        if (!button->property("longText").isValid())
            button->setProperty("longText", button->text());
        const QString full = button->property("longText").toString();
        if (button->accessibleName().isEmpty())
            button->setAccessibleName(withoutMnemonic(full));
        button->setProperty("isShort", isNarrow_);
        button->setText(isNarrow_ ? brief.toString() : full);
        button->setShortcut(QKeySequence::mnemonic(full));
    }
}

void SectionFrame::setLow(bool low) {
    if (low == isLow_)
        return;
    isLow_ = low;
    placeAboves();
}

void SectionFrame::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    fitWindow();
}

// The focus starts here, not in the widgets above.
void SectionFrame::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    fitWindow();
    if (!window()->focusWidget())
        isNarrow_ ? enterPage() : bar_->setFocus();
}

void SectionFrame::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        fitWindow();
}

void SectionFrame::paintEvent(QPaintEvent*) {
    if (isNarrow_)
        return;
    const PaneColors colors(palette());
    QPainter painter(this);
    const int edge = pages_->x();
    painter.fillRect(0, 0, edge, height(), colors.card);
    painter.setPen(colors.cardLine);
    painter.drawLine(edge - 1, 0, edge - 1, height());
}
