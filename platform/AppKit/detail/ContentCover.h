// SPDX-License-Identifier: MIT
#pragma once

#include <QPointer>
#include <QWidget>

#include <vector>

/// Names the part of a window that a cover covers. Without one it covers the whole window.
constexpr auto kCoveredPart = QLatin1String("content");

/// Another content that covers a window's. While it exists the window's own content is hidden, also
/// from keyboard and screen readers.
class ContentCover final : public QWidget {
public:
    /// The window's cover, or null.
    static ContentCover* of(QWidget* window);

    /// Takes the content. At its end the content is hidden and has no parent, unless windows are
    /// left as they are.
    ContentCover(QWidget* window, QWidget* content);
    ~ContentCover() override;

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QPointer<QWidget> content_;
    QPointer<QWidget> formerFocus_;
    std::vector<QPointer<QWidget>> hidden_;
};
