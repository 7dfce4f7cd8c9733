// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QDialog>

#include <functional>

class QGridLayout;

/// Forty-five colours to choose from, each a button as large as any, and a way to the desktop's
/// chooser for all others. A colour that is tried shows at once. Keeping it accepts the dialogue;
/// a rejected one has tried the first colour again.
class ColorPage final : public QDialog {
public:
    /// `tried` gets each colour; `shown` is the one of now.
    ColorPage(const QColor& shown, std::function<void(const QColor&)> tried, QWidget* parent);

    void reject() override;

private:
    void addColors(QGridLayout& grid);
    void addButtons();
    void tryColor(const QColor& color);
    void openChooser();

    QColor first_, now_;
    std::function<void(const QColor&)> tried_;
};
