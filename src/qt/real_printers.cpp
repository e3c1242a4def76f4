#include "qt/real_printers.h"

#include <unistd.h>

#include <QApplication>
#include <QDialogButtonBox>
#include <QDir>
#include <QFile>
#include <QPainter>
#include <QPrintDialog>
#include <QPrintPreviewDialog>
#include <QPrinter>
#include <QPrinterInfo>
#include <QPushButton>
#include <cmath>
#include <optional>

#include "base/errors.h"
#include "qt/file_in_making.h"
#include "qt/pdf_text.h"

namespace qt {
namespace {

constexpr double kTwipsPerMillimetre = 1440 / 25.4;

std::int32_t twips(double millimetres) {
    return static_cast<std::int32_t>(std::lround(millimetres * kTwipsPerMillimetre));
}

[[noreturn]] void failOnDevice() {
    throw base::RuntimeError(base::ErrorNumber::DeviceError);
}

/// The file that a printer makes a PDF of.
class PdfInMaking {
public:
    explicit PdfInMaking(QPrinter& printer) : printer_(printer), made_(printer.outputFileName()) {
        printer_.setOutputFileName(made_.file().fileName());
    }
    ~PdfInMaking() { printer_.setOutputFileName(made_.wanted()); }
    PdfInMaking(const PdfInMaking&) = delete;
    PdfInMaking& operator=(const PdfInMaking&) = delete;

    void publish() {
        if (!isWhole()) {
            failOnDevice();
        }
        made_.publish();
    }

private:
    // The toolkit doesn't tell what it couldn't write; the mark of the end is missing then.
    bool isWhole() {
        constexpr qint64 kTail = 64;
        QFile& file = made_.file();
        const bool found = file.seek(qMax<qint64>(0, file.size() - kTail));
        return found && file.readAll().contains("%%EOF") && ::fsync(file.handle()) == 0;
    }

    QPrinter& printer_;
    FileInMaking made_;
};

/// Whether pages go to paper, or to the screen alone.
enum class Pages { Printed, Seen };

bool makesPdf(const QPrinter& printer, Pages pages) {
    return pages == Pages::Printed && printer.outputFormat() == QPrinter::PdfFormat;
}

class RealJob final : public ports::PrintJob {
public:
    RealJob(std::shared_ptr<QPrinter> printer, Pages pages) : printer_(std::move(printer)) {
        if (makesPdf(*printer_, pages)) {
            pdf_.emplace(*printer_);
        }
        if (!painter_.begin(printer_.get())) {
            failOnDevice();
        }
    }

    QPainter& painter() override { return painter_; }
    void newPage() override {
        if (!printer_->newPage()) {
            failOnDevice();
        }
    }
    void end() override {
        if (!painter_.end()) {
            failOnDevice();
        }
        if (pdf_) {
            pdf_->publish();
        }
    }

private:
    std::shared_ptr<QPrinter> printer_;
    std::optional<PdfInMaking> pdf_;
    QPainter painter_;
};

class RealPrinter final : public ports::Printer {
public:
    explicit RealPrinter(std::shared_ptr<QPrinter> printer, Pages pages = Pages::Printed)
        : printer_(std::move(printer)), pages_(pages) {
        // The margins are the program's own matter: the printer keeps what it can't do without. Both are told in the
        // unit that the layout has at the moment.
        const QPageLayout layout = printer_->pageLayout();
        printer_->setFullPage(false);
        printer_->setPageMargins(layout.minimumMargins(), layout.units());
    }

    ports::PageGeometry geometry() const override {
        const QPageLayout layout = printer_->pageLayout();
        const QSizeF sheet = layout.fullRect(QPageLayout::Millimeter).size();
        const QMargins edge = layout.marginsPixels(printer_->resolution());
        return {.width = twips(sheet.width()),
                .height = twips(sheet.height()),
                .dpiX = printer_->logicalDpiX(),
                .dpiY = printer_->logicalDpiY(),
                .physicalOffsetX = edge.left(),
                .physicalOffsetY = edge.top()};
    }

    std::unique_ptr<ports::PrintJob> open(const QString& title) override {
        printer_->setDocName(title);
        return std::make_unique<RealJob>(printer_, pages_);
    }

