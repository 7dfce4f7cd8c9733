// SPDX-License-Identifier: MIT
#pragma once

#include "platform/AppKit/detail/RowText.h"

#include <QLayout>

/// The layout of a row: its text at the left and its controls at the right. Where the text would
/// get too little room, the controls stand below it. The button that puts the row back stands at
/// the right of the text, or of the controls when they are below.
class RowLayout final : public QLayout {
public:
    /// Owns `controls`. The row owns the labels and the button. `indent`: points between the row's
    /// left margin and its text.
    RowLayout(QWidget* row, const RowText& text, QLayout* controls, QWidget* putBack, int indent);
    ~RowLayout() override;

    void addItem(QLayoutItem* item) override;
    int count() const override;
    QLayoutItem* itemAt(int index) const override;
    QLayoutItem* takeAt(int index) override;
    QSize sizeHint() const override;
    QSize minimumSize() const override;
    bool hasHeightForWidth() const override;
    int heightForWidth(int width) const override;
    void setGeometry(const QRect& rect) override;
    Qt::Orientations expandingDirections() const override;

private:
    struct Places {
        QRect text, controls, putBack = {};
        int height; ///< of the row
    };

    Places places(const QRect& rect) const;
    Places placesBeneath(const QRect& room) const;
    static QRect takePlace(QRect& part);
    QMargins margins(int width) const;
    int textColumn() const;
    int textHeight(int width) const;

    int indent_;
    QList<QLayoutItem*> items_; ///< the button, the controls, the one or two labels
};
