// SPDX-License-Identifier: MIT
// The smallest program that loads and shows a form. Rows and list of sections are made of Qt's own
// widgets.

#include <QAbstractButton>
#include <QApplication>
#include <QBoxLayout>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QScrollArea>
#include <QSlider>
#include <QStackedWidget>
#include <QTabBar>
#include <QToolButton>
#include <QUiLoader>

namespace {

QLabel* makeText(const QString& text, QWidget* parent) {
    auto* label = new QLabel(text, parent);
    label->setWordWrap(true);
    return label;
}

QLayout* makeTexts(QWidget* row) {
    auto* texts = new QVBoxLayout;
    texts->addWidget(makeText(row->property("caption").toString(), row));
    texts->addWidget(makeText(row->accessibleDescription(), row));
    return texts;
}

void buildNumber(QWidget* row) {
    auto* line = new QHBoxLayout(row);
    line->addLayout(makeTexts(row), 1);
    for (const char* text : {"−−", "−", "+", "++"}) {
        if (*text == '+' && !text[1] && row->property("maxValue").isValid())
            line->addWidget(new QSlider(Qt::Horizontal, row), 1);
        auto* button = new QToolButton(row);
        button->setText(QString::fromUtf8(text));
        line->addWidget(button);
    }
    line->addWidget(new QLineEdit(row));
}

/// Puts a caption and an explanation before the row's controls from the form.
void buildSetting(QWidget* row) {
    auto* controls = new QWidget(row);
    controls->setLayout(row->layout());
    auto* line = new QHBoxLayout(row);
    line->addLayout(makeTexts(row), 1);
    line->addWidget(controls);
}

void addExplanation(QAbstractButton* button) {
    auto* column = qobject_cast<QVBoxLayout*>(button->parentWidget()->layout());
    if (column && !button->accessibleDescription().isEmpty())
        column->insertWidget(column->indexOf(button) + 1,
                             makeText(button->accessibleDescription(), button->parentWidget()));
}

void buildSections(QStackedWidget* pages) {
    auto* bar = new QTabBar(pages->parentWidget());
    bar->setShape(QTabBar::RoundedWest);
    for (int index = 0; index < pages->count(); ++index)
        bar->addTab(pages->widget(index)->windowTitle());
    qobject_cast<QBoxLayout*>(pages->parentWidget()->layout())->insertWidget(0, bar);
}

} // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QFile file(QString::fromLocal8Bit(argc > 1 ? argv[1] : ""));
    if (!file.open(QIODevice::ReadOnly))
        return 1;
    QWidget* form = QUiLoader().load(&file);
    for (auto* widget : form->findChildren<QWidget*>()) {
        if (widget->property("less").isValid())
            buildNumber(widget);
        else if (widget->property("caption").isValid() && widget->layout())
            buildSetting(widget);
        else if (auto* button = qobject_cast<QAbstractButton*>(widget))
            addExplanation(button);
        else if (auto* pages = qobject_cast<QStackedWidget*>(widget))
            buildSections(pages);
        else if (auto* page = qobject_cast<QScrollArea*>(widget))
            page->setWidgetResizable(true);
    }
    for (auto* widget : form->findChildren<QWidget*>())
        widget->updateGeometry(); // else the surrounding layouts would use its earlier size
    form->show();
    return QApplication::exec();
}
