// The sheet that is put together in the album and printed.

#include "album_window.h"

namespace pictures {
namespace {

using Lines = QStringList;

const QColor kColors[] = {Qt::red, Qt::green, Qt::blue, Qt::cyan, Qt::magenta, Qt::yellow, Qt::gray};

class AlbumPrinting : public AlbumWindow {
protected:
    // Puts so many pictures on the sheet, each of a colour of its own.
    void putOnSheet(int count) {
        for (int i = 0; i < count; ++i) {
            form().LblPath.setText(put(QStringLiteral("p%1.bmp").arg(i), kColors[i]));
            click(form().CmdImpr);
        }
    }
    std::vector<forms::Place> shownPlaces() {
        std::vector<forms::Place> places;
        for (int i = 1; i <= 6; ++i) {
            if (form().ImgImp(i).visible()) {
                places.push_back(*form().ImgImp(i).place());
            }
        }
        return places;
    }
    // The colours of the pictures in the preview, by their number among the added ones; "-" for an empty place.
    QString preview() {
        Lines seen;
        for (int i = 1; i <= 6; ++i) {
            const QImage& picture = form().ImgImp(i).picture();
            seen << (picture.isNull() ? QStringLiteral("-") : QString::number(numberOf(picture)));
        }
        return seen.join(u' ');
    }
    static std::ptrdiff_t numberOf(const QImage& picture) {
        return std::ranges::find(kColors, picture.pixelColor(0, 0)) - kColors;
    }
    // Where a colour lies on the paper, in millimetres.
    QRect onPaper(const QColor& color) {
        QRect found;
        for (int y = 0; y < printers_.paper.height(); ++y) {
            const auto* row = reinterpret_cast<const QRgb*>(printers_.paper.constScanLine(y));
            for (int x = 0; x < printers_.paper.width(); ++x) {
                if (row[x] == color.rgb()) {
                    found |= QRect(x, y, 1, 1);
                }
            }
        }
        const int scale = PaperPrinters::kPixelsPerMillimetre;
        EXPECT_EQ(found.left() % scale + found.top() % scale + found.width() % scale + found.height() % scale, 0);
        return {found.left() / scale, found.top() / scale, found.width() / scale, found.height() / scale};
    }
    std::vector<QRect> printed(int count) {
        form();
        putOnSheet(count);
        click(form().CmdImp);
        std::vector<QRect> places;
        for (int i = 0; i < count; ++i) {
            places.push_back(onPaper(kColors[i]));
        }
        return places;
    }
    // The upper end of what is dark on the paper between two heights in millimetres, or -1.
    int inkBetween(int from, int to) {
        for (int y = from * PaperPrinters::kPixelsPerMillimetre; y < to * PaperPrinters::kPixelsPerMillimetre; ++y) {
            for (int x = 0; x < printers_.paper.width(); ++x) {
                if (qGray(printers_.paper.pixel(x, y)) < 64) {
                    return y / PaperPrinters::kPixelsPerMillimetre;
                }
            }
        }
        return -1;
    }
};

using Places = std::vector<forms::Place>;
using Rects = std::vector<QRect>;

TEST_F(AlbumPrinting, OpensTheSheetInThePlaceOfThePictureInHand) {
    form();
    putOnSheet(1);
    EXPECT_TRUE(form().PctImp.visible());
    for (const forms::Control* hidden : std::initializer_list<forms::Control*>{
             &form().Frame2, &form().CmdOuvrir, &form().CmdAjouter, &form().LblFilename, &form().Label4}) {
        EXPECT_FALSE(hidden->visible()) << hidden->label().toStdString();
    }
    EXPECT_EQ(form().focused(), &form().TxtImp);
}

TEST_F(AlbumPrinting, ArrangesThePreviewByTheNumberOfPictures) {
    form();
    putOnSheet(1);
    EXPECT_EQ(shownPlaces(), Places({{580, 960, 2295, 1935}}));
    putOnSheet(1);
    EXPECT_EQ(shownPlaces(), Places({{960, 720, 1575, 1335}, {960, 2520, 1575, 1335}}));
    const Places four{
        {240, 840, 1455, 1215}, {1800, 840, 1455, 1215}, {240, 2400, 1455, 1215}, {1800, 2400, 1455, 1215}};
    putOnSheet(1);
    EXPECT_EQ(shownPlaces(), four);
    putOnSheet(1);
    EXPECT_EQ(shownPlaces(), four);
    const Places six{{120, 480, 1455, 1095},   {1800, 480, 1455, 1095}, {120, 1800, 1455, 1095},
                     {1800, 1800, 1455, 1095}, {120, 3120, 1455, 1095}, {1800, 3120, 1455, 1095}};
    putOnSheet(1);
    EXPECT_EQ(shownPlaces(), six);
    putOnSheet(1);
    EXPECT_EQ(shownPlaces(), six);
}

TEST_F(AlbumPrinting, ShowsThePicturesInTheOrderOfTheClicks) {
    form();
    putOnSheet(3);
    EXPECT_EQ(preview(), "0 1 2 - - -");
    EXPECT_TRUE(form().ImgImp(4).visible());
}

TEST_F(AlbumPrinting, ThrowsTheSheetAwayAtTheSeventhCall) {
    form();
    putOnSheet(6);
    EXPECT_EQ(preview(), "0 1 2 3 4 5");
    putOnSheet(1);
    EXPECT_EQ(preview(), "- - - - - -");
    EXPECT_TRUE(form().PctImp.visible());
    click(form().CmdImp);
    EXPECT_EQ(printers_.begun, 0);
    putOnSheet(2);
    EXPECT_EQ(preview(), "0 1 - - - -");
}

TEST_F(AlbumPrinting, CountsACallWhoseFileCannotBeRead) {
    form().LblPath.setText(path("lost.bmp"));
    click(form().CmdImpr);
    EXPECT_EQ(reported(), QList<int>({53}));
    EXPECT_TRUE(form().PctImp.visible());
    putOnSheet(5);
    EXPECT_EQ(preview(), "0 1 2 3 4 -");
    putOnSheet(1);
    EXPECT_EQ(preview(), "- - - - - -");
}

TEST_F(AlbumPrinting, ClosesTheSheetAndEmptiesIt) {
    form();
    putOnSheet(2);
    click(form().CmdFerm);
    EXPECT_FALSE(form().PctImp.visible());
    EXPECT_EQ(preview(), "- - - - - -");
    for (const forms::Control* shown : std::initializer_list<forms::Control*>{
             &form().Frame2, &form().CmdOuvrir, &form().CmdAjouter, &form().LblFilename, &form().Label4}) {
        EXPECT_TRUE(shown->visible()) << shown->label().toStdString();
    }
    putOnSheet(6);
    EXPECT_EQ(preview(), "0 1 2 3 4 5");
}

TEST_F(AlbumPrinting, PrintsOnePictureLow) {
    EXPECT_EQ(printed(1), Rects({{25, 60, 155, 115}}));
}

TEST_F(AlbumPrinting, PrintsTwoPicturesOneBelowTheOther) {
    EXPECT_EQ(printed(2), Rects({{25, 30, 155, 115}, {25, 152, 155, 115}}));
}

TEST_F(AlbumPrinting, PrintsThreePicturesAndEndsTheDocument) {
    EXPECT_EQ(printed(3), Rects({{5, 70, 95, 70}, {105, 70, 95, 70}, {5, 155, 95, 70}}));
    EXPECT_EQ(printers_.ended, 1);
    EXPECT_EQ(reported(), QList<int>());
}

TEST_F(AlbumPrinting, PrintsFourPictures) {
    EXPECT_EQ(printed(4), Rects({{5, 70, 95, 70}, {105, 70, 95, 70}, {5, 155, 95, 70}, {105, 155, 95, 70}}));
}

TEST_F(AlbumPrinting, PrintsFivePicturesAndEndsTheDocument) {
    EXPECT_EQ(printed(5),
              Rects({{5, 30, 95, 70}, {105, 30, 95, 70}, {5, 112, 95, 70}, {105, 112, 95, 70}, {5, 192, 95, 70}}));
    EXPECT_EQ(printers_.ended, 1);
}

TEST_F(AlbumPrinting, PrintsSixPictures) {
    EXPECT_EQ(printed(6), Rects({{5, 30, 95, 70},
                                 {105, 30, 95, 70},
                                 {5, 112, 95, 70},
                                 {105, 112, 95, 70},
                                 {5, 192, 95, 70},
                                 {105, 192, 95, 70}}));
}

TEST_F(AlbumPrinting, StretchesAPictureOfAnotherShape) {
    form().LblPath.setText(put("tall.bmp", Qt::red, {30, 300}));
    click(form().CmdImpr);
    click(form().CmdImp);
    EXPECT_EQ(onPaper(Qt::red), QRect(25, 60, 155, 115));
}

TEST_F(AlbumPrinting, HasTheHeadingThePatientTheDateTheCommentAndTheFoot) {
    form().TxtNom.setText("D'ALMEIDA");
    form().TxtPrenom.setText("Inès");
    form().TxtDate.setText("12/03/2002");
    form().TxtImp.setText("Coupe axiale");
    EXPECT_EQ(form().ENTETE(),
              std::vector<SheetLine>({{"", 10, false},
                                      {"CABINET DU PARC", 20, true},
                                      {"", 20, true},
                                      {"D'ALMEIDA Inès", 20, true},
                                      {"12/03/2002", 20, false},
                                      {"Coupe axiale", 20, false},
                                      {"MORVALT" + QString(210, u' ') + "Pelorine", 20, false, 275.0}}));
}

TEST_F(AlbumPrinting, LoadsTheCaptureWindowForItsHeading) {
    form();
    EXPECT_EQ(world_.desk.peek("Form19"), nullptr);
    putOnSheet(1);
    click(form().CmdImp);
    const forms::Form* capture = world_.desk.peek("Form19");
    ASSERT_NE(capture, nullptr);
    EXPECT_FALSE(capture->shown());
}

TEST_F(AlbumPrinting, WritesTheHeadAboveASinglePictureAndTheFootBelow) {
    printed(1);
    EXPECT_GE(inkBetween(0, 15), 4);
    EXPECT_GE(inkBetween(275, 290), 275);
    EXPECT_EQ(inkBetween(180, 274), -1);
}

TEST_F(AlbumPrinting, LaysThePicturesOverTheText) {
    form().TxtNom.setText(QString(30, u'M'));
    form().TxtImp.setText(QString(30, u'M'));
    printed(5);
    const int scale = PaperPrinters::kPixelsPerMillimetre;
    EXPECT_GE(inkBetween(0, 30), 0);
    QImage first = printers_.paper.copy(5 * scale, 30 * scale, 95 * scale, 70 * scale);
    QImage red = first;
    red.fill(kColors[0]);
    EXPECT_EQ(first, red);
}

TEST_F(AlbumPrinting, KeepsTheSheetAfterPrinting) {
    printed(2);
    click(form().CmdImp);
    EXPECT_EQ(printers_.begun, 2);
    EXPECT_EQ(printers_.ended, 2);
    EXPECT_EQ(preview(), "0 1 - - - -");
}

TEST_F(AlbumPrinting, PrintsNothingFromAnEmptySheet) {
    click(form().Imprim);
    EXPECT_EQ(printers_.dialogs, 1);
    form().Imprime();
    EXPECT_EQ(printers_.begun, 0);
    EXPECT_EQ(said(), Lines());
    EXPECT_EQ(reported(), QList<int>());
}

TEST_F(AlbumPrinting, AsksForThePrinterFromTheMenuOnly) {
    printed(1);
    EXPECT_EQ(printers_.dialogs, 0);
    click(form().Imprim);
    EXPECT_EQ(printers_.dialogs, 1);
    EXPECT_EQ(printers_.begun, 2);
    printers_.accepts = false;
    click(form().Imprim);
    EXPECT_EQ(printers_.begun, 2);
    EXPECT_EQ(reported(), QList<int>());
}

TEST_F(AlbumPrinting, ReportsAMachineWithoutAPrinter) {
    printers_.there = false;
    form();
    putOnSheet(1);
    click(form().CmdImp);
    EXPECT_EQ(reported(), QList<int>({57}));
}

}  // namespace
}  // namespace pictures
