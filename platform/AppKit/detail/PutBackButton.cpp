// SPDX-License-Identifier: MIT
#include "platform/AppKit/detail/PutBackButton.h"

#include "platform/AppKit/detail/PaneColors.h"

#include <QApplication>
#include <QEvent>
#include <QPainter>
#include <QPainterPath>

namespace {

constexpr QRect kBar(2, 7, 4, 0); // points from the row's left edge and from its top and bottom
constexpr qreal kArrow = 20;      // the side of the square around it
constexpr qreal kPen = 2.4;

class Bar final : public QWidget {
public:
    explicit Bar(QWidget* row) : QWidget(row) { setAttribute(Qt::WA_TransparentForMouseEvents); }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        const QColor accent = PaneColors(palette()).accent;
        panestyle::drawBox(painter, QRectF(rect()), accent, accent, 1, width() / 2.0);
    }
};

/// An arrow that turns back, in a square of 24 by 24.
QPainterPath backArrow() {
    const QRectF circle(3, 3, 18, 18);
    QPainterPath path;
    path.arcMoveTo(circle, 200);
    path.arcTo(circle, 200, 295);
    path.lineTo(1, 10);
    path.moveTo(1, 3.5);
    path.lineTo(1, 10);
    path.lineTo(7.5, 10);
    return path;
}

} // namespace

PutBackButton::PutBackButton(QWidget* row) : QToolButton(row), bar_(new Bar(row)) {
    setObjectName(row->objectName() + QStringLiteral("PutBack"));
    bar_->setObjectName(objectName() + QStringLiteral("Bar"));
    setFocusPolicy(Qt::TabFocus);
    QSizePolicy policy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    policy.setRetainSizeWhenHidden(true);
    setSizePolicy(policy);
    row->installEventFilter(this);
    hide();
    bar_->hide();
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) {
        if (focusPolicy() == Qt::NoFocus && now && !isKeyboardInRow(now))
            becomeStop();
    });
    connect(this, &QToolButton::clicked, this, [this] {
        if (const auto press = press_) // a copy: what it does replaces it
            press();
    });
}

PutBackButton* PutBackButton::of(const QWidget& row) {
    for (QObject* child : row.children())
        if (auto* button = dynamic_cast<PutBackButton*>(child))
            return button;
    return nullptr;
}

void PutBackButton::offer(const QString& label, std::function<void()> press) {
    const bool offered = !label.isEmpty();
    press_ = offered ? std::move(press) : nullptr;
    const QString name =
        offered ? label : QCoreApplication::translate("PutBackButton", "Reset to its default");
    if (accessibleName() == name)
        return; // assistive technology hears of no news, and nothing is drawn anew
    setAccessibleName(name);
    setToolTip(label);
    bar_->setVisible(offered);
    if (offered && !isVisible() && isKeyboardInRow(window()->focusWidget()))
        setFocusPolicy(Qt::NoFocus);
    offered ? show() : hideWhenLeft();
    update();
}

void PutBackButton::becomeStop() {
    setFocusPolicy(Qt::TabFocus);
}

bool PutBackButton::isKeyboardInRow(const QWidget* focus) const {
    return focus && (focus == parentWidget() || parentWidget()->isAncestorOf(focus));
}

void PutBackButton::hideWhenLeft() {
    // In an inactive window, the focus widget gets the focus back later.
    if (!press_ && !underMouse() && window()->focusWidget() != this) {
        hide();
        becomeStop();
    }
}

bool PutBackButton::eventFilter(QObject* row, QEvent* event) {
    if (event->type() == QEvent::Resize)
        bar_->setGeometry(kBar.x(), kBar.y(), kBar.width(),
                          static_cast<QWidget*>(row)->height() - 2 * kBar.y());
    return false;
}

void PutBackButton::focusOutEvent(QFocusEvent* event) {
    QToolButton::focusOutEvent(event);
    hideWhenLeft();
}

void PutBackButton::leaveEvent(QEvent* event) {
    QToolButton::leaveEvent(event);
    hideWhenLeft();
}

void PutBackButton::paintEvent(QPaintEvent* event) {
    if (press_ || hasFocus())
        QToolButton::paintEvent(event);
    const PaneColors colors(palette());
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate((width() - kArrow) / 2.0, (height() - kArrow) / 2.0);
    painter.scale(kArrow / 24, kArrow / 24);
    painter.setPen(QPen(press_ ? colors.text : colors.disabledText, kPen * 24 / kArrow,
                        Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPath(backArrow());
}