    std::unique_ptr<ports::TextJob> openText(const QString& title) override {
        if (!makesPdf(*printer_, pages_)) {
            return Printer::openText(title);
        }
        constexpr double kPointsPerMillimetre = 72 / 25.4;
        const QPageLayout layout = printer_->pageLayout();
        return std::make_unique<PdfText>(
            printer_->outputFileName(), title,
            PdfSheet{.size = layout.fullRect(QPageLayout::Millimeter).size() * kPointsPerMillimetre,
                     .origin = layout.paintRect(QPageLayout::Millimeter).topLeft() * kPointsPerMillimetre,
                     .grey = printer_->colorMode() == QPrinter::GrayScale});
    }

private:
    std::shared_ptr<QPrinter> printer_;
    Pages pages_;
};

/// Keeps an error from going through the toolkit, which can't bear it, until it can be thrown again.
class Boundary {
public:
    template <class Step>
    void run(Step step) {
        try {
            step();
        } catch (const base::RuntimeError& error) {
            failure_ = error;
        }
    }
    bool failed() const { return failure_.has_value(); }
    void rethrow() const {
        if (failure_) {
            throw *failure_;
        }
    }

private:
    std::optional<base::RuntimeError> failure_;
};

QPushButton* addPreviewButton(QPrintDialog& dialog) {
    auto* buttons = dialog.findChild<QDialogButtonBox*>();
    return buttons ? buttons->addButton(QStringLiteral("A&perçu"), QDialogButtonBox::ActionRole) : nullptr;
}

void putA4Upright(QPrinter& printer) {
    printer.setPageSize(QPageSize(QPageSize::A4));
    printer.setPageOrientation(QPageLayout::Portrait);
}

std::unique_ptr<QPrinter> newPdf() {
    auto printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
    printer->setOutputFormat(QPrinter::PdfFormat);
    printer->setOutputFileName(QDir::home().filePath(QStringLiteral("compte-rendu.pdf")));
    return printer;
}

}  // namespace

std::unique_ptr<QPrinter> RealPrinters::makeStandard() const {
    if (QPrinterInfo::availablePrinterNames().isEmpty()) {
        return nullptr;
    }
    return std::make_unique<QPrinter>(QPrinter::HighResolution);
}

std::unique_ptr<ports::Printer> RealPrinters::standard() {
    auto printer = makeStandard();
    if (!printer) {
        return nullptr;
    }
    putA4Upright(*printer);
    return std::make_unique<RealPrinter>(std::move(printer), Pages::Printed);
}

std::shared_ptr<QPrinter> RealPrinters::newPrinter() const {
    std::shared_ptr<QPrinter> printer = makeStandard();
    if (!printer) {
        printer = newPdf();
    }
    putA4Upright(*printer);
    return printer;
}

void RealPrinters::choose(const Print& print) {
    const auto printer = newPrinter();
    QPrintDialog dialog(printer.get(), QApplication::activeWindow());
    dialog.setObjectName(QStringLiteral("print"));
    dialog.setOption(QAbstractPrintDialog::PrintPageRange, false);
    Boundary boundary;
    if (QPushButton* look = addPreviewButton(dialog)) {
        QObject::connect(look, &QPushButton::clicked, &dialog, [&] {
            boundary.run([&] { preview(print, &dialog); });
            if (boundary.failed()) {
                dialog.reject();
            }
        });
    }
    const bool accepted = dialog.exec() == QDialog::Accepted;
    boundary.rethrow();
    if (accepted) {
        settle(*printer);
        RealPrinter chosen(printer, Pages::Printed);
        print(chosen);
    }
}

// Shows the pages that `print` would put on the standard printer's paper.
void RealPrinters::preview(const Print& print, QWidget* above) const {
    const auto printer = newPrinter();
    QPrintPreviewDialog dialog(printer.get(), above);
    dialog.setObjectName(QStringLiteral("preview"));
    dialog.setWindowTitle(QStringLiteral("Aperçu avant impression"));
    Boundary boundary;
    QObject::connect(&dialog, &QPrintPreviewDialog::paintRequested, &dialog, [&](QPrinter*) {
        boundary.run([&] {
            RealPrinter paper(printer, Pages::Seen);
            print(paper);
        });
    });
    dialog.exec();
    boundary.rethrow();
}

}  // namespace qt
