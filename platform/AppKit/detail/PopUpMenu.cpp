// SPDX-License-Identifier: MIT
#include "platform/AppKit/detail/PopUpMenu.h"

#include "platform/AppKit/detail/ListAccessibility.h"
#include "platform/AppKit/detail/PaneStyle.h"

#include <QKeyEvent>
#include <QScreen>
#include <QStyle>

#include <algorithm>
#include <utility>

namespace {

constexpr int kMinimumIconSize = 16;
constexpr int kRoomAroundText = 6; // above and below it, together
constexpr int kRoomBesideText = 12;
constexpr int kMargin = 4; // around all entries

int dividedUp(int amount, int by) {
    return (amount + by - 1) / by;
}

/// As large as an entry's picture, so that titles without pictures are aligned.
QIcon blankIcon(QSize size) {
    QPixmap blank(size);
    blank.fill(Qt::transparent);
    return blank;
}

QAccessibleInterface* makeInterface(const QString&, QObject* object) {
    auto* menu = dynamic_cast<PopUpMenu*>(object);
    return menu ? new ListInterface(*menu, *menu) : nullptr;
}

} // namespace

PopUpMenu::PopUpMenu(QWidget* button) : QListWidget(button) {
    [[maybe_unused]] static const bool installed = [] {
        QAccessible::installFactory(makeInterface);
        return true;
    }();
    setWindowFlags(Qt::Popup | Qt::FramelessWindowHint);
    setAttribute(Qt::WA_WindowPropagation);
    // The click that closes the menu does nothing else.
    setAttribute(Qt::WA_NoMouseReplay);
    setFlow(TopToBottom);
    setWrapping(true);
    setMovement(Static);
    setResizeMode(Adjust);
    setEditTriggers(NoEditTriggers);
    setTextElideMode(Qt::ElideMiddle);
    setMouseTracking(true);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setBackgroundRole(QPalette::Base);
    setAutoFillBackground(true);
    setViewportMargins(kMargin, kMargin, kMargin, kMargin);
}

void PopUpMenu::open(const std::vector<PopUpEntry>& entries, std::optional<QPoint> pressedAt) {
    fill(entries);
    placeAtButton();
    pressedAt_ = pressedAt;
    isPressed_ = false;
    setCurrentIndex({});
    setFocus(Qt::PopupFocusReason);
    show();
    // Now that the menu has the focus, a screen reader says where it is.
    if (!pressedAt)
        go({0, 1});
}

void PopUpMenu::fill(const std::vector<PopUpEntry>& entries) {
    clear();
    entryHeight_ = std::max(panestyle::kTarget, fontMetrics().height() + kRoomAroundText);
    const int widest = parentWidget()->screen()->availableSize().width() - aroundEntries();
    const int iconWidth = std::max(kMinimumIconSize, fontMetrics().height());
    setIconSize({iconWidth, iconWidth});
    const bool hasIcons = std::any_of(entries.begin(), entries.end(),
                                      [](const PopUpEntry& entry) { return !entry.icon.isNull(); });
    const QIcon noIcon = hasIcons ? blankIcon(iconSize()) : QIcon();
    for (const PopUpEntry& entry : entries) {
        auto* item =
            new QListWidgetItem(entry.icon.isNull() ? noIcon : entry.icon, entry.title, this);
        item->setFlags(entry.enabled ? Qt::ItemIsEnabled | Qt::ItemIsSelectable : Qt::NoItemFlags);
        const int width = sizeHintForIndex(indexFromItem(item)).width() + kRoomBesideText;
        item->setSizeHint({std::clamp(width, panestyle::kTarget, widest), entryHeight_});
    }
}

int PopUpMenu::aroundEntries() const {
    return 2 * (kMargin + frameWidth());
}

int PopUpMenu::heightOf(int rows) const {
    // One more than the rows: a list begins a new column when one fills the height exactly.
    return rows * entryHeight_ + 1 + aroundEntries();
}

PopUpMenu::Grid PopUpMenu::gridIn(int height) const {
    const int fitting = std::max(1, (height - heightOf(0)) / entryHeight_);
    const int columns = dividedUp(count(), fitting);
    Grid grid{dividedUp(count(), columns), aroundEntries()};
    for (int first = 0; first < count(); first += grid.rows) {
        int widest = 0;
        for (int row = first; row < std::min(first + grid.rows, count()); ++row)
            widest = std::max(widest, item(row)->sizeHint().width());
        grid.width += widest;
    }
    return grid;
}

