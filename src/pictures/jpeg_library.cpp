#include "pictures/jpeg_library.h"

#include "base/errors.h"
#include "pictures/file_writing.h"
#include "pictures/jpeg.h"

namespace pictures::mIntelJPEGLibrary {
namespace {

const QString kNotStarted = QStringLiteral("Failed to initialise the IJL library: ");
const QString kNotSaved = QStringLiteral("Failed to save to JPG ");

enum class Refusal { Encoder = -1, File = -2 };

[[noreturn]] void fail(const QString& what, Refusal refusal) {
    throw base::RuntimeError(base::ErrorNumber::JpegSave, what + QString::number(static_cast<int>(refusal)));
}

}  // namespace

bool SaveJPG(const cDIBSection& bitmap, const QString& file, int quality) {
    const JpegEncoder encoder;
    if (!encoder.ready()) {
        fail(kNotStarted, Refusal::Encoder);
    }
    const JpegBytes jpeg = encoder.encode(
        {bitmap.DIBSectionBitsPtr(), bitmap.Width(), bitmap.Height(), bitmap.BytesPerScanLine()}, quality);
    if (jpeg.empty()) {
        fail(kNotSaved, Refusal::Encoder);
    }
    if (!writeInto(file, jpeg.bytes())) {
        fail(kNotSaved, Refusal::File);
    }
    return true;
}

}  // namespace pictures::mIntelJPEGLibrary
