#pragma once

#include <QByteArray>
#include <QString>
#include <QTemporaryDir>
#include <QUrl>
#include <memory>

class QHelpEngineCore;

namespace qt {

/// A help file, open for reading: pages by their addresses.
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

private:
    // The engine keeps a list of the files that it knows; this one's goes with it.
    QTemporaryDir folder_;
    std::unique_ptr<QHelpEngineCore> engine_;
    QUrl contents_;
};

}  // namespace qt
