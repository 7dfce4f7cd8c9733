// SPDX-License-Identifier: MIT
#include "platform/AppKit/detail/PopUpButtonWidget.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QKeyEvent>
#include <QRegularExpression>
#include <QStyleOptionButton>
#include <QStylePainter>

namespace {

constexpr int kMinimumHeight = 24; // points that a finger or a trembling hand needs
constexpr int kLeastCaption = 72;  // points of width, to which a longer caption is shortened
constexpr int kTextFlags = Qt::TextShowMnemonic;

} // namespace

/// Describes the menu to assistive technology. Qt's interface for buttons doesn't know it.
class PopUpButtonInterface final : public QAccessibleWidget {
public:
    explicit PopUpButtonInterface(PopUpButtonWidget* button)
        : QAccessibleWidget(button, QAccessible::ButtonMenu), button_(button) {}

    static QAccessibleInterface* make(const QString&, QObject* object) {
        auto* button = dynamic_cast<PopUpButtonWidget*>(object);
        return button ? new PopUpButtonInterface(button) : nullptr;
    }

    QString text(QAccessible::Text kind) const override {
        const QString own = QAccessibleWidget::text(kind);
        if (kind != QAccessible::Name || !own.isEmpty())
            return own;
        static const QRegularExpression kMnemonic(QStringLiteral("&(.)"));
        return button_->text().replace(kMnemonic, QStringLiteral("\\1"));
    }

    QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        state.hasPopup = true;
        state.expandable = true;
        state.expanded = button_->isMenuOpen();
        state.collapsed = !state.expanded;
        return state;
    }

    // The menu belongs to its button, like a combo box's list.
    int childCount() const override { return 1; }

    QAccessibleInterface* child(int index) const override {
        return index == 0 ? QAccessible::queryAccessibleInterface(&button_->menu_) : nullptr;
    }

    int indexOfChild(const QAccessibleInterface* child) const override {
        return child && child->object() == &button_->menu_ ? 0 : -1;
    }

    QStringList actionNames() const override {
        QStringList names = QAccessibleWidget::actionNames();
        if (button_->isEnabled())
            names.prepend(pressAction());
        return names;
    }

    void doAction(const QString& name) override {
        if (name == pressAction())
            button_->openMenu();
        else
            QAccessibleWidget::doAction(name);
    }

private:
    PopUpButtonWidget* button_;
};

PopUpButtonWidget::PopUpButtonWidget(QWidget* parent)
    : QPushButton(parent), menu_(*new PopUpMenu(this)) {
    [[maybe_unused]] static const bool installed = [] {
        QAccessible::installFactory(PopUpButtonInterface::make);
        return true;
    }();
    setMinimumHeight(kMinimumHeight);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    menu_.onChosen = [this](const QString& title) { onChosen(title); };
    menu_.onClosed = [this] { showIsOpen(false); };
    // By the caption's mnemonic.
    connect(this, &QPushButton::clicked, this, [this] { openMenu(); });
}

void PopUpButtonWidget::openMenu(std::optional<QPoint> pressedAt) {
    if (!isEnabled() || !isVisible() || isMenuOpen())
        return;
    const std::vector<PopUpEntry> shown = entries();
    if (shown.empty() || !isEnabled())
        return;
    setFocus(Qt::OtherFocusReason);
    menu_.setAccessibleName(QAccessible::queryAccessibleInterface(this)->text(QAccessible::Name));
    menu_.open(shown, pressedAt);
    showIsOpen(true);
}

void PopUpButtonWidget::showIsOpen(bool isOpen) {
    setDown(isOpen);
    QAccessible::State changed;
    changed.expanded = true;
    changed.collapsed = true;
    QAccessibleStateChangeEvent event(this, changed);
    QAccessible::updateAccessibility(&event);
}

void PopUpButtonWidget::initStyleOption(QStyleOptionButton* option) const {
    QPushButton::initStyleOption(option);
    option->features |= QStyleOptionButton::HasMenu;
}

void PopUpButtonWidget::paintEvent(QPaintEvent*) {
    QStylePainter painter(this);
    QStyleOptionButton option;
    initStyleOption(&option);
    const int room = width() - widthOf(QString());
    option.text = fontMetrics().elidedText(text(), Qt::ElideMiddle, room, kTextFlags);
    painter.drawControl(QStyle::CE_PushButton, option);
}

QSize PopUpButtonWidget::sizeHint() const {
    QStyleOptionButton option;
    initStyleOption(&option);
    const int arrow = style()->pixelMetric(QStyle::PM_MenuButtonIndicator, &option, this);
    return QPushButton::sizeHint() + QSize(arrow, 0);
}

int PopUpButtonWidget::widthOf(const QString& caption) const {
    const QFontMetrics metrics = fontMetrics();
    return sizeHint().width() - metrics.size(kTextFlags, text()).width() +
           metrics.size(kTextFlags, caption).width();
}

QSize PopUpButtonWidget::minimumSizeHint() const {
    const int least = std::max(kLeastCaption, widthOf(property("leastText").toString()));
    return sizeHint().boundedTo({least, QWIDGETSIZE_MAX});
}

void PopUpButtonWidget::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton)
        openMenu(event->globalPosition().toPoint());
}

void PopUpButtonWidget::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_Space:
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Down:
        // The key that closed the menu may still be down.
        if (!event->isAutoRepeat())
            openMenu();
        return;
    default:
        QPushButton::keyPressEvent(event);
    }
}

void PopUpButtonWidget::changeEvent(QEvent* event) {
    QPushButton::changeEvent(event);
    if (event->type() == QEvent::EnabledChange && !isEnabled())
        menu_.close();
}

void PopUpButtonWidget::hideEvent(QHideEvent* event) {
    QPushButton::hideEvent(event);
    menu_.close();
}