// Below the button, or above it if that takes fewer columns. Over the button only if both are too
// small.
void PopUpMenu::placeAtButton() {
    const QWidget* button = parentWidget();
    const QRect room = button->screen()->availableGeometry();
    const QRect opener(button->mapToGlobal(QPoint(0, 0)), button->size());
    const Grid below = gridIn(room.bottom() - opener.bottom());
    const Grid above = gridIn(opener.top() - room.top());
    const bool isAbove = above.width < below.width;
    Grid grid = isAbove ? above : below;
    int roomForBar = 0;
    if (grid.width > room.width())
        grid = gridIn(room.height());
    const bool scrolls = grid.width > room.width();
    if (scrolls) {
        roomForBar = style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, this);
        grid = gridIn(room.height() - roomForBar);
    }
    setHorizontalScrollBarPolicy(scrolls ? Qt::ScrollBarAlwaysOn : Qt::ScrollBarAlwaysOff);

    const QSize size(std::min(grid.width, room.width()), heightOf(grid.rows) + roomForBar);
    const int top = isAbove ? opener.top() - size.height() : opener.bottom() + 1;
    const auto within = [](int place, int low, int high) {
        return std::max(low, std::min(place, high));
    };
    const int left = isRightToLeft() ? opener.right() + 1 - size.width() : opener.left();
    setGeometry({{within(left, room.left(), room.right() + 1 - size.width()),
                  within(top, room.top(), room.bottom() + 1 - size.height())},
                 size});
    rows_ = grid.rows;
}

bool PopUpMenu::event(QEvent* event) {
    // The viewport handles what happens inside.
    if (event->type() == QEvent::MouseButtonPress &&
        !rect().contains(static_cast<QMouseEvent*>(event)->position().toPoint())) {
        close();
        return true;
    }
    return QListWidget::event(event);
}

void PopUpMenu::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_Escape:
        close();
        return;
    case Qt::Key_Space:
    case Qt::Key_Return:
    case Qt::Key_Enter:
        // The key that opened the menu may still be down.
        if (!event->isAutoRepeat())
            choose(currentRow());
        return;
    default:
        break;
    }
    if (const auto move = moveOf(event->key()))
        go(*move);
    else
        QListWidget::keyPressEvent(event); // goes to the entry that begins with what is typed
}

std::optional<PopUpMenu::Move> PopUpMenu::moveOf(int key) const {
    const int last = count() - 1;
    const int current = currentRow();
    const int nextColumn = current + rows_;
    if (isRightToLeft() && (key == Qt::Key_Left || key == Qt::Key_Right))
        key = key == Qt::Key_Left ? Qt::Key_Right : Qt::Key_Left;
    switch (key) {
    case Qt::Key_Home:
        return Move{0, 1};
    case Qt::Key_End:
        return Move{last, -1};
    case Qt::Key_Down:
        return Move{current + 1, 1};
    case Qt::Key_Up:
        return Move{current < 0 ? last : current - 1, -1};
    case Qt::Key_PageDown:
        return Move{std::min(nextColumn, last), -1};
    case Qt::Key_PageUp:
        return Move{std::max(current - rows_, 0), 1};
    case Qt::Key_Left:
        return Move{current < rows_ ? std::max(current, 0) : current - rows_, -1};
    case Qt::Key_Right:
        return Move{last / rows_ > current / rows_ ? std::min(nextColumn, last) : current, 1};
    default:
        return std::nullopt;
    }
}

void PopUpMenu::go(Move move) {
    int row = move.row;
    while (row >= 0 && row < count() && !canChoose(row))
        row += move.onward;
    if (row >= 0 && row < count())
        setCurrentRow(row);
}

void PopUpMenu::mousePressEvent(QMouseEvent* event) {
    isPressed_ = true;
    mouseMoveEvent(event);
}

void PopUpMenu::mouseMoveEvent(QMouseEvent* event) {
    setCurrentIndex(indexAt(event->position().toPoint()));
}

// The release of the click on the button leaves the menu open, even if the hand trembled. Only a
// real drag chooses.
void PopUpMenu::mouseReleaseEvent(QMouseEvent* event) {
    const QPoint place = event->globalPosition().toPoint();
    const bool isDragged = pressedAt_ && (place - *pressedAt_).manhattanLength() >= entryHeight_;
    if (isPressed_ || isDragged)
        choose(indexAt(event->position().toPoint()).row());
}

bool PopUpMenu::canChoose(int row) const {
    return item(row) && (item(row)->flags() & Qt::ItemIsEnabled);
}

void PopUpMenu::choose(int row) {
    if (!canChoose(row))
        return;
    const QString title = item(row)->text();
    close();
    onChosen(title);
}

NSAccessibilityElement PopUpMenu::accessibilityElement(int index) const {
    const QRect place = visualItemRect(item(index)).translated(viewport()->pos());
    return {item(index)->text().toStdString(),
            {static_cast<float>(place.x()), static_cast<float>(place.y()),
             static_cast<float>(place.width()), static_cast<float>(place.height())},
            index == currentRow(),
            canChoose(index)};
}

void PopUpMenu::hideEvent(QHideEvent* event) {
    QListWidget::hideEvent(event);
    onClosed();
}
