#include "pictures/frm_cpr.h"

#include "base/numbers.h"
#include "forms/desk.h"
#include "pictures/dib_section.h"
#include "pictures/form19.h"
#include "pictures/jpeg_library.h"

namespace pictures {
namespace {

constexpr int kUsualQuality = 90;

}  // namespace

FrmCpr::FrmCpr(ports::Surroundings& around)
    : Form(around.desk, kName.toString(), QStringLiteral("Compression JPG")), around_(around) {
    HScroll1.onChange = [this] { TxtQuality.setText(QString::number(HScroll1.value())); };
    Command3.onClick = [this] { save(); };
    Command2.onClick = [this] { unload(); };
}

std::int32_t FrmCpr::quality() {
    try {
        return base::toInt32(base::toNumber(TxtQuality.text()));
    } catch (const base::RuntimeError&) {
        TxtQuality.setText(QString::number(kUsualQuality));
        return kUsualQuality;
    }
}

void FrmCpr::save() {
    const AlbumEntry entry = desk().at<Form19>().albumEntry();
    cDIBSection bitmap;
    bitmap.CreateFromPicture(entry.picture);
    mIntelJPEGLibrary::SaveJPG(bitmap, entry.file, quality());
    unload();
    offerToAlbum(around_, entry);
}

}  // namespace pictures
