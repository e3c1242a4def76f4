#pragma once

#include <QHash>
#include <QString>
#include <chrono>
#include <memory>

#include "store/shape.h"

namespace store {

/// The one connection of this process to a file, shared by all handles and cursors on it: a second one would lock the
/// first out, and closing it would drop the first one's locks.
class Connection {
public:
    /// The connection to the file at this path. Throws as `Database::open` does.
    static std::shared_ptr<Connection> open(const QString& path);

    ~Connection();
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;

    bool isOpen() const { return database_ != nullptr; }
    /// Throws ObjectClosed.
    sqlite3* database() const;
    FileKind kind() const { return kind_; }
    void close();

    /// The statements for a query of this kind. Throws UnknownTable if the table isn't in this file.
    std::shared_ptr<Shape> shape(const Query& query);
    /// A statement that writes, kept for the next time.
    Statement& writer(const QByteArray& sql);

private:
    explicit Connection(const QString& path);
    void openFile(const QString& path);
    void configure();
    static int waitForOthers(void* self, int tries);
    void checkMark() const;
    void checkSize(const QString& path) const;
    void setJournal() const;
    void readMeta();
    void sortAnew() const;
    bool isStillAt(const QString& path) const;

    sqlite3* database_ = nullptr;
    quint64 device_ = 0;
    quint64 inode_ = 0;
    FileKind kind_ = FileKind::Nom;
    std::chrono::steady_clock::time_point waitingSince_;
    QHash<QByteArray, std::shared_ptr<Shape>> shapes_;
    QHash<QByteArray, std::shared_ptr<Statement>> writers_;
};

}  // namespace store
