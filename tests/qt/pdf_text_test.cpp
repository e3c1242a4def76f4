#include "qt/pdf_text.h"

#include <gtest/gtest.h>
#include <sys/resource.h>

#include <QFile>
#include <QGlyphRun>
#include <QImage>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTextLayout>
#include <csignal>

#include "base/errors.h"
#include "printed_pages.h"

namespace qt {
namespace {

constexpr QSizeF kA6{298, 420};

// Hides a part of an old outline font as its format has it: four bytes to skip come first.
QByteArray hidden(const QByteArray& plain, quint16 key) {
    QByteArray bytes;
    for (const char c : "\1\2\3\4" + plain) {
        const auto byte = static_cast<uchar>(static_cast<uchar>(c) ^ (key >> 8));
        key = static_cast<quint16>((byte + key) * 52845 + 22719);
        bytes.append(static_cast<char>(byte));
    }
    return bytes;
}

// A font of one letter, a square of its own size, in a format without tables.
QByteArray squareFont() {
    constexpr quint16 kFontKey = 55665;
    constexpr quint16 kLetterKey = 4330;
    // 0 1000 hsbw, 0 0 rmoveto, 1000 hlineto, 1000 vlineto, -1000 hlineto, closepath, endchar
    const QByteArray thousand = "\xfa\x7c";
    const QByteArray letter =
        hidden("\x8b" + thousand + "\x0d\x8b\x8b\x15" + thousand + "\x06" + thousand + "\x07" + "\xfe\x7c\x06\x09\x0e",
               kLetterKey);
    const QByteArray size = QByteArray::number(letter.size());
    const QByteArray inside =
        "dup /Private 8 dict dup begin /RD {string currentfile exch readstring pop} def\n"
        "/ND {def} def /NP {put} def /BlueValues [] def /password 5839 def\n"
        "2 index /CharStrings 2 dict dup begin\n/.notdef " +
        size + " RD " + letter + " ND\n/A " + size + " RD " + letter +
        " ND\nend end put dup /FontName get exch definefont pop mark currentfile closefile\n";
    return "%!PS-AdobeFont-1.0: Square\n11 dict begin /FontType 1 def /FontMatrix [0.001 0 0 0.001 0 0] def\n"
           "/FontName /Square def /FontBBox {0 0 1000 1000} def /PaintType 0 def\n"
           "/Encoding 256 array 0 1 255 {1 index exch /.notdef put} for dup 65 /A put def\n"
           "currentdict end currentfile eexec\n" +
           hidden(inside, kFontKey).toHex() + "\n" + QByteArray(512, '0') + "\ncleartomark\n";
}

class PdfTextFile : public ::testing::Test {
protected:
    static QString run(const QString& program, const QStringList& arguments) {
        QProcess process;
        process.start(program, arguments);
        return process.waitForFinished() ? QString::fromUtf8(process.readAllStandardOutput()) : QString();
    }
    QString path() const { return folder_.filePath("texte.pdf"); }
    PdfText open(const PdfSheet& sheet = {.size = kA6, .origin = {}}) const { return {path(), "Bilan é", sheet}; }

    static QFont arial(double twips) {
        QFont font("Arial");
        font.setPixelSize(static_cast<int>(twips));
        font.setHintingPreference(QFont::PreferNoHinting);
        return font;
    }
    /// One line whose upper left corner lies there, in twips.
    static void write(PdfText& pdf, const QString& text, const QFont& font, QPointF at,
                      const QColor& color = Qt::black) {
        QTextLayout layout(text, font);
        layout.beginLayout();
        layout.createLine().setLineWidth(20000);
        layout.endLayout();
        for (const QGlyphRun& glyphs : layout.glyphRuns()) {
            pdf.draw(glyphs, at, color);
        }
    }
    /// The first page at 72 dots an inch: a point a pixel.
    QImage picture() const {
        const QString name = folder_.filePath("page");
        run("pdftoppm", {"-r", "72", "-png", "-singlefile", path(), name});
        return QImage(name + ".png").convertToFormat(QImage::Format_RGB32);
    }
    static QRect inked(const QImage& page, int limit = 128) {
        QRect box;
        for (int y = 0; y < page.height(); ++y) {
            for (int x = 0; x < page.width(); ++x) {
                if (qGray(page.pixel(x, y)) < limit) {
                    box |= QRect(x, y, 1, 1);
                }
            }
        }
        return box;
    }
    static bool isDarkAlong(const QImage& page, int y, int from, int to) {
        for (int x = from; x < to; ++x) {
            if (qGray(page.pixel(x, y)) > 128) {
                return false;
            }
        }
        return true;
    }

