#pragma once

#include "ports/printer.h"

namespace ports {

/// Text drawn by the painter of a job, as any printer takes it.
class PaintedText final : public TextJob {
public:
    /// The geometry is that of the job's printer.
    PaintedText(std::unique_ptr<PrintJob> job, const PageGeometry& page);

    void draw(const QGlyphRun& glyphs, QPointF at, const QColor& color) override;
    void newPage() override { job_->newPage(); }
    void end() override { job_->end(); }

private:
    std::unique_ptr<PrintJob> job_;
    double scaleX_;
    double scaleY_;
};

}  // namespace ports
