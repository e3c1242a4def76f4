#include "reports/twips.h"

#include <QAbstractTextDocumentLayout>
#include <QImage>
#include <QTextDocument>
#include <QTextOption>
#include <limits>

#include "base/errors.h"
#include "base/numbers.h"

namespace reports {
namespace {

// Half an inch. The layout scales it from a screen of 96 an inch.
constexpr double kTabStop = 48;

/// A sheet that nothing is ever painted on; it only tells how long an inch is.
class TwipSheet final : public QPaintDevice {
public:
    QPaintEngine* paintEngine() const override { return image_.paintEngine(); }

protected:
    int metric(PaintDeviceMetric metric) const override {
        switch (metric) {
            case PdmDpiX:
            case PdmDpiY:
            case PdmPhysicalDpiX:
            case PdmPhysicalDpiY:
                return kTwipsPerInch;
            case PdmDevicePixelRatio:
                return 1;
            case PdmDevicePixelRatioScaled:
                return static_cast<int>(devicePixelRatioFScale());
            default:
                return std::numeric_limits<std::int16_t>::max();
        }
    }

private:
    QImage image_{1, 1, QImage::Format_RGB32};
};

}  // namespace

void measureInTwips(QTextDocument& document) {
    static TwipSheet sheet;
    if (document.documentMargin() != 0) {
        document.setDocumentMargin(0);
    }
    QTextOption option = document.defaultTextOption();
    option.setTabStopDistance(kTabStop);
    document.setDefaultTextOption(option);
    // Hinting fits letters to pixels, of which there are none here; without it widths are exact and cost less.
    QFont font = document.defaultFont();
    font.setHintingPreference(QFont::PreferNoHinting);
    document.setDefaultFont(font);
    // A layout that is still to come gets the sheet before it lays out anything.
    const auto onSheet = [&document] { document.documentLayout()->setPaintDevice(&sheet); };
    const QMetaObject::Connection made =
        QObject::connect(&document, &QTextDocument::documentLayoutChanged, &document, onSheet);
    onSheet();
    QObject::disconnect(made);
}

std::int32_t toTwips(std::int32_t pixels, std::int32_t dpi) {
    return base::toInt32(static_cast<double>(pixels) * kTwipsPerInch / dpi);
}

std::int32_t subtract(std::int32_t from, std::int32_t value) {
    const std::int64_t difference = std::int64_t{from} - value;
    if (difference != static_cast<std::int32_t>(difference)) {
        throw base::RuntimeError(base::ErrorNumber::Overflow);
    }
    return static_cast<std::int32_t>(difference);
}

}  // namespace reports
