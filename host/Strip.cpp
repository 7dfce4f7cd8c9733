// SPDX-License-Identifier: MIT
#include "host/Strip.h"

#include "platform/AppKit/UserMessages.h"
#include "platform/AppKit/detail/Announcement.h"
#include "platform/AppKit/detail/ShownText.h"

#include <QAccessibleWidget>
#include <QApplication>
#include <QBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QShortcut>

namespace {

constexpr int kButtonSide = 44;
constexpr int kMargin = 12;
constexpr int kEdge = 3;      // points, as all here
constexpr int kReadable = 30; // heights of a line, the least width of a text beside buttons

// An alert's: dark on light with a contrast of 14 : 1, whatever the desktop's colours are.
constexpr QColor kBackground(0xFF, 0xF1, 0xC2);
constexpr QColor kForeground(0x2B, 0x1D, 0x00);
constexpr QColor kEdgeColor(0x8A, 0x4B, 0x00);

QAccessibleInterface* makeInterface(const QString&, QObject* object) {
    auto* strip = dynamic_cast<Strip*>(object);
    return strip ? new QAccessibleWidget(strip, QAccessible::AlertMessage) : nullptr;
}

} // namespace

Strip::Strip(QWidget* parent)
    : QFrame(parent), text_(new QLabel(this)), edge_(new QWidget(this)),
      room_(new QScrollArea(this)), buttonRow_(new QWidget(this)),
      buttons_(new QBoxLayout(QBoxLayout::LeftToRight, buttonRow_)),
      content_(new QBoxLayout(QBoxLayout::LeftToRight)) {
    [[maybe_unused]] static const bool isKnown = [] {
        QAccessible::installFactory(makeInterface);
        return true;
    }();
    setAutoFillBackground(true);
    text_->setWordWrap(true);
    text_->setTextFormat(Qt::PlainText);
    text_->setAutoFillBackground(false);
    room_->setWidget(text_);
    room_->setWidgetResizable(true);
    room_->setFrameShape(QFrame::NoFrame);
    room_->viewport()->setAutoFillBackground(false);
    buttons_->setContentsMargins(0, 0, 0, 0);
    edge_->setFixedHeight(kEdge);
    edge_->setAutoFillBackground(true);
    content_->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    content_->setSpacing(kMargin);
    content_->addWidget(room_, 1);
    content_->addWidget(buttonRow_);
    auto* all = new QVBoxLayout(this);
    all->setContentsMargins(0, 0, 0, 0);
    all->setSpacing(0);
    all->addWidget(edge_);
    all->addLayout(content_);
    connect(qApp, &QApplication::focusChanged, this, &Strip::followFocus);
    new QShortcut(QKeySequence(Qt::Key_F6), this, this, &Strip::goThereOrBack);
    setMessageListener([this] { showCurrent(); });
    showCurrent();
}

Strip::~Strip() {
    setMessageListener({});
}

void Strip::showCurrent() {
    if (hasKeyboard()) // a button that goes would pass it on to any other
        giveKeyboardBack();
    // Later: the press of one of them may be under way.
    for (auto* button : buttonRow_->findChildren<QPushButton*>()) {
        buttons_->removeWidget(button);
        button->hide();
        button->deleteLater();
    }
    const CurrentMessage* current = currentMessage();
    const QString text =
        current ? keptInDirection(QString::fromStdString(current->message.text)) : QString();
    const bool isNew = text_->text() != text;
    text_->setText(text);
    setVisible(current != nullptr);
    if (!current)
        return;
    setColors(current->message.kind == UserMessage::Kind::Alert);
    setAccessibleName(text);
    const auto withdrawn = [topic = current->topic](std::function<void()> press) {
        return [topic, press = std::move(press)] {
            withdrawMessage(std::string(topic)); // deletes the button and this function, but later
            if (press)
                press();
        };
    };
    for (const auto& button : current->message.buttons)
        addButton(QString::fromStdString(button.label), withdrawn(button.press));
    addButton(QCoreApplication::translate("Strip", "Hide this"), withdrawn({}));
    arrangeButtons();
    if (!isNew)
        return;
    QAccessibleEvent alert(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
    announce(text);
}

void Strip::followFocus(QWidget* before, QWidget* now) {
    if (now && isAncestorOf(now) && before && !isAncestorOf(before))
        former_ = before;
}

bool Strip::hasKeyboard() const {
    const QWidget* focus = window()->focusWidget();
    return focus && isAncestorOf(focus);
}

void Strip::goThereOrBack() {
    if (hasKeyboard())
        return giveKeyboardBack();
    for (auto* button : buttonRow_->findChildren<QPushButton*>())
        if (buttons_->indexOf(button) == 0)
            button->setFocus(Qt::ShortcutFocusReason);
}

void Strip::giveKeyboardBack() {
    if (former_ && former_->isVisible() && former_->isEnabled())
        former_->setFocus(Qt::OtherFocusReason);
}

void Strip::setColors(bool isAlert) {
    QPalette colors;
    if (isAlert) {
        colors.setColor(QPalette::Window, kBackground);
        colors.setColor(QPalette::WindowText, kForeground);
    }
    setPalette(colors);
    setBackgroundRole(isAlert ? QPalette::Window : QPalette::Base);
    edge_->setPalette(isAlert ? QPalette(kEdgeColor) : QPalette());
    edge_->setBackgroundRole(isAlert ? QPalette::Window : QPalette::Highlight);
}

void Strip::addButton(const QString& label, std::function<void()> press) {
    auto* button = new QPushButton(label, buttonRow_);
    button->setMinimumSize(std::max(kButtonSide, button->sizeHint().width() + kMargin),
                           kButtonSide);
    button->setAutoDefault(false);
    connect(button, &QPushButton::clicked, this, std::move(press));
    buttons_->addWidget(button);
}

void Strip::resizeEvent(QResizeEvent* event) {
    QFrame::resizeEvent(event);
    arrangeButtons();
}

/// Beside the text, beneath it, or there one above the other, as the room allows.
void Strip::arrangeButtons() {
    int needed = 0;
    for (const auto* button : buttonRow_->findChildren<QPushButton*>())
        if (buttons_->indexOf(button) >= 0)
            needed += button->minimumWidth() + buttons_->spacing();
    const int room = width() - 2 * kMargin;
    const bool isNarrow = needed > room;
    buttons_->setDirection(isNarrow ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
    buttons_->setAlignment(isNarrow ? Qt::Alignment() : Qt::AlignLeft);
    const bool isBeside = needed + kReadable * fontMetrics().height() <= room;
    content_->setDirection(isBeside ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
    makeRoomForText(isBeside ? room - needed : room);
}

/// A long list of changes is scrolled, by keys too.
void Strip::makeRoomForText(int textWidth) {
    const int needed = text_->heightForWidth(textWidth);
    const int most = window()->height() * 2 / 5;
    room_->setFixedHeight(std::min(needed, most));
    room_->setFocusPolicy(needed > most ? Qt::StrongFocus : Qt::NoFocus);
}
