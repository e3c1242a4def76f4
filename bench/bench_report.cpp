// A report from its values to a PDF file, beside an office suite that turns the same text into one; and typing in a
// long one. The office suite is not one of this project's packages: where it isn't installed
// (apt install libreoffice-writer-nogui) its lines say so.
#include <sys/resource.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QPrinter>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>
#include <QTextEdit>

#include "forms/desk.h"
#include "forms/form.h"
#include "qt/page_view.h"
#include "qt/real_printers.h"
#include "reports/first_trimester.h"
#include "reports/later_trimesters.h"
#include "reports/twips.h"
#include "reports/wisiwi.h"
#include "side_by_side.h"

namespace {

using namespace reports;

constexpr int kLineWidth = 11186;

class Window final : public forms::Form {
public:
    explicit Window(forms::Desk& desk) : Form(desk, QStringLiteral("Bench"), QString()) {
        Box.SelFontName(QStringLiteral("Arial"));
        Box.SelFontSize(12);
        Box.setLineWidth(kLineWidth);
    }
    forms::RichText Box{*this, QStringLiteral("Box")};
};

class PdfPrinters final : public qt::RealPrinters {
public:
    explicit PdfPrinters(QString file) : file_(std::move(file)) {}

protected:
    std::unique_ptr<QPrinter> makeStandard() const override {
        auto printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
        printer->setOutputFormat(QPrinter::PdfFormat);
        printer->setOutputFileName(file_);
        return printer;
    }

private:
    QString file_;
};

// Triplets of a practice that writes at length: three pages.
FirstTrimesterExam longExam() {
    FirstTrimesterExam exam;
    exam.letterhead = {QStringLiteral("Clinique des Tilleuls"), QStringLiteral("Docteur Hélène MARCHAND"),
                       QStringLiteral("12, rue du Vieux Pont"), QStringLiteral("67000 STRASBOURG"),
                       QStringLiteral("Tél. 03 88 00 00 00")};
    exam.patient = {QStringLiteral("Mme"), QStringLiteral("Zoé"), QStringLiteral("D'ALMEIDA")};
    exam.LblNbrE = QStringLiteral("3");
    exam.TxtIndic = QStringLiteral("Grossesse triple, contrôle de la croissance et des clartés nucales. ").repeated(5);
    exam.TxtConclu1 = QStringLiteral("Trois embryons évolutifs, biométrie concordante avec le terme. ").repeated(12);
    for (Embryo& embryo : exam.embryos) {
        embryo.TxtMorpho =
            QStringLiteral("Pôle céphalique, abdomen, rachis et membres vus ; cœur à quatre cavités. ").repeated(9);
    }
    return exam;
}

Report longReport() {
    return CptRendu1T(longExam(), Detail::Full, QStringLiteral("Toute anomalie ne peut être vue. ").repeated(6));
}

void layOut(forms::RichText& box) {
    box.document().setTextWidth(kLineWidth);
    measureInTwips(box.document());
    benchmark::DoNotOptimize(box.document().size());
}

void composing(benchmark::State& state) {
    const FirstTrimesterExam exam = longExam();
    for (auto _ : state) {
        benchmark::DoNotOptimize(CptRendu1T(exam, Detail::Full, std::nullopt));
    }
}

// Triplets with every value filled.
void composingLaterTriplets(benchmark::State& state) {
    LaterExam exam;
    exam.TxtNbrE = QStringLiteral("3");
    exam.TxtUtD = exam.TxtUtG = QStringLiteral("IR 0,60");
    const QString value = QStringLiteral("123");
    for (Fetus& fetus : exam.fetuses) {
        fetus = {
            value,
            value,
            value,
            value,
            value,
            value,
            value,
            value,
            value,
            value,
            value,
            value,
            value,
            value,
            value,
            QStringLiteral("Pôle céphalique, abdomen, rachis et membres vus ; cœur à quatre cavités. ").repeated(9)};
    }
    for (auto _ : state) {
        benchmark::DoNotOptimize(CptRendu2T(exam, Detail::Full, QString()));
    }
}

void typingTheReportAndLayingItOut(benchmark::State& state) {
    const Report report = longReport();
    for (auto _ : state) {
        forms::Desk desk;
        Window window(desk);
        type(report, window.Box);
        layOut(window.Box);
    }
}

// Each into a file of its own, as those of the office suite.
template <class Seen>
void threePagesToPdf(benchmark::State& state, Seen seen) {
    const QTemporaryDir folder;
    int number = 0;
    for (auto _ : state) {
        PdfPrinters printers(folder.filePath(QStringLiteral("%1.pdf").arg(++number)));
        forms::Desk desk;
        Window window(desk);
        type(longReport(), window.Box);
        seen(window.Box);
        PrintRTF(window.Box, *printers.standard(), QStringLiteral("Essai"), kPaperMargins);
    }
}

// Laid out for the paper alone: the office suite has no window either.
void threePagesFromValuesToPdf(benchmark::State& state) {
    threePagesToPdf(state, [](const forms::RichText&) {});
}

// Laid out in the editor as well, whose lines are of another width.
void threePagesThroughTheEditor(benchmark::State& state) {
    threePagesToPdf(state, layOut);
}

/// The same operations as rich text codes, for a program that reads those.
struct RtfWriter {
    QByteArray body;

