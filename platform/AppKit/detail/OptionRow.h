// SPDX-License-Identifier: MIT
#pragma once

#include "platform/AppKit/detail/FormPart.h"
#include "platform/AppKit/detail/PutBackButton.h"
#include "platform/AppKit/detail/RowText.h"

#include <QCheckBox>
#include <QRadioButton>
#include <QStyle>
#include <QStyleOptionButton>

/// The parts of a button that is a whole row: their places and their drawing.
class OptionLook {
public:
    /// `indicatorAtRight`: true for check boxes. A radio button has its indicator before the text.
    OptionLook(const QAbstractButton& button, bool indicatorAtRight)
        : button_(button), room_(PutBackButton::of(button) ? PutBackButton::kRoom : 0),
          indicatorAtRight_(indicatorAtRight) {}

    int widthHint() const;
    int heightForWidth(int width) const;
    /// The place of the button that puts the row back.
    QRect putBackRect(const QRect& rect) const;
    void draw(QWidget& row, QStyle::PrimitiveElement indicator, const QStyleOption& option) const;

private:
    QString explanation() const { return button_.accessibleDescription(); }

    QSize textSize(int width) const;
    QRect textRect(const QRect& rect) const;
    QRect mirrored(const QRect& rect, const QRect& part) const;
    QRect indicatorRect(const QRect& rect) const;

    const QAbstractButton& button_;
    int room_; ///< points for the button that puts the row back
    bool indicatorAtRight_;
};

/// A check box or radio button that is a whole row. Its accessible description is shown beneath its
/// text. A click anywhere in the row clicks it. It has a button that puts it back, unless it is
/// inside another row. Property `indented`: see NumberRow.
template <class Button>
class OptionRow final : public Button, public FormPart, public FormRow {
public:
    explicit OptionRow(QWidget* parent) : Button(parent) {
        QSizePolicy policy(QSizePolicy::Expanding, QSizePolicy::Minimum);
        policy.setHeightForWidth(true);
        this->setSizePolicy(policy);
    }

    void build() override {
        isBuilt_ = true;
        if (!isInRow(*this))
            putBack_ = new PutBackButton(this);
    }

    QSize sizeHint() const override {
        return {isInRow(*this) ? look().widthHint() : panestyle::kTarget, panestyle::kTarget};
    }

    QSize minimumSizeHint() const override { return sizeHint(); }

    int heightForWidth(int width) const override {
        return isBuilt_ ? look().heightForWidth(width) : panestyle::kTarget;
    }

protected:
    bool hitButton(const QPoint& place) const override { return this->rect().contains(place); }

    void resizeEvent(QResizeEvent* event) override {
        Button::resizeEvent(event);
        if (putBack_)
            putBack_->setGeometry(look().putBackRect(this->rect()));
    }

    void paintEvent(QPaintEvent*) override {
        QStyleOptionButton option;
        this->initStyleOption(&option);
        look().draw(*this,
                    kIsCheck ? QStyle::PE_IndicatorCheckBox : QStyle::PE_IndicatorRadioButton,
                    option);
    }

private:
    static constexpr bool kIsCheck = std::is_same_v<Button, QCheckBox>;

    OptionLook look() const { return OptionLook(*this, kIsCheck); }

    PutBackButton* putBack_ = nullptr; ///< null for none
    bool isBuilt_ = false;             ///< or the form is being read, and nothing need be measured
};

using CheckRow = OptionRow<QCheckBox>;
using RadioRow = OptionRow<QRadioButton>;
