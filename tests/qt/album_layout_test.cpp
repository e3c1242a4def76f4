#include <gtest/gtest.h>

#include <QWidget>

#include "fakes/practice_files.h"
#include "pictures/form20.h"
#include "qt/stage.h"

namespace qt {
namespace {

/// The album with the small page of its sheet open on some pictures.
class AlbumLayout : public ::testing::Test {
protected:
    AlbumLayout() {
        fakes::makeFiles(world_);
        world_.desk.add("Form20", [this] { return std::make_unique<pictures::Form20>(world_.around); });
        world_.desk.act([this] { world_.desk.show("Form20"); });
        QImage picture(40, 30, QImage::Format_RGB32);
        picture.fill(Qt::red);
        EXPECT_TRUE(picture.save(world_.folder.filePath("face.bmp")));
        form().LblPath.setText(world_.folder.filePath("face.bmp"));
    }

    pictures::Form20& form() { return world_.desk.at<pictures::Form20>(); }
    QWidget* widgetOf(const forms::Control& control) { return stage_.windowOf(form())->widgetOf(control); }
    void putOnSheet(int count) {
        for (int i = 0; i < count; ++i) {
            world_.desk.act([this] { form().CmdImpr.click(); });
        }
    }

    fakes::World world_;
    WindowStage stage_{world_.desk, [] {}};
};

// 15 twips are a pixel.
TEST_F(AlbumLayout, ShowsTheSmallPageInItsSize) {
    putOnSheet(1);
    EXPECT_TRUE(widgetOf(form().PctImp)->isVisible());
    EXPECT_EQ(widgetOf(form().PctImp)->size(), QSize(3495 / 15, 4695 / 15));
}

TEST_F(AlbumLayout, PutsThePicturesAtTheirPlacesOfTheSmallPage) {
    putOnSheet(2);
    EXPECT_EQ(widgetOf(form().ImgImp(1))->geometry(), QRect(64, 48, 105, 89));
    EXPECT_EQ(widgetOf(form().ImgImp(2))->geometry(), QRect(64, 168, 105, 89));
    EXPECT_FALSE(widgetOf(form().ImgImp(3))->isVisible());
    putOnSheet(3);
    EXPECT_EQ(widgetOf(form().ImgImp(5))->geometry(), QRect(8, 208, 97, 73));
    EXPECT_EQ(widgetOf(form().ImgImp(6))->geometry(), QRect(120, 208, 97, 73));
    EXPECT_TRUE(widgetOf(form().ImgImp(6))->isVisible());
}

TEST_F(AlbumLayout, LaysNoPictureOfTheSmallPageOverItsFields) {
    for (int count = 1; count <= 6; ++count) {
        putOnSheet(1);
        for (int i = 1; i <= 6; ++i) {
            for (const forms::Control* field :
                 std::initializer_list<forms::Control*>{&form().TxtImp, &form().CmdImp, &form().CmdFerm}) {
                const QWidget* picture = widgetOf(form().ImgImp(i));
                EXPECT_FALSE(picture->isVisible() && picture->geometry().intersects(widgetOf(*field)->geometry()))
                    << count << ": " << i << " over " << field->label().toStdString();
            }
        }
    }
}

}  // namespace
}  // namespace qt
