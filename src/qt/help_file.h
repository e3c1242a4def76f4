#pragma once

#include <QByteArray>
#include <QString>
#include <QTemporaryDir>
#include <QUrl>
#include <memory>

class QHelpEngine;

namespace qt {

/// A help file, open for reading: pages and pictures by their addresses, the order of the chapters, the index.
class HelpFile {
public:
    explicit HelpFile(const QString& path);
    ~HelpFile();

    /// Whether it is a help file with a contents page.
    bool isReadable() const;
    /// The address of its contents.
    QUrl contents() const { return contents_; }
    /// What stands at an address, empty if nothing does.
    QByteArray page(const QUrl& address) const;

    /// The contents page and the chapters, in the order in which it names them.
    QList<QUrl> chapters() const;
    /// The chapter about a window of the program, by its name; empty if there is none.
    QUrl chapterOf(const QString& window) const;

    /// For the tree of contents and the list of the index that the engine makes. They fill a moment later.
    QHelpEngine& engine() const { return *engine_; }

private:
    // The engine keeps a list of the files that it knows; this one's goes with it.
    QTemporaryDir folder_;
    std::unique_ptr<QHelpEngine> engine_;
    QUrl contents_;
};

}  // namespace qt
