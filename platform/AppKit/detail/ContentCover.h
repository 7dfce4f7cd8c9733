// SPDX-License-Identifier: MIT
#pragma once

#include <QPointer>
#include <QWidget>

#include <vector>

/// Another content that covers a window. While it exists the window's own content is hidden, also
/// from keyboard and screen readers.
class ContentCover final : public QWidget {
public:
    /// The window's cover, or null.
    static ContentCover* of(QWidget* window);

    /// Takes the content. At its end the content is hidden and has no parent.
    ContentCover(QWidget* window, QWidget* content);
    ~ContentCover() override;

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QPointer<QWidget> content_;
    QPointer<QWidget> formerFocus_;
    std::vector<QPointer<QWidget>> hidden_;
};
