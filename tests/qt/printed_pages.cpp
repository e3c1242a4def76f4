#include "printed_pages.h"

#include <QProcess>
#include <QTextBlock>
#include <QXmlStreamReader>

namespace qt {
namespace {

QString simplified(const QString& line) {
    return line.normalized(QString::NormalizationForm_KC).simplified();
}

QString run(const QStringList& arguments) {
    QProcess pdftotext;
    pdftotext.start("pdftotext", arguments);
    return pdftotext.waitForFinished() ? QString::fromUtf8(pdftotext.readAllStandardOutput()) : QString();
}

std::vector<QRectF> wordsOf(QXmlStreamReader& xml) {
    std::vector<QRectF> words;
    const auto number = [&](const char* name) { return xml.attributes().value(name).toDouble(); };
    while (!xml.atEnd() && !(xml.readNext() == QXmlStreamReader::EndElement && xml.name() == u"page")) {
        if (xml.isStartElement() && xml.name() == u"word") {
            words.emplace_back(QPointF(number("xMin"), number("yMin")), QPointF(number("xMax"), number("yMax")));
        }
    }
    return words;
}

}  // namespace

reports::Report threePages() {
    reports::FirstTrimesterExam exam;
    exam.letterhead = {"Clinique des Tilleuls", "Docteur Hélène MARCHAND", "12, rue du Vieux Pont", "67000 STRASBOURG",
                       "Tél. 03 88 00 00 00"};
    exam.patient = {"Mme", "Zoé", "D'ALMEIDA"};
    exam.device = {"Echographe A", "15/01/2001"};
    exam.LblIMC = "18,8";
    exam.LblDatExam = "05/04/2002";
    exam.LblNbrE = "3";
    exam.LblOperateur = "Dr MARCHAND";
    exam.TxtIndic =
        QString("Grossesse triple après stimulation, contrôle de la croissance et des clartés nucales. ").repeated(4);
    exam.TxtConclu1 =
        QString("Trois embryons évolutifs dont la biométrie est concordante avec le terme présumé. ").repeated(9);
    for (reports::Embryo& embryo : exam.embryos) {
        embryo = {
            "55",
            "20",
            "6",
            "1.2",
            "Vus",
            "160",
            "Présents",
            QString("Pôle céphalique, abdomen, rachis et quatre membres vus ; cœur à quatre cavités. ").repeated(8)};
    }
    return CptRendu1T(exam, reports::Detail::Full,
                      QString("L'échographie ne permet pas de déceler toutes les anomalies. ").repeated(5));
}

QStringList linesOf(const QTextDocument& document) {
    QStringList lines;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        for (int i = 0; i < block.layout()->lineCount(); ++i) {
            const QTextLine line = block.layout()->lineAt(i);
            lines << simplified(block.text().mid(line.textStart(), line.textLength()));
        }
    }
    lines.removeAll(QString());
    return lines;
}

std::vector<PrintedPage> readPdf(const QString& file) {
    std::vector<PrintedPage> pages;
    for (const QString& text : run({"-layout", file, "-"}).split(u'\f', Qt::SkipEmptyParts)) {
        PrintedPage page;
        for (const QString& line : text.split(u'\n')) {
            page.lines << simplified(line);
        }
        page.lines.removeAll(QString());
        pages.push_back(page);
    }
    QXmlStreamReader xml(run({"-bbox", file, "-"}));
    for (std::size_t next = 0; !xml.atEnd() && next < pages.size();) {
        if (xml.readNext() == QXmlStreamReader::StartElement && xml.name() == u"page") {
            pages[next++].words = wordsOf(xml);
        }
    }
    return pages;
}

}  // namespace qt
