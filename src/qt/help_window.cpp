#include "qt/help_window.h"

#include <QPushButton>
#include <QScreen>
#include <QShortcut>
#include <QTextBrowser>

#include "qt/layouts/parts.h"

namespace qt {
namespace {

constexpr QSize kSize(720, 600);

/// Takes its pages from a help file, and follows no link that leads out of it.
class Pages final : public QTextBrowser {
public:
    explicit Pages(const HelpFile& file) : file_(file) {
        setOpenLinks(true);
        setOpenExternalLinks(false);
        setAccessibleName(QStringLiteral("Page d'aide"));
        setFrameShape(QFrame::NoFrame);
        document()->setDocumentMargin(16);
    }

protected:
    QVariant loadResource(int, const QUrl& address) override { return file_.page(source().resolved(address)); }

private:
    const HelpFile& file_;
};

QPushButton* newButton(const QString& caption, QBoxLayout* row) {
    auto* button = new QPushButton(caption);
    button->setAutoDefault(false);
    row->addWidget(button);
    return button;
}

}  // namespace

HelpWindow::HelpWindow(std::unique_ptr<HelpFile> file) : file_(std::move(file)), pages_(new Pages(*file_)) {
    setObjectName(QStringLiteral("VERANOX.HLP"));
    setWindowTitle(QStringLiteral("Aide de VERANOX"));
    setAttribute(Qt::WA_DeleteOnClose);
    layOut();
    const QRect room = screen()->availableGeometry();
    resize(kSize.boundedTo(room.size()));
    move(room.topLeft() + QPoint(room.width() - width(), room.height() - height()) / 2);
}

void HelpWindow::layOut() {
    auto* all = newColumn(this, 1);
    auto* buttons = newRow();
    auto* contents = newButton(QStringLiteral("&Sommaire"), buttons);
    auto* back = newButton(QStringLiteral("&Précédent"), buttons);
    auto* forward = newButton(QStringLiteral("Sui&vant"), buttons);
    buttons->addStretch(1);
    auto* leave = newButton(QStringLiteral("&Fermer"), buttons);
    all->addLayout(buttons);
    all->addWidget(pages_, 1);

    connect(contents, &QPushButton::clicked, this, [this] { pages_->setSource(file_->contents()); });
    connect(back, &QPushButton::clicked, pages_, &QTextBrowser::backward);
    connect(forward, &QPushButton::clicked, pages_, &QTextBrowser::forward);
    connect(pages_, &QTextBrowser::backwardAvailable, back, &QWidget::setEnabled);
    connect(pages_, &QTextBrowser::forwardAvailable, forward, &QWidget::setEnabled);
    back->setEnabled(false);
    forward->setEnabled(false);
    connect(leave, &QPushButton::clicked, this, &QWidget::close);
    connect(new QShortcut(Qt::Key_Escape, this), &QShortcut::activated, this, &QWidget::close);
}

void HelpWindow::showContents() {
    pages_->setSource(file_->contents());
    show();
    raise();
    activateWindow();
    pages_->setFocus();
}

}  // namespace qt