    void operator()(const SelAlignment& operation) {
        body += operation.value == forms::Alignment::Centre ? "\\qc " : "\\ql ";
    }
    void operator()(const SelFontSize& operation) {
        body += "\\fs" + QByteArray::number(static_cast<int>(2 * operation.points)) + ' ';
    }
    void operator()(const SelBold& operation) { body += operation.value ? "\\b " : "\\b0 "; }
    void operator()(const SelText& operation) {
        for (const QChar c : operation.text) {
            if (c == u'\n') {
                body += "\\par ";
            } else if (c.unicode() > 126) {
                body += "\\u" + QByteArray::number(c.unicode()) + '?';
            } else if (c != u'\r') {
                body += c.toLatin1();
            }
        }
    }
    void operator()(const SelStart&) const {}
};

QByteArray asRtf(const Report& report) {
    RtfWriter writer;
    for (const Operation& operation : report.operations) {
        std::visit(writer, operation);
    }
    return "{\\rtf1\\ansi\\deff0{\\fonttbl{\\f0 Arial;}}\\paperw11906\\paperh16838\\margl1440\\margr1440\\margt1440"
           "\\margb1440 " +
           writer.body + "}";
}

/// An office suite that turns files of rich text into PDF files, in a folder of its own.
class Office {
public:
    bool isThere() const { return !program_.isEmpty(); }

    void convert(int files) {
        QStringList arguments{
            QStringLiteral("--headless"),
            QStringLiteral("-env:UserInstallation=file://") + folder_.filePath(QStringLiteral("user")),
            QStringLiteral("--convert-to"),
            QStringLiteral("pdf"),
            QStringLiteral("--outdir"),
            folder_.filePath(QStringLiteral("pdf"))};
        for (int i = 0; i < files; ++i) {
            arguments << write(i);
        }
        QProcess::execute(program_, arguments);
    }

private:
    QString write(int number) const {
        QFile file(folder_.filePath(QStringLiteral("%1.rtf").arg(number)));
        if (file.open(QIODevice::WriteOnly)) {
            file.write(asRtf(longReport()));
        }
        return file.fileName();
    }

    QTemporaryDir folder_;
    QString program_ = QStandardPaths::findExecutable(QStringLiteral("soffice"));
};

// What one file more costs in one run, without the start of the suite.
void officeSuite(benchmark::State& state) {
    constexpr int kMany = 41;
    Office office;
    if (!office.isThere()) {
        state.SkipWithError("no soffice here: apt install libreoffice-writer-nogui");
        return;
    }
    office.convert(1);
    for (auto _ : state) {
        QElapsedTimer timer;
        timer.start();
        office.convert(1);
        const qint64 one = timer.nsecsElapsed();
        office.convert(kMany);
        const qint64 many = timer.nsecsElapsed() - one;
        state.SetIterationTime(static_cast<double>(many - one) / 1e9 / (kMany - 1));
    }
}

// One key in a text of twenty pages, until it is seen: at its start, in its middle, at its end.
void oneKeyInTwentyPages(benchmark::State& state) {
    forms::Desk desk;
    Window window(desk);
    for (int i = 0; i < 9; ++i) {
        type(longReport(), window.Box);
    }
    qt::PageView view(window.Box.document(), QString());
    view.setLineWidth(kLineWidth);
    view.resize(746, 690);
    view.show();
    QApplication::setActiveWindow(&view);
    view.setFocus();
    QTextCursor caret = view.edit().textCursor();
    caret.setPosition(static_cast<int>(state.range(0)) * (window.Box.document().characterCount() - 1) / 100);
    view.edit().setTextCursor(caret);
    QApplication::processEvents();
    const int before = window.Box.document().characterCount();
    for (auto _ : state) {
        QTest::sendKeyEvent(QTest::Click, &view, Qt::Key_E, QStringLiteral("é"), Qt::NoModifier, -1);
        QApplication::processEvents();
    }
    if (window.Box.document().characterCount() == before) {
        state.SkipWithError("nothing was typed");
    }
    state.counters["pages"] = view.edit().document()->size().height() / (16838 - 2 * 1440);
    view.release();
}

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    side_by_side::within("text of triplets, 1st trim.", composing, 1);
    side_by_side::within("text of triplets, later", composingLaterTriplets, 1);
    side_by_side::alone("report typed and laid out", typingTheReportAndLayingItOut);
    side_by_side::pairByHand("3 pages to PDF, office suite", threePagesFromValuesToPdf, officeSuite, 0.1);
    side_by_side::alone("3 pages to PDF, through the editor", threePagesThroughTheEditor);
    side_by_side::within("key in 20 pages, at %", oneKeyInTwentyPages, 2, {0, 50, 100});
    return side_by_side::run(argc, argv);
}
