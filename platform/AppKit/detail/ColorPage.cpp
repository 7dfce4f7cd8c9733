// SPDX-License-Identifier: MIT
#include "platform/AppKit/detail/ColorPage.h"

#include "platform/AppKit/detail/ColorWellButton.h"
#include "platform/AppKit/detail/PaneStyle.h"

#include <QButtonGroup>
#include <QColorDialog>
#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

namespace {

/// A text of the tables below, in the user's language.
QString translated(const char* text) {
    return QCoreApplication::translate("ColorPage", text);
}

struct Hue {
    const char* name;
    int degrees;
};

constexpr Hue kHues[] = {
    {QT_TRANSLATE_NOOP("ColorPage", "Red"), 0},
    {QT_TRANSLATE_NOOP("ColorPage", "Orange"), 30},
    {QT_TRANSLATE_NOOP("ColorPage", "Yellow"), 60},
    {QT_TRANSLATE_NOOP("ColorPage", "Green"), 120},
    {QT_TRANSLATE_NOOP("ColorPage", "Turquoise"), 180},
    {QT_TRANSLATE_NOOP("ColorPage", "Blue"), 240},
    {QT_TRANSLATE_NOOP("ColorPage", "Violet"), 280},
    {QT_TRANSLATE_NOOP("ColorPage", "Pink"), 320},
};

constexpr int kColumns = std::size(kHues) + 1; ///< a grey is the last
constexpr int kGap = 4;                        ///< points between two colours

/// A row of the page: how light its colours are, of 255, and the grey at its end.
struct Tone {
    const char* name; ///< %1 is the hue's
    int lightness;
    const char* grey;
    int greyLightness;
};

constexpr Tone kTones[] = {
    {QT_TRANSLATE_NOOP("ColorPage", "%1, very light"), 217, QT_TRANSLATE_NOOP("ColorPage", "White"),
     255},
    {QT_TRANSLATE_NOOP("ColorPage", "%1, light"), 178, QT_TRANSLATE_NOOP("ColorPage", "Light grey"),
     192},
    {QT_TRANSLATE_NOOP("ColorPage", "%1"), 128, QT_TRANSLATE_NOOP("ColorPage", "Grey"), 128},
    {QT_TRANSLATE_NOOP("ColorPage", "%1, dark"), 84, QT_TRANSLATE_NOOP("ColorPage", "Dark grey"),
     64},
    {QT_TRANSLATE_NOOP("ColorPage", "%1, very dark"), 46, QT_TRANSLATE_NOOP("ColorPage", "Black"),
     0},
};

} // namespace

ColorPage::ColorPage(const QColor& shown, std::function<void(const QColor&)> tried, QWidget* parent)
    : QDialog(parent), first_(shown), now_(shown), tried_(std::move(tried)) {
    setWindowTitle(QCoreApplication::translate("ColorPage", "Choose a colour"));
    auto* column = new QVBoxLayout(this);
    auto* grid = new QGridLayout;
    addColors(*grid);
    column->addWidget(new QLabel(
        QCoreApplication::translate("ColorPage", "A colour that you press shows at once.")));
    column->addLayout(grid);
    addButtons();
}

void ColorPage::addColors(QGridLayout& grid) {
    grid.setSpacing(kGap);
    auto* group = new QButtonGroup(this);
    const auto add = [&](const QString& name, const QColor& color) {
        auto* button = new ColorWellButton(this);
        button->setAccessibleName(name);
        button->setToolTip(name);
        button->setCheckable(true);
        button->setAutoDefault(false);
        button->setColor(color);
        button->setMinimumSize(panestyle::kTarget, panestyle::kTarget);
        button->setChecked(color == first_);
        connect(button, &QPushButton::clicked, this, [this, color] { tryColor(color); });
        group->addButton(button);
        const int place = grid.count();
        grid.addWidget(button, place / kColumns, place % kColumns);
    };
    for (const Tone& tone : kTones) {
        for (const Hue& hue : kHues)
            add(translated(tone.name).arg(translated(hue.name)),
                QColor::fromHsl(hue.degrees, 255, tone.lightness).toRgb());
        add(translated(tone.grey), QColor::fromHsl(0, 0, tone.greyLightness).toRgb());
    }
    QAbstractButton* chosen = group->checkedButton();
    (chosen ? chosen : group->buttons().front())->setFocus();
}

void ColorPage::addButtons() {
    auto* buttons = new QDialogButtonBox(this);
    auto* keep = buttons->addButton(QCoreApplication::translate("ColorPage", "&Use this colour"),
                                    QDialogButtonBox::AcceptRole);
    keep->setDefault(true);
    auto* more = buttons->addButton(QCoreApplication::translate("ColorPage", "&More colours…"),
                                    QDialogButtonBox::ActionRole);
    buttons->addButton(QCoreApplication::translate("ColorPage", "&Cancel"),
                       QDialogButtonBox::RejectRole);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(more, &QPushButton::clicked, this, [this] { openChooser(); });
    layout()->addWidget(buttons);
}

void ColorPage::tryColor(const QColor& color) {
    if (color == now_)
        return;
    now_ = color;
    tried_(color);
}

void ColorPage::reject() {
    tryColor(first_);
    QDialog::reject();
}

/// What is kept there is kept here. A cancelled one comes back to this page.
void ColorPage::openChooser() {
    auto* chooser = new QColorDialog(now_, this);
    chooser->setAttribute(Qt::WA_DeleteOnClose);
    connect(chooser, &QColorDialog::currentColorChanged, this, &ColorPage::tryColor);
    connect(chooser, &QDialog::rejected, this, [this, before = now_] { tryColor(before); });
    connect(chooser, &QDialog::accepted, this, &QDialog::accept);
    chooser->open();
}
