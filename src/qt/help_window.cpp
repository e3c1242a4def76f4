#include "qt/help_window.h"

#include <QHelpContentWidget>
#include <QHelpEngine>
#include <QHelpIndexWidget>
#include <QHelpLink>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QScreen>
#include <QShortcut>
#include <QSplitter>
#include <QTabWidget>

#include "base/errors.h"
#include "qt/help_page.h"
#include "qt/layouts/parts.h"

namespace qt {
namespace {

constexpr QSize kSize(1150, 690);
constexpr int kFindersWidth = 300;

QPushButton* newButton(const QString& caption, QBoxLayout* row) {
    auto* button = new QPushButton(caption);
    button->setAutoDefault(false);
    row->addWidget(button);
    return button;
}

void onKey(QWidget* window, const QKeySequence& keys, const std::function<void()>& action) {
    QObject::connect(new QShortcut(keys, window), &QShortcut::activated, window, action);
}

}  // namespace

HelpWindow::HelpWindow(std::unique_ptr<HelpFile> file, ports::Printers& printers)
    : file_(std::move(file)),
      printers_(printers),
      search_(*file_),
      order_(file_->chapters()),
      pages_(new HelpPage(*file_)) {
    setObjectName(QStringLiteral("VERANOX.HLP"));
    setWindowTitle(QStringLiteral("Aide de VERANOX"));
    setAttribute(Qt::WA_DeleteOnClose);
    layOut();
    addKeys();
    const QRect room = screen()->availableGeometry();
    resize(kSize.boundedTo(room.size()));
    move(room.topLeft() + QPoint(room.width() - width(), room.height() - height()) / 2);
}

// The tree and the list of the engine must go before the engine does.
HelpWindow::~HelpWindow() {
    delete finders_;
}

void HelpWindow::layOut() {
    auto* all = newColumn(this, 1);
    all->addLayout(buttons());
    auto* both = new QSplitter;
    both->addWidget(finders());
    both->addWidget(pages_);
    both->setStretchFactor(1, 1);
    both->setSizes({kFindersWidth, kSize.width() - kFindersWidth});
    both->setChildrenCollapsible(false);
    all->addWidget(both, 1);
    connect(pages_, &QTextBrowser::sourceChanged, this, &HelpWindow::follow);
}

QBoxLayout* HelpWindow::buttons() {
    auto* row = newRow();
    connect(newButton(QStringLiteral("&Sommaire"), row), &QPushButton::clicked, this,
            [this] { pages_->setSource(file_->contents()); });
    auto* back = newButton(QStringLiteral("&Précédent"), row);
    auto* forward = newButton(QStringLiteral("Sui&vant"), row);
    row->addSpacing(16);
    stepTowards(newButton(QStringLiteral("C&hapitre précédent"), row), -1);
    stepTowards(newButton(QStringLiteral("Chapitre suiva&nt"), row), 1);
    row->addStretch(1);
    connect(newButton(QStringLiteral("I&mprimer..."), row), &QPushButton::clicked, this, &HelpWindow::print);
    connect(newButton(QStringLiteral("&Fermer"), row), &QPushButton::clicked, this, &QWidget::close);

    back->setToolTip(QStringLiteral("La page lue avant celle-ci"));
    forward->setToolTip(QStringLiteral("La page dont on est revenu"));
    connect(back, &QPushButton::clicked, pages_, &QTextBrowser::backward);
    connect(forward, &QPushButton::clicked, pages_, &QTextBrowser::forward);
    connect(pages_, &QTextBrowser::backwardAvailable, back, &QWidget::setEnabled);
    connect(pages_, &QTextBrowser::forwardAvailable, forward, &QWidget::setEnabled);
    back->setEnabled(false);
    forward->setEnabled(false);
    return row;
}

void HelpWindow::stepTowards(QPushButton* button, int chapters) {
    connect(button, &QPushButton::clicked, this, [this, chapters] { step(chapters); });
    connect(pages_, &QTextBrowser::sourceChanged, button, [this, button, chapters](const QUrl& address) {
        const qsizetype place = order_.indexOf(address.adjusted(QUrl::RemoveFragment)) + chapters;
        button->setEnabled(place >= 0 && place < order_.size());
    });
}

QWidget* HelpWindow::finders() {
    finders_ = new QTabWidget;
    finders_->setDocumentMode(true);
    finders_->addTab(chapters(), QStringLiteral("&Chapitres"));
    finders_->addTab(index(), QStringLiteral("&Index"));
    finders_->addTab(search(), QStringLiteral("&Recherche"));
    return finders_;
}

QWidget* HelpWindow::chapters() {
    QHelpContentWidget* tree = file_->engine().contentWidget();
    tree->setAccessibleName(QStringLiteral("Chapitres"));
    tree->setFrameShape(QFrame::NoFrame);
    connect(tree, &QHelpContentWidget::linkActivated, this, &HelpWindow::showPage);
    connect(tree, &QHelpContentWidget::clicked, this, [this, tree](const QModelIndex& row) {
        if (const QHelpContentItem* item = file_->engine().contentModel()->contentItemAt(row)) {
            showPage(item->url());
        }
        tree->setFocus();
    });
    connect(file_->engine().contentModel(), &QHelpContentModel::contentsCreated, tree, [this, tree] {
        tree->expandAll();
        follow(pages_->source());
    });
    return tree;
}

QWidget* HelpWindow::index() {
    auto* panel = new QWidget;
    auto* column = newColumn(panel);
    auto* filter = new QLineEdit;
    filter->setAccessibleName(QStringLiteral("Mot de l'index"));
    filter->setPlaceholderText(QStringLiteral("Mot de l'index"));
    filter->setClearButtonEnabled(true);
    QHelpIndexWidget* words = file_->engine().indexWidget();
    words->setAccessibleName(QStringLiteral("Index"));
    words->setFrameShape(QFrame::NoFrame);
    column->addWidget(filter);
    column->addWidget(words, 1);
    connect(filter, &QLineEdit::textChanged, words, [words](const QString& text) { words->filterIndices(text); });
    connect(filter, &QLineEdit::returnPressed, words, &QHelpIndexWidget::activateCurrentItem);
    connect(words, &QHelpIndexWidget::clicked, words, &QHelpIndexWidget::activateCurrentItem);
    connect(words, &QHelpIndexWidget::documentActivated, this, [this](const QHelpLink& link) { showPage(link.url); });
    connect(words, &QHelpIndexWidget::documentsActivated, this,
            [this](const QList<QHelpLink>& links) { showPage(links.first().url); });
    panel->setFocusProxy(filter);
    return panel;
}

QWidget* HelpWindow::search() {
    auto* panel = new QWidget;
    auto* column = newColumn(panel);
    query_ = new QLineEdit;
    query_->setAccessibleName(QStringLiteral("Mots cherchés"));
    query_->setPlaceholderText(QStringLiteral("Mots cherchés"));
    query_->setClearButtonEnabled(true);
    hits_ = new QListWidget;
    hits_->setAccessibleName(QStringLiteral("Pages trouvées"));
    hits_->setFrameShape(QFrame::NoFrame);
    hits_->setWordWrap(true);
    hits_->setSpacing(2);
    column->addWidget(query_);
    column->addWidget(hits_, 1);
    connect(query_, &QLineEdit::textChanged, this, &HelpWindow::fillHits);
    connect(query_, &QLineEdit::returnPressed, this, [this] { openHit(qMax(0, hits_->currentRow())); });
    connect(hits_, &QListWidget::itemClicked, this, [this] { openHit(hits_->currentRow()); });
    connect(hits_, &QListWidget::itemActivated, this, [this] { openHit(hits_->currentRow()); });
    panel->setFocusProxy(query_);
    return panel;
}

void HelpWindow::addKeys() {
    onKey(this, Qt::Key_Escape, [this] { close(); });
    onKey(this, QKeySequence::Print, [this] { print(); });
    onKey(this, QKeySequence::Find, [this] {
        finders_->setCurrentIndex(2);
        query_->setFocus();
        query_->selectAll();
    });
    onKey(this, Qt::Key_F5, [this] { pages_->setSource(file_->contents()); });
    onKey(this, QKeySequence(Qt::ALT | Qt::Key_Left), [this] { pages_->backward(); });
    onKey(this, QKeySequence(Qt::ALT | Qt::Key_Right), [this] { pages_->forward(); });
}

void HelpWindow::fillHits(const QString& query) {
    found_ = search_.find(query);
    hits_->clear();
    for (const HelpHit& hit : found_) {
        hits_->addItem(hit.title + u'\n' + hit.extract);
    }
    if (found_.isEmpty() && !searchedWords(query).isEmpty()) {
        auto* nothing = new QListWidgetItem(QStringLiteral("Aucune page"), hits_);
        nothing->setFlags(Qt::NoItemFlags);
    }
}

void HelpWindow::openHit(int row) {
    if (row >= 0 && row < found_.size()) {
        hits_->setCurrentRow(row);
        pages_->setSource(found_.at(row).page);
        pages_->mark(searchedWords(query_->text()));
    }
}

void HelpWindow::showPage(const QUrl& address) {
    pages_->setSource(address);
}

// The tree shows where one is; the marks of a search stay with their page.
void HelpWindow::follow(const QUrl& address) {
    QHelpContentWidget* tree = file_->engine().contentWidget();
    QModelIndex row = tree->indexOf(address.adjusted(QUrl::RemoveFragment));
    // A part of the manual leads to its first chapter: that is where one is.
    if (row.isValid() && row.parent().isValid() && tree->model()->hasChildren(row)) {
        row = tree->model()->index(0, 0, row);
    }
    if (row.isValid()) {
        tree->setCurrentIndex(row);
    }
    pages_->setExtraSelections({});
}

void HelpWindow::step(int chapters) {
    const qsizetype place = order_.indexOf(pages_->source().adjusted(QUrl::RemoveFragment)) + chapters;
    if (place >= 0 && place < order_.size()) {
        pages_->setSource(order_.at(place));
    }
}

void HelpWindow::print() {
    try {
        printers_.choose([this](ports::Printer& printer) { pages_->printOn(printer); });
    } catch (const base::RuntimeError&) {
        // The printer has told its person itself.
    }
}

void HelpWindow::showContents() {
    showChapterOf({});
}

void HelpWindow::showChapterOf(const QString& window) {
    const QUrl chapter = window.isEmpty() ? QUrl() : file_->chapterOf(window);
    pages_->setSource(chapter.isEmpty() ? file_->contents() : chapter);
    show();
    raise();
    activateWindow();
    pages_->setFocus();
}

}  // namespace qt
