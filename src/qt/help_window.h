#pragma once

#include <QWidget>
#include <memory>

#include "ports/printer.h"
#include "qt/help_file.h"
#include "qt/help_search.h"

class QBoxLayout;
class QLineEdit;
class QListWidget;
class QPushButton;
class QTabWidget;

namespace qt {

class HelpPage;

/// The pages of a help file, with its chapters, its index and a search beside them. It is no form of the program: it
/// stands by itself, and closing it destroys it.
class HelpWindow final : public QWidget {
public:
    /// The file must be readable.
    HelpWindow(std::unique_ptr<HelpFile> file, ports::Printers& printers);
    ~HelpWindow() override;

    /// Comes to the front with the contents.
    void showContents();
    /// Comes to the front with the chapter about a window of the program; with the contents if it has none.
    void showChapterOf(const QString& window);

private:
    void layOut();
    QBoxLayout* buttons();
    QWidget* finders();
    QWidget* chapters();
    QWidget* index();
    QWidget* search();
    void addKeys();
    void showPage(const QUrl& address);
    void follow(const QUrl& address);
    /// Goes on by so many chapters in the order of the contents.
    void step(int chapters);
    void stepTowards(QPushButton* button, int chapters);
    void fillHits(const QString& query);
    void openHit(int row);
    void print();

    std::unique_ptr<HelpFile> file_;
    ports::Printers& printers_;
    const HelpSearch search_;
    const QList<QUrl> order_;
    HelpPage* pages_;
    QTabWidget* finders_ = nullptr;
    QLineEdit* query_ = nullptr;
    QListWidget* hits_ = nullptr;
    QList<HelpHit> found_;
};

}  // namespace qt
