#pragma once

#include <QPrinter>
#include <QRectF>
#include <QStringList>
#include <QTextDocument>
#include <vector>

#include "qt/real_printers.h"
#include "reports/first_trimester.h"

namespace qt {

/// A report that fills three pages: triplets, and a practice that writes at length.
reports::Report threePages();

/// The lines of a document as it is laid out, trimmed, without the empty ones.
QStringList linesOf(const QTextDocument& document);

/// What a program that knows nothing of this one reads in a PDF file, page by page.
struct PrintedPage {
    QStringList lines;
    /// Where each word stands, in points from the upper left corner of the sheet.
    std::vector<QRectF> words;
};
std::vector<PrintedPage> readPdf(const QString& file);

/// The real printers on a machine whose default printer is a PDF file.
class PdfPrinters final : public RealPrinters {
public:
    explicit PdfPrinters(QString file) : file_(std::move(file)) {}
    int resolution = 1200;

protected:
    std::unique_ptr<QPrinter> makeStandard() const override {
        auto printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
        printer->setOutputFormat(QPrinter::PdfFormat);
        printer->setOutputFileName(file_);
        printer->setResolution(resolution);
        return printer;
    }

private:
    QString file_;
};

}  // namespace qt
