#include "pictures/jpeg_library.h"

#include "base/errors.h"
#include "pictures/file_writing.h"
#include "pictures/jpeg.h"

namespace pictures::mIntelJPEGLibrary {
namespace {

enum class Refusal { Encoder = -1, File = -2 };

[[noreturn]] void fail(Refusal refusal) {
    throw base::RuntimeError(base::ErrorNumber::JpegSave,
                             QStringLiteral("Failed to save to JPG %1").arg(static_cast<int>(refusal)));
}

}  // namespace

bool SaveJPG(const cDIBSection& bitmap, const QString& file, int quality) {
    const JpegBytes jpeg =
        encodeJpeg({bitmap.DIBSectionBitsPtr(), bitmap.Width(), bitmap.Height(), bitmap.BytesPerScanLine()}, quality);
    if (jpeg.empty()) {
        fail(Refusal::Encoder);
    }
    if (!writeInto(file, jpeg.bytes())) {
        fail(Refusal::File);
    }
    return true;
}

}  // namespace pictures::mIntelJPEGLibrary
