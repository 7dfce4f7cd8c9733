// SPDX-License-Identifier: MIT
#pragma once

#include <QPointer>
#include <QWidget>

#include <vector>

/// Another content in a window: it takes all of its room, and what was there is hidden, from the
/// keyboard and from screen readers as well, until this goes.
class ContentCover final : public QWidget {
public:
    /// The window's, or null.
    static ContentCover* of(QWidget* window);

    /// Takes the content, and leaves it hidden and without a parent in the end.
    ContentCover(QWidget* window, QWidget* content);
    ~ContentCover() override;

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QPointer<QWidget> content_;
    QPointer<QWidget> formerFocus_;
    std::vector<QPointer<QWidget>> hidden_;
};
