// What another workstation does to a file, in a process of its own. Answers one line for each thing done; an error of
// the store as "error NUMBER TEXT".

#include <sys/resource.h>
#include <unistd.h>

#include <QFile>
#include <QStringList>
#include <QThread>
#include <csignal>
#include <cstdio>
#include <map>

#include "base/errors.h"
#include "store/database.h"
#include "store/recordset.h"
#include "store/schema.h"

using store::Database;
using store::Field;
using store::FieldKind;
using store::Recordset;

namespace {

constexpr rlim_t kKilobyte = 1024;

void answer(const QString& line) {
    std::puts(line.toUtf8().constData());
    std::fflush(stdout);
}

/// Writes one text into every text field of the current exam.
void writeAll(Recordset& exam, const QString& text) {
    for (const Field& field : store::fieldsOf(QStringLiteral("1TER"))) {
        if (field.kind == FieldKind::Text) {
            exam.set(field.name, text);
        }
    }
}

/// Rewrites the first exam without end: each time every field gets the next number, and a length of its own.
void rewrite(const QString& path, qsizetype length, unsigned long pauseInMs) {
    Recordset exam = Database::open(path).openRecordset(QStringLiteral("SELECT*FROM 1TER"));
    for (int number = exam.text(QStringLiteral("BMI")).section(u' ', 0, 0).toInt() + 1;; ++number) {
        exam.edit();
        writeAll(exam, QStringLiteral("%1 ").arg(number).leftJustified(length, u'x'));
        exam.update();
        answer(QString::number(number));
        QThread::msleep(pauseInMs);
    }
}

/// Adds exams of one dossier, numbered from 1.
void addExams(const QString& path, int dossier, int count) {
    Recordset exams = Database::open(path).openRecordset(QStringLiteral("SELECT*FROM 1TER"));
    answer(QStringLiteral("ready"));
    for (int number = 1; number <= count; ++number) {
        exams.addNew();
        exams.set(QStringLiteral("NUMERO"), dossier);
        exams.set(QStringLiteral("NUMECHO"), number);
        writeAll(exams, QStringLiteral("texte"));
        exams.update();
    }
    answer(QStringLiteral("done"));
}

void removeExams(const QString& path, const QString& dossier) {
    Recordset exams = Database::open(path).openRecordset(QStringLiteral("SELECT*FROM 1TER WHERE NUMERO=") + dossier);
    for (; !exams.eof(); exams.moveNext()) {
        exams.remove();
    }
    answer(QStringLiteral("done"));
}

/// Rewrites the first exam on a disk that takes files of this many kilobytes at the most.
void rewriteOnFullDisk(const QString& path, int kilobytes) {
    Recordset exam = Database::open(path).openRecordset(QStringLiteral("SELECT*FROM 1TER"));
    exam.edit();
    writeAll(exam, QString(4000, u'y'));
    std::signal(SIGXFSZ, SIG_IGN);
    const rlimit limit{static_cast<rlim_t>(kilobytes) * kKilobyte, RLIM_INFINITY};
    setrlimit(RLIMIT_FSIZE, &limit);
    exam.update();
    answer(QStringLiteral("done"));
}

void createOnFullDisk(const QString& path, int kilobytes) {
    std::signal(SIGXFSZ, SIG_IGN);
    const rlimit limit{static_cast<rlim_t>(kilobytes) * kKilobyte, RLIM_INFINITY};
    setrlimit(RLIMIT_FSIZE, &limit);
    store::createFile(store::FileKind::Echo, path);
    answer(QStringLiteral("done"));
}

/// Goes on as somebody whom file permissions bind.
void becomeNobody() {
    constexpr uid_t kNobody = 65534;
    if (geteuid() == 0 && setresuid(kNobody, kNobody, kNobody) != 0) {
        std::perror("setresuid");
        std::exit(2);
    }
}

void readThenRewrite(const QString& path) {
    becomeNobody();
    Recordset exam = Database::open(path).openRecordset(QStringLiteral("SELECT*FROM 1TER"));
    answer(exam.text(QStringLiteral("BMI")));
    exam.edit();
    writeAll(exam, QStringLiteral("autre"));
    exam.update();
    answer(QStringLiteral("done"));
}

void create(const QString& path) {
    becomeNobody();
    store::createFile(store::FileKind::Echo, path);
    answer(QStringLiteral("done"));
}

void act(const QStringList& words) {
    const QString& verb = words.at(1);
    const QString& path = words.at(2);
    const auto number = [&words](int at) { return words.at(at).toInt(); };
    const std::map<QString, void (*)(const QString&, const decltype(number)&)> verbs{
        {QStringLiteral("rewrite"), [](const QString& p, const auto& n) { rewrite(p, n(3), 0); }},
        {QStringLiteral("rewrite-calmly"), [](const QString& p, const auto& n) { rewrite(p, n(3), 20); }},
        {QStringLiteral("add"), [](const QString& p, const auto& n) { addExams(p, n(3), n(4)); }},
        {QStringLiteral("remove"), [](const QString& p, const auto& n) { removeExams(p, QString::number(n(3))); }},
        {QStringLiteral("full"), [](const QString& p, const auto& n) { rewriteOnFullDisk(p, n(3)); }},
        {QStringLiteral("create-full"), [](const QString& p, const auto& n) { createOnFullDisk(p, n(3)); }},
        {QStringLiteral("nobody"), [](const QString& p, const auto&) { readThenRewrite(p); }},
        {QStringLiteral("create-nobody"), [](const QString& p, const auto&) { create(p); }},
    };
    verbs.at(verb)(path, number);
}

}  // namespace

int main(int count, char** words) {
    QStringList list;
    for (int i = 0; i < count; ++i) {
        list << QFile::decodeName(words[i]);
    }
    try {
        act(list);
        return 0;
    } catch (const base::RuntimeError& error) {
        answer(QStringLiteral("error %1 %2").arg(static_cast<int>(error.number())).arg(error.text()));
        return 1;
    }
}