    QTemporaryDir folder_;
};

TEST_F(PdfTextFile, HasItsTitleItsSheetAndItsPages) {
    PdfText pdf = open();
    write(pdf, "un", arial(240), {400, 400});
    pdf.newPage();
    write(pdf, "deux", arial(240), {400, 400});
    pdf.end();
    const QString info = run("pdfinfo", {path()});
    EXPECT_TRUE(info.contains(QRegularExpression("Title: +Bilan é"))) << info.toStdString();
    EXPECT_TRUE(info.contains(QRegularExpression("Pages: +2")));
    EXPECT_TRUE(info.contains(QRegularExpression("Page size: +298 x 420 pts")));
    const auto pages = readPdf(path());
    ASSERT_EQ(pages.size(), 2u);
    EXPECT_EQ(pages[0].lines, QStringList({"un"}));
    EXPECT_EQ(pages[1].lines, QStringList({"deux"}));
}

TEST_F(PdfTextFile, CountsItsTwipsFromTheOriginOfTheJob) {
    PdfText pdf = open({.size = kA6, .origin = {30, 40}});
    write(pdf, "mot", arial(240), {400, 1000});
    pdf.end();
    // 400 and 1000 twips are 20 and 50 points; the letters go from the ascent, 1854 of 2048, down.
    const auto pages = readPdf(path());
    ASSERT_EQ(pages[0].words.size(), 1u);
    EXPECT_NEAR(pages[0].words[0].left(), 50, 0.1);
    EXPECT_NEAR(pages[0].words[0].top(), 90, 0.1);
    EXPECT_NEAR(pages[0].words[0].height(), 12 * 2288 / 2048.0, 0.05);
}

TEST_F(PdfTextFile, HoldsTheFourStylesOfItsFontOnceWhateverTheirSize) {
    PdfText pdf = open();
    for (int i = 0; i < 4; ++i) {
        QFont font = arial(240);
        font.setBold(i & 1);
        font.setItalic(i & 2);
        write(pdf, "Œuf", font, {400, 400 + 600.0 * i});
        font.setPixelSize(400);
        write(pdf, "fil", font, {2000, 400 + 600.0 * i});
    }
    pdf.end();
    const QString fonts = run("pdffonts", {path()});
    const QStringList lines = fonts.split(u'\n', Qt::SkipEmptyParts).mid(2);
    EXPECT_EQ(lines.size(), 4) << fonts.toStdString();
    for (const char* style :
         {"LiberationSans ", "LiberationSans-Bold ", "LiberationSans-Italic ", "LiberationSans-BoldItalic "}) {
        EXPECT_EQ(fonts.count(style), 1) << style;
    }
    // Embedded, a subset, with the table that makes it text.
    EXPECT_EQ(fonts.count(QRegularExpression("yes +yes +yes")), 4) << fonts.toStdString();
    EXPECT_EQ(readPdf(path())[0].words.size(), 8u);
    EXPECT_EQ(run("pdftotext", {"-raw", path(), "-"}).count("Œuf"), 4);
}

TEST_F(PdfTextFile, SlantsTheLettersOfAFontThatHasNoItalics) {
    const auto widthOfI = [this](bool italic) {
        QFont font("DejaVu Sans");
        font.setPixelSize(2000);
        font.setItalic(italic);
        PdfText pdf = open();
        write(pdf, "l", font, {400, 400});
        pdf.end();
        return inked(picture()).width();
    };
    // A letter of 76 points that leans by a fifth or so of its height.
    EXPECT_GT(widthOfI(true), widthOfI(false) + 10);
}

TEST_F(PdfTextFile, KeepsLettersThatItsFontLacks) {
    PdfText pdf = open();
    write(pdf, "3ᵉ → ≥ 5 ½", arial(240), {400, 400});
    pdf.end();
    EXPECT_EQ(readPdf(path())[0].lines, QStringList({QString("3ᵉ → ≥ 5 ½").normalized(QString::NormalizationForm_KC)}));
}

TEST_F(PdfTextFile, IsWrittenInItsColours) {
    PdfText pdf = open();
    write(pdf, "rouge", arial(800), {400, 400}, QColor(255, 0, 0));
    write(pdf, "bleu", arial(800), {400, 2400}, QColor(0, 0, 255));
    pdf.end();
    const QImage page = picture();
    const auto holds = [&](QRgb color, QRect where) {
        for (int y = where.top(); y < where.bottom(); ++y) {
            for (int x = where.left(); x < where.right(); ++x) {
                if (page.pixel(x, y) == color) {
                    return true;
                }
            }
        }
        return false;
    };
    const QRect upper(0, 0, 298, 100);
    const QRect lower(0, 120, 298, 100);
    EXPECT_TRUE(holds(qRgb(255, 0, 0), upper));
    EXPECT_FALSE(holds(qRgb(0, 0, 255), upper));
    EXPECT_TRUE(holds(qRgb(0, 0, 255), lower));
    EXPECT_FALSE(holds(qRgb(255, 0, 0), lower));
}

TEST_F(PdfTextFile, IsGreyOnAGreyPrinter) {
    PdfText pdf = open({.size = kA6, .origin = {}, .grey = true});
    write(pdf, "rouge", arial(800), {400, 400}, QColor(255, 0, 0));
    pdf.end();
    const QImage page = picture();
    EXPECT_FALSE(inked(page).isEmpty());
    EXPECT_TRUE(page.isGrayscale());
}

TEST_F(PdfTextFile, IsUnderlinedFromItsFirstLetterToItsLast) {
    PdfText plain = open();
    write(plain, "mmmm", arial(800), {400, 400});
    plain.end();
    const QRect letters = inked(picture());
    PdfText pdf = open();
    QFont font = arial(800);
    font.setUnderline(true);
    write(pdf, "mmmm", font, {400, 400});
    pdf.end();
    const QImage page = picture();
    const QRect both = inked(page);
    EXPECT_GT(both.bottom(), letters.bottom());
    EXPECT_TRUE(isDarkAlong(page, both.bottom(), letters.left() + 1, letters.right()));
}

TEST_F(PdfTextFile, IsStruckThroughItsLetters) {
    PdfText pdf = open();
    QFont font = arial(800);
    font.setStrikeOut(true);
    write(pdf, "xxxx", font, {400, 400});
    pdf.end();
    const QImage page = picture();
    const QRect box = inked(page);
    int dark = 0;
    for (int y = box.top() + 1; y < box.bottom(); ++y) {
        dark += isDarkAlong(page, y, box.left() + 1, box.right());
    }
    EXPECT_GE(dark, 1);
    EXPECT_LE(dark, box.height() / 3);
}

TEST_F(PdfTextFile, DrawsTheLettersOfAFontThatCanNotBeEmbedded) {
    const QRawFont square(squareFont(), 800);
    ASSERT_TRUE(square.isValid());
    QGlyphRun glyphs;
    glyphs.setRawFont(square);
    glyphs.setGlyphIndexes(square.glyphIndexesForString("A"));
    glyphs.setPositions({QPointF(0, 800)});
    PdfText pdf = open();
    pdf.draw(glyphs, {400, 600}, Qt::black);
    pdf.end();
    // 800 twips are 40 points; the square stands on its line, 1400 twips down the sheet.
    EXPECT_EQ(inked(picture()), QRect(20, 30, 40, 40));
}

TEST_F(PdfTextFile, TakesAnUnderlineWithoutLetters) {
    QGlyphRun glyphs;
    glyphs.setRawFont(QRawFont::fromFont(arial(240)));
    glyphs.setUnderline(true);
    PdfText pdf = open();
    pdf.draw(glyphs, {400, 400}, Qt::black);
    pdf.end();
    EXPECT_TRUE(inked(picture()).isEmpty());
}

TEST_F(PdfTextFile, LeavesTheFileOfTheOneBeforeUntilItEnds) {
    PdfText first = open();
    write(first, "ancien", arial(240), {400, 400});
    first.end();
    {
        PdfText second = open();
        write(second, "perdu", arial(240), {400, 400});
    }
    EXPECT_EQ(readPdf(path())[0].lines, QStringList({"ancien"}));
}

TEST_F(PdfTextFile, TellsThatTheDiskIsFull) {
    PdfText pdf = open();
    write(pdf, "trop long", arial(240), {400, 400});
    std::signal(SIGXFSZ, SIG_IGN);
    rlimit before{};
    getrlimit(RLIMIT_FSIZE, &before);
    const rlimit small{1000, before.rlim_max};
    setrlimit(RLIMIT_FSIZE, &small);
    EXPECT_THROW(pdf.end(), base::RuntimeError);
    setrlimit(RLIMIT_FSIZE, &before);
    EXPECT_FALSE(QFile::exists(path()));
}

}  // namespace
}  // namespace qt
