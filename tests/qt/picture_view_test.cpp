#include "qt/picture_view.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QSlider>
#include <QTest>
#include <QVBoxLayout>

#include "forms/desk.h"
#include "qt/binder.h"

namespace qt {
namespace {

class Wall final : public forms::Form {
public:
    explicit Wall(forms::Desk& desk) : Form(desk, QStringLiteral("Mur"), QStringLiteral("Essai")) {
        Both.onClick = [this] { told << "click"; };
        Both.onDoubleClick = [this] { told << "double"; };
        OneClick.onClick = [this] { told << "click"; };
    }
    forms::Image Both{*this, "Both"};
    forms::Image OneClick{*this, "OneClick"};
    forms::Image Still{*this, "Still"};
    forms::ScrollBar Scroll{*this, "Scroll", {.min = 1, .max = 100, .largeStep = 10}, 90};
    QStringList told;
};

class PictureViewTest : public ::testing::Test {
protected:
    PictureViewTest() {
        QApplication::setDoubleClickInterval(kInterval);
        desk_.add("Mur", [this] { return std::make_unique<Wall>(desk_); });
        form_ = static_cast<Wall*>(&desk_.at("Mur"));
        window_ = std::make_unique<FormWindow>(*form_);
        Binder bind(*window_);
        auto* all = new QVBoxLayout(window_.get());
        all->addWidget(both_ = bind.picture(form_->Both, "Cliché 1"));
        all->addWidget(one_ = bind.picture(form_->OneClick, "Cliché 2"));
        all->addWidget(still_ = bind.picture(form_->Still, "Cliché 3"));
        all->addWidget(slider_ = bind.slider(form_->Scroll, "Qualité"));
        desk_.show("Mur");
        window_->present();
        QApplication::setActiveWindow(window_.get());
    }
    ~PictureViewTest() override {
        window_->retire();
        QApplication::setDoubleClickInterval(kUsual);
    }

    void doubleClick(PictureView* view) {
        QTest::mouseClick(view, Qt::LeftButton);
        QTest::mouseDClick(view, Qt::LeftButton);
    }
    static void pause() { QTest::qWait(kInterval * 4); }

    static constexpr int kInterval = 30;
    const int kUsual = QApplication::doubleClickInterval();
    forms::Desk desk_;
    Wall* form_ = nullptr;
    std::unique_ptr<FormWindow> window_;
    PictureView* both_ = nullptr;
    PictureView* one_ = nullptr;
    PictureView* still_ = nullptr;
    QSlider* slider_ = nullptr;
};

TEST_F(PictureViewTest, AClickWaitsUntilItIsNoDoubleClick) {
    QTest::mouseClick(both_, Qt::LeftButton);
    EXPECT_TRUE(both_->waiting());
    EXPECT_EQ(form_->told, QStringList());
    pause();
    EXPECT_FALSE(both_->waiting());
    EXPECT_EQ(form_->told, QStringList({"click"}));
}

TEST_F(PictureViewTest, ADoubleClickIsNoClick) {
    doubleClick(both_);
    pause();
    EXPECT_EQ(form_->told, QStringList({"double"}));
}

TEST_F(PictureViewTest, AClickCountsAtOnceWhereTheNextOneIsElsewhere) {
    both_->setFocus();
    QTest::mouseClick(both_, Qt::LeftButton);
    one_->setFocus(Qt::MouseFocusReason);
    EXPECT_FALSE(both_->waiting());
    EXPECT_EQ(form_->told, QStringList({"click"}));
    pause();
    EXPECT_EQ(form_->told, QStringList({"click"}));
}

TEST_F(PictureViewTest, AClickWithoutADoubleClickCountsAtOnce) {
    QTest::mouseClick(one_, Qt::LeftButton);
    EXPECT_EQ(form_->told, QStringList({"click"}));
}

TEST_F(PictureViewTest, TheOtherMouseButtonAndAReleaseOutsideAreNoClick) {
    QTest::mouseClick(one_, Qt::RightButton);
    QTest::mousePress(one_, Qt::LeftButton);
    QTest::mouseRelease(one_, Qt::LeftButton, {}, QPoint(-20, -20));
    EXPECT_EQ(form_->told, QStringList());
}

TEST_F(PictureViewTest, SpaceClicksAndEnterDoubleClicks) {
    both_->setFocus();
    QTest::keyClick(both_, Qt::Key_Space);
    QTest::keyClick(both_, Qt::Key_Return);
    EXPECT_EQ(form_->told, QStringList({"click", "double"}));
}

TEST_F(PictureViewTest, TheKeyboardReachesOnlyAPictureThatDoesSomething) {
    EXPECT_EQ(both_->focusPolicy(), Qt::StrongFocus);
    EXPECT_EQ(still_->focusPolicy(), Qt::NoFocus);
}

TEST_F(PictureViewTest, ShowsThePictureInItsOwnShapeInTheMiddle) {
    QImage picture(400, 100, QImage::Format_RGB32);
    picture.fill(Qt::red);
    still_->setFixedSize(204, 204);
    form_->Still.setPicture(picture);
    const QImage seen = still_->grab().toImage();
    EXPECT_EQ(seen.pixelColor(102, 102), QColor(Qt::red));
    EXPECT_EQ(seen.pixelColor(102, 80), QColor(Qt::red));
    EXPECT_NE(seen.pixelColor(102, 70), QColor(Qt::red));
    still_->setStretched(true);
    EXPECT_EQ(still_->grab().toImage().pixelColor(102, 10), QColor(Qt::red));
    form_->Still.clear();
    EXPECT_NE(still_->grab().toImage().pixelColor(102, 102), QColor(Qt::red));
}

TEST_F(PictureViewTest, ASliderAndItsControlFollowEachOther) {
    EXPECT_EQ(slider_->value(), 90);
    form_->Scroll.setValue(40);
    EXPECT_EQ(slider_->value(), 40);
    slider_->setFocus();
    QTest::keyClick(slider_, Qt::Key_PageUp);
    EXPECT_EQ(form_->Scroll.value(), 50);
}

}  // namespace
}  // namespace qt
