#include "pictures/frm_cpr.h"

#include <gtest/gtest.h>

#include "pictures/picture_file.h"
#include "pictures/picture_windows.h"

namespace pictures {
namespace {

class Compression : public PictureWindows {
protected:
    FrmCpr& dialog() {
        press(ready("a.jpg", 1).Command5);
        return desk().at<FrmCpr>();
    }
    /// The bytes of the file that a quality text makes.
    QByteArray savedWith(const QString& quality) {
        FrmCpr& form = dialog();
        form.TxtQuality.setText(quality);
        press(form.Command3);
        return bytesOf(path("a.jpg"));
    }
};

TEST_F(Compression, StartsAtNinety) {
    const FrmCpr& form = dialog();
    EXPECT_EQ(form.HScroll1.value(), 90);
    EXPECT_EQ(form.HScroll1.range().min, 1);
    EXPECT_EQ(form.HScroll1.range().max, 100);
    EXPECT_EQ(form.TxtQuality.text(), "90");
    EXPECT_FALSE(form.exclusive());
}

TEST_F(Compression, HasTheCaptionsOfItsScaleAndItsButtons) {
    const FrmCpr& form = dialog();
    EXPECT_EQ(form.title(), "Compression JPG");
    EXPECT_EQ(form.Label5.text(), "Réglage du taux de compression");
    EXPECT_EQ(form.Label4.text(), "Haute qualité");
    EXPECT_EQ(form.Label3.text(), "Basse qualité");
    EXPECT_EQ(form.Label2.text(), "Faible compression");
    EXPECT_EQ(form.Label1.text(), "Forte compression");
    EXPECT_EQ(form.Command3.text(), "&Enregistrer");
    EXPECT_EQ(form.Command2.text(), "&Annuler");
}

TEST_F(Compression, TheBarWritesTheTextAndTheTextDoesntMoveTheBar) {
    FrmCpr& form = dialog();
    form.HScroll1.setValue(35);
    EXPECT_EQ(form.TxtQuality.text(), "35");
    form.TxtQuality.setText("60");
    EXPECT_EQ(form.HScroll1.value(), 35);
}

TEST_F(Compression, SavesGoesAndOffersThePictureToTheAlbum) {
    press(dialog().Command3);
    EXPECT_EQ(loadPicture(path("a.jpg")).size(), QSize(72, 58));
    EXPECT_EQ(desk().peek("FrmCpr"), nullptr);
    EXPECT_EQ(world_.boxes.asked, QStringList({kToAlbum}));
    EXPECT_EQ(world_.boxes.askings.last().title, "Pelorine ");
    EXPECT_EQ(world_.boxes.askings.last().defaultAnswer, ports::DefaultAnswer::No);
    EXPECT_FALSE(shown("Form20"));
}

TEST_F(Compression, YesOpensTheAlbumWithThePicture) {
    FrmCpr& form = dialog();
    world_.boxes.answers = {true};
    press(form.Command3);
    EXPECT_TRUE(shown("Form20"));
    EXPECT_EQ(album().LblFilename.text(), "a.jpg");
    EXPECT_EQ(album().LblPath.text(), path("a.jpg"));
    EXPECT_EQ(album().ImgCharge.picture().size(), QSize(72, 58));
    EXPECT_TRUE(album().Label18.visible());
}

TEST_F(Compression, TheTextIsTheQuality) {
    const QByteArray low = savedWith("10");
    EXPECT_LT(low.size(), savedWith("90").size());
    EXPECT_EQ(low, savedWith(" 10 "));
    EXPECT_EQ(savedWith("75,5"), savedWith("76"));
    EXPECT_EQ(savedWith("0"), savedWith("1"));
}

TEST_F(Compression, ATextThatIsNoNumberBecomesNinety) {
    const QByteArray ninety = savedWith("90");
    for (const char* text : {"", "beaucoup", "99999999999"}) {
        EXPECT_EQ(savedWith(text), ninety) << text;
    }
    EXPECT_EQ(world_.boxes.reported, QList<int>());
}

TEST_F(Compression, ATextThatIsNoNumberIsSeenAsNinetyWhereTheSavingFails) {
    press(ready("nowhere/a.jpg", 1).Command5);
    auto& form = desk().at<FrmCpr>();
    form.TxtQuality.setText("beaucoup");
    press(form.Command3);
    EXPECT_EQ(world_.boxes.reportedTexts, QStringList({"Failed to save to JPG -2"}));
    EXPECT_EQ(form.TxtQuality.text(), "90");
}

TEST_F(Compression, AQualityThatTheEncoderRefusesIsReportedAndNothingSaved) {
    FrmCpr& form = dialog();
    form.TxtQuality.setText("500");
    press(form.Command3);
    EXPECT_EQ(world_.boxes.reported, QList<int>({26001}));
    EXPECT_EQ(world_.boxes.reportedTexts, QStringList({"Failed to save to JPG -1"}));
    EXPECT_FALSE(QFile::exists(path("a.jpg")));
    EXPECT_TRUE(shown("FrmCpr"));
    EXPECT_EQ(world_.boxes.asked, QStringList());
}

TEST_F(Compression, CancelLeavesNoFile) {
    press(dialog().Command2);
    EXPECT_FALSE(QFile::exists(path("a.jpg")));
    EXPECT_EQ(desk().peek("FrmCpr"), nullptr);
    EXPECT_EQ(world_.boxes.asked, QStringList());
}

TEST_F(Compression, WithThePictureClosedMeanwhileSavingIsAnError) {
    FrmCpr& form = dialog();
    press(desk().at<Form19>().Command6);
    press(form.Command3);
    EXPECT_EQ(world_.boxes.reported, QList<int>({26001}));
    EXPECT_FALSE(QFile::exists(path("a.jpg")));
}

}  // namespace
}  // namespace pictures
