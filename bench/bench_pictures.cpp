// Pictures: JPEG beside Qt's writer and the JPEG library's own program; from the grab to the wall; the live picture.

#include <sys/resource.h>

#include <QApplication>
#include <QBuffer>
#include <QElapsedTimer>
#include <QImageWriter>
#include <QProcess>
#include <QTemporaryDir>
#include <QTimer>
#include <map>
#include <random>

#include "pictures/bitmap_file.h"
#include "pictures/dib_section.h"
#include "pictures/file_writing.h"
#include "pictures/jpeg.h"
#include "pictures/jpeg_library.h"
#include "pictures/picture_file.h"
#include "qt/capture.h"
#include "qt/picture_view.h"
#include "side_by_side.h"

namespace {

constexpr int kQuality = 90;
const QString kCard = QStringLiteral(
    "videotestsrc is-live=true pattern=snow ! video/x-raw,format=YUY2,width=720,height=576,framerate=25/1");

const QTemporaryDir& folder() {
    static const QTemporaryDir all;
    return all;
}

QString fileFor(const char* name) {
    return folder().filePath(QString::fromLatin1(name));
}

/// Speckle inside a cone, as an ultrasound machine draws it; by width.
const QImage& scan(int width) {
    static std::map<int, QImage> all;
    QImage& picture = all[width];
    if (picture.isNull()) {
        const int height = width == 720 ? 576 : width * 3 / 4;
        picture = QImage(width, height, QImage::Format_RGB32);
        std::mt19937 random(7);
        for (int y = 0; y < height; ++y) {
            for (int x = 0; x < width; ++x) {
                const bool inside = qAbs(x - width / 2) < y * 3 / 4;
                const int grey = inside ? static_cast<int>(random() % 60 + random() % 60) : 0;
                picture.setPixel(x, y, qRgb(grey, grey, grey));
            }
        }
    }
    return picture;
}

int widthOf(const benchmark::State& state) {
    return static_cast<int>(state.range(0));
}

pictures::JpegBytes encode(const pictures::cDIBSection& bitmap) {
    return pictures::JpegEncoder().encode(
        {bitmap.DIBSectionBitsPtr(), bitmap.Width(), bitmap.Height(), bitmap.BytesPerScanLine()}, kQuality);
}

// ---- From a bitmap in memory to the bytes of a JPEG, as it is saved ----

void bitmapOurs(benchmark::State& state) {
    pictures::cDIBSection bitmap;
    bitmap.CreateFromPicture(scan(widthOf(state)));
    for (auto _ : state) {
        const pictures::JpegBytes bytes = encode(bitmap);
        benchmark::DoNotOptimize(bytes.bytes().data());
    }
}

void writeByQt(benchmark::State& state, const QImage& picture) {
    for (auto _ : state) {
        QByteArray bytes;
        QBuffer buffer(&bytes);
        buffer.open(QIODevice::WriteOnly);
        QImageWriter writer(&buffer, "jpg");
        writer.setQuality(kQuality);
        writer.write(picture);
        benchmark::DoNotOptimize(bytes.data());
    }
}

void bitmapQt(benchmark::State& state) {
    writeByQt(state, scan(widthOf(state)).convertToFormat(QImage::Format_BGR888));
}

// ---- The same from the picture on the window, of 32 bits: the bitmap is made first ----

void jpegOurs(benchmark::State& state) {
    const QImage& picture = scan(widthOf(state));
    for (auto _ : state) {
        pictures::cDIBSection bitmap;
        bitmap.CreateFromPicture(picture);
        const pictures::JpegBytes bytes = encode(bitmap);
        benchmark::DoNotOptimize(bytes.bytes().data());
    }
}

void jpegQt(benchmark::State& state) {
    writeByQt(state, scan(widthOf(state)));
}

// ---- From the picture to a file ----

void fileOurs(benchmark::State& state) {
    const QImage& picture = scan(widthOf(state));
    for (auto _ : state) {
        pictures::cDIBSection bitmap;
        bitmap.CreateFromPicture(picture);
        if (!pictures::writePlainly(fileFor("ours.jpg"), encode(bitmap).bytes())) {
            state.SkipWithError("the file can't be written");
        }
    }
}

void fileByProgram(benchmark::State& state) {
    const QString source = fileFor("source.bmp");
    pictures::saveSlot(scan(widthOf(state)), source);
    const QStringList arguments{"-quality", QString::number(kQuality), "-outfile", fileFor("bare.jpg"), source};
    for (auto _ : state) {
        if (QProcess::execute(QStringLiteral("cjpeg"), arguments) != 0) {
            state.SkipWithError("cjpeg failed or isn't here: apt install libjpeg-turbo-progs");
            break;
        }
    }
}

// The whole of the save, over a file that is there: with the second copy and both flushes to the disk.
void save(benchmark::State& state) {
    pictures::cDIBSection bitmap;
    bitmap.CreateFromPicture(scan(720));
    for (auto _ : state) {
        pictures::mIntelJPEGLibrary::SaveJPG(bitmap, fileFor("kept.jpg"), kQuality);
    }
}

// ---- One press of the button ----

void grabToFile(benchmark::State& state) {
    qt::Capture capture([](const QImage&) {});
    if (!capture.start(kCard) || capture.grab().isNull()) {
        state.SkipWithError("no picture");
    }
    for (auto _ : state) {
        pictures::saveSlot(capture.grab(), fileFor("slot.bmp"));
        const QImage back = pictures::loadPicture(fileFor("slot.bmp"));
        benchmark::DoNotOptimize(back.constBits());
    }
}

// ---- The live picture ----

double processorSeconds() {
    rusage usage{};
    ::getrusage(RUSAGE_SELF, &usage);
    const auto seconds = [](const timeval& time) { return static_cast<double>(time.tv_sec) + time.tv_usec / 1e6; };
    return seconds(usage.ru_utime) + seconds(usage.ru_stime);
}

/// Shows the live picture for a while: what it takes of one core, the test source's own work included.
void livePicture(benchmark::State& state) {
    constexpr int kMilliseconds = 6000;
    qt::PictureView view({[] { return false; }, [] { return false; }, [] {}, [] {}});
    view.setFixedSize(404, 324);
    view.setQuick(true);
    view.show();
    int frames = 0;
    qt::Capture capture([&](const QImage& frame) {
        view.setPicture(frame);
        frames += !frame.isNull();
    });
    if (!capture.start(kCard) || capture.grab().isNull()) {
        state.SkipWithError("no source");
        return;
    }
    const double before = processorSeconds();
    QElapsedTimer time;
    time.start();
    for (auto _ : state) {
        QTimer::singleShot(kMilliseconds, qApp, &QApplication::quit);
        QApplication::exec();
    }
    const double seconds = static_cast<double>(time.elapsed()) / 1000;
    state.counters["pictures_a_second"] = frames / seconds;
    state.counters["percent"] = (processorSeconds() - before) / seconds * 100;
    state.counters["percent_at_most"] = 15;
}

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    side_by_side::pair("jpeg of a bitmap, Qt", bitmapOurs, bitmapQt, 1.0, {720, 4000});
    side_by_side::pair("with making the bitmap, Qt", jpegOurs, jpegQt, {}, {720, 4000});
    side_by_side::pair("jpeg file, cjpeg", fileOurs, fileByProgram, 1.0, {720, 4000});
    side_by_side::withinByTheClock("jpeg kept over the old one", save, 100);
    side_by_side::withinByTheClock("grab to file and wall", grabToFile, 10);
    side_by_side::once("live picture 720x576, of one core", livePicture);
    return side_by_side::run(argc, argv);
}
