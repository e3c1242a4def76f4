#include "practice/support.h"

#include <QDir>
#include <QFile>
#include <ostream>

#include "store/database.h"
#include "store/recordset.h"

namespace {

QString fileHolding(const practice::Paths& files, const QString& table) {
    switch (store::fileOf(table)) {
        case store::FileKind::Nom:
            return files.nom;
        case store::FileKind::Echo:
            return files.echo;
        case store::FileKind::Atcd:
            return files.atcd;
        case store::FileKind::Echotek:
            return files.echotek;
    }
    return {};
}

}  // namespace

QList<Row> rowsOf(const practice::Paths& files, const QString& table) {
    QList<Row> all;
    store::Recordset rows = store::Database::open(fileHolding(files, table)).openRecordset(u"SELECT*FROM "_qs + table);
    const QStringList fields = rows.fieldNames();
    for (; !rows.eof(); rows.moveNext()) {
        Row row;
        for (const QString& field : fields) {
            row[field.toUpper()] = rows.field(field);
        }
        all << row;
    }
    return all;
}

QString pathOf(const QString& folder, store::FileKind kind) {
    return QDir(folder).filePath(store::usualName(kind));
}

QStringList namesIn(const QString& folder) {
    return QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot, QDir::Name);
}

QByteArray bytesOf(const QString& path) {
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    return file.readAll();
}

void writeBytes(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly)) << path.toStdString();
    ASSERT_EQ(file.write(bytes), bytes.size());
}

QDate dateOf(const QString& text) {
    const QStringList parts = text.split(u'/');
    if (text.size() != 10 || parts.size() != 3 || parts[0].size() != 2 || parts[1].size() != 2) {
        return {};
    }
    return {parts[2].toInt(), parts[1].toInt(), parts[0].toInt()};
}

void PrintTo(const QString& text, std::ostream* stream) {
    *stream << '"' << text.toStdString() << '"';
}
