#include "pictures/jpeg.h"

#include <turbojpeg.h>

#include <memory>

namespace pictures {
namespace {

constexpr int kBytesPerPixel = 3;

void close(void* handle) {
    tjDestroy(handle);
}
using Handle = std::unique_ptr<void, void (*)(void*)>;

struct Header {
    int width = 0, height = 0, sampling = 0, colors = 0;
};

const uchar* data(const QByteArray& bytes) {
    return reinterpret_cast<const uchar*>(bytes.constData());
}

// The factors come in falling order.
QSize scaledSize(const Header& header, QSize wanted) {
    QSize best(header.width, header.height);
    int count = 0;
    const tjscalingfactor* factors = tjGetScalingFactors(&count);
    for (int i = 0; i < count && !wanted.isEmpty(); ++i) {
        const QSize size(TJSCALED(header.width, factors[i]), TJSCALED(header.height, factors[i]));
        const bool enough = size.width() >= wanted.width() && size.height() >= wanted.height();
        if (enough && size.width() <= best.width() && size.height() <= best.height()) {
            best = size;
        }
    }
    return best;
}

// Bytes too many between two parts of the file cost nothing of the picture.
bool harmless(const Handle& handle) {
    return tjGetErrorCode(handle.get()) == TJERR_WARNING &&
           QByteArray(tjGetErrorStr2(handle.get())).contains("extraneous bytes");
}

}  // namespace

JpegEncoder::JpegEncoder() : handle_(tjInitCompress(), close) {}

JpegBytes JpegEncoder::encode(const PixelRows& rows, int quality) const {
    Q_ASSERT(rows.bytesPerLine >= rows.width * kBytesPerPixel);
    uchar* bytes = nullptr;
    unsigned long size = 0;
    const bool done = rows.first && ready() &&
                      tjCompress2(handle_.get(), rows.first, rows.width, rows.bytesPerLine, rows.height, TJPF_BGR,
                                  &bytes, &size, TJSAMP_420, quality, TJFLAG_ACCURATEDCT) == 0;
    return {bytes, done ? static_cast<qsizetype>(size) : 0, [](uchar* released) { tjFree(released); }};
}

DecodedJpeg decodeJpeg(const QByteArray& bytes, QSize wanted) {
    using Outcome = DecodedJpeg::Outcome;
    const Handle handle(tjInitDecompress(), close);
    Header header;
    const auto length = static_cast<unsigned long>(bytes.size());
    if (!handle || tjDecompressHeader3(handle.get(), data(bytes), length, &header.width, &header.height,
                                       &header.sampling, &header.colors) != 0) {
        return {};
    }
    if (header.colors == TJCS_CMYK || header.colors == TJCS_YCCK) {
        return {Outcome::Unsupported, {}};
    }
    const QSize size = scaledSize(header, wanted);
    QImage picture(size, QImage::Format_RGB32);
    if (picture.isNull()) {
        return {};
    }
    const int result =
        tjDecompress2(handle.get(), data(bytes), length, picture.bits(), size.width(),
                      static_cast<int>(picture.bytesPerLine()), size.height(), TJPF_BGRA, TJFLAG_ACCURATEDCT);
    const bool whole = result == 0 || harmless(handle);
    return {whole ? Outcome::Whole : Outcome::Damaged, whole ? picture : QImage()};
}

}  // namespace pictures
