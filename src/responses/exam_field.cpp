#include "responses/exam_field.h"

#include "base/numbers.h"

namespace responses {
namespace {

QString lineOf(int value, const Offer& offer) {
    return base::decimalText(static_cast<double>(value) / offer.parts);
}

}  // namespace

QStringList numberLines(const Offer& offer) {
    QStringList lines;
    for (int value = offer.first; value <= offer.last; ++value) {
        lines << lineOf(value, offer);
    }
    return lines;
}

QString typicalLine(const Offer& offer) {
    return lineOf(offer.typical, offer);
}

}  // namespace responses
