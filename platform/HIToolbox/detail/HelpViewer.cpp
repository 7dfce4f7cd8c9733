// SPDX-License-Identifier: MIT
#include "platform/HIToolbox/detail/HelpViewer.h"

#include <QCoreApplication>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QShortcut>
#include <QTextBrowser>
#include <QUrl>
#include <QVBoxLayout>

namespace {

constexpr QSize kUsual(46, 36); // in heights of a line

class HelpViewer final : public QWidget {
public:
    HelpViewer();

    void showPage(const QUrl& page);

private:
    void sayPlace(const QUrl& page);

    QLabel* place_;
    QTextBrowser* text_;
};

HelpViewer::HelpViewer() : place_(new QLabel(this)), text_(new QTextBrowser(this)) {
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(QCoreApplication::translate("HelpViewer", "Korvex Help"));
    place_->setWordWrap(true);
    place_->setTextFormat(Qt::PlainText);
    place_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    text_->setAccessibleName(windowTitle());
    auto* back = new QPushButton(QCoreApplication::translate("HelpViewer", "&Back"), this);
    auto* close = new QPushButton(QCoreApplication::translate("HelpViewer", "&Close"), this);
    back->setEnabled(false);
    connect(text_, &QTextBrowser::backwardAvailable, back, &QWidget::setEnabled);
    connect(text_, &QTextBrowser::sourceChanged, this, &HelpViewer::sayPlace);
    connect(back, &QPushButton::clicked, text_, &QTextBrowser::backward);
    connect(close, &QPushButton::clicked, this, &QWidget::close);
    for (const auto key : {Qt::CTRL | Qt::Key_W, Qt::Key_Escape | Qt::KeyboardModifiers()})
        new QShortcut(QKeySequence(key), this, this, &QWidget::close);
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(back);
    buttons->addStretch();
    buttons->addWidget(close);
    auto* rows = new QVBoxLayout(this);
    rows->addWidget(place_);
    rows->addWidget(text_, 1);
    rows->addLayout(buttons);
    resize(kUsual * fontMetrics().height());
}

void HelpViewer::showPage(const QUrl& page) {
    text_->setSource(page);
    show();
    raise();
    activateWindow();
    text_->setFocus(Qt::OtherFocusReason);
    if (page.hasFragment()) // once the page has its width
        QMetaObject::invokeMethod(
            text_, [text = text_, page] { text->scrollToAnchor(page.fragment()); },
            Qt::QueuedConnection);
}

void HelpViewer::sayPlace(const QUrl& page) {
    place_->setText(QCoreApplication::translate(
                        "HelpViewer", "No web browser could be opened. This is the help’s "
                                      "page without its looks; its file is %1.")
                        .arg(page.toLocalFile()));
}

} // namespace

void showHelpPage(const QUrl& page) {
    static QPointer<HelpViewer> only;
    if (!only)
        only = new HelpViewer;
    only->showPage(page);
}
