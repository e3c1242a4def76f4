#include "qt/capture.h"

#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QFile>
#include <QPainter>
#include <QTemporaryDir>
#include <QTest>

#include "fakes/world.h"
#include "qt/real_picture_source.h"

namespace qt {
namespace {

// Real pipelines: nothing here stands in for GStreamer.
const QString kBlue = QStringLiteral(
    "videotestsrc is-live=true pattern=solid-color foreground-color=0xff204080 ! "
    "video/x-raw,format=BGRx,width=720,height=576,framerate=25/1");

class CaptureTest : public ::testing::Test {
protected:
    CaptureTest() { qputenv("GST_REGISTRY", QFile::encodeName(QDir::temp().filePath("veranox-gst-registry.bin"))); }

    // Lets the events of so many milliseconds come through, or until something has happened.
    template <class Done>
    static bool within(int milliseconds, Done done) {
        QElapsedTimer time;
        time.start();
        while (!done() && time.elapsed() < milliseconds) {
            QTest::qWait(5);
        }
        return done();
    }

    QList<QSize> live_;
    int lost_ = 0;
    Capture capture_{[this](const QImage& frame) { frame.isNull() ? void(++lost_) : live_.append(frame.size()); }};
};

TEST_F(CaptureTest, GrabsAtOnceTheVeryPixelsOfTheSource) {
    ASSERT_TRUE(capture_.start(kBlue));
    const QImage picture = capture_.grab();
    ASSERT_EQ(picture.size(), QSize(720, 576));
    EXPECT_EQ(picture.pixel(0, 0), qRgb(0x20, 0x40, 0x80));
    EXPECT_EQ(picture.pixel(719, 575), qRgb(0x20, 0x40, 0x80));
}

TEST_F(CaptureTest, ShowsEachPictureAsItComes) {
    ASSERT_TRUE(capture_.start(kBlue));
    EXPECT_TRUE(within(3000, [&] { return live_.size() >= 5; }));
    EXPECT_EQ(live_.first(), QSize(720, 576));
    EXPECT_EQ(lost_, 0);
}

TEST_F(CaptureTest, GrabsAPictureFilePixelForPixel) {
    const QTemporaryDir folder;
    QImage picture(333, 241, QImage::Format_RGB32);
    picture.fill(Qt::black);
    QPainter painter(&picture);
    painter.fillRect(7, 9, 50, 3, QColor(200, 30, 5));
    painter.end();
    ASSERT_TRUE(picture.save(folder.filePath("a.png")));
    ASSERT_TRUE(
        capture_.start("filesrc location=\"" + folder.filePath("a.png") + "\" ! pngdec ! imagefreeze is-live=true"));
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(capture_.grab(), picture);
        QTest::qWait(60);
    }
}

TEST_F(CaptureTest, WithoutADeviceThereIsNoConnectionAtOnce) {
    QElapsedTimer time;
    time.start();
    EXPECT_FALSE(capture_.start("v4l2src device=/nonexistent"));
    EXPECT_TRUE(capture_.grab().isNull());
    EXPECT_LT(time.elapsed(), 1000);
    EXPECT_FALSE(capture_.running());
}

TEST_F(CaptureTest, APipelineThatCantBeMadeIsNoConnection) {
    for (const char* text : {"", "thereisnosuchelement", "videotestsrc nosuchproperty=1", "audiotestsrc", "! !"}) {
        EXPECT_FALSE(capture_.start(text)) << text;
        EXPECT_TRUE(capture_.grab().isNull()) << text;
    }
    EXPECT_TRUE(live_.isEmpty());
}

TEST_F(CaptureTest, ACardThatIsPulledOutIsToldAndLeavesNoPictureBehind) {
    ASSERT_TRUE(capture_.start(kBlue + " ! identity error-after=5"));
    EXPECT_TRUE(within(3000, [&] { return lost_ > 0; }));
    EXPECT_EQ(lost_, 1);
    EXPECT_FALSE(capture_.running());
    EXPECT_TRUE(capture_.grab().isNull());
}

TEST_F(CaptureTest, APictureGrabbedJustAfterTheLossIsNone) {
    ASSERT_TRUE(capture_.start(kBlue + " ! identity error-after=5"));
    // The events of the loss are still on their way.
    for (int i = 0; i < 400 && capture_.running(); ++i) {
        QTest::qSleep(5);
    }
    EXPECT_TRUE(capture_.grab().isNull());
}

TEST_F(CaptureTest, WorksAgainWhenItIsStartedAnew) {
    ASSERT_TRUE(capture_.start(kBlue + " ! identity error-after=3"));
    ASSERT_TRUE(within(3000, [&] { return lost_ > 0; }));
    ASSERT_TRUE(capture_.start(kBlue));
    EXPECT_FALSE(capture_.grab().isNull());
}

TEST_F(CaptureTest, AnEndOfTheSourceIsALossToo) {
    ASSERT_TRUE(capture_.start("videotestsrc is-live=true num-buffers=4 ! video/x-raw,framerate=25/1"));
    EXPECT_TRUE(within(3000, [&] { return lost_ > 0; }));
    EXPECT_TRUE(capture_.grab().isNull());
}

TEST_F(CaptureTest, ACardThatDeliversNothingGivesNoPictureAfterASecond) {
    ASSERT_TRUE(capture_.start("videotestsrc is-live=true ! valve drop=true"));
    QElapsedTimer time;
    time.start();
    EXPECT_TRUE(capture_.grab().isNull());
    EXPECT_GE(time.elapsed(), 900);
    EXPECT_LT(time.elapsed(), 3000);
}

TEST_F(CaptureTest, AStoppedOneDeliversNothingMore) {
    ASSERT_TRUE(capture_.start(kBlue));
    ASSERT_TRUE(within(3000, [&] { return !live_.isEmpty(); }));
    capture_.stop();
    live_.clear();
    QTest::qWait(150);
    EXPECT_TRUE(live_.isEmpty());
    EXPECT_EQ(lost_, 0);
    EXPECT_TRUE(capture_.grab().isNull());
}

TEST_F(CaptureTest, OpensAndClosesManyTimes) {
    for (int i = 0; i < 20; ++i) {
        ASSERT_TRUE(capture_.start(kBlue));
        ASSERT_FALSE(capture_.grab().isNull());
        capture_.stop();
    }
}

TEST_F(CaptureTest, OneThatGoesWhileItRunsTellsNothingMore) {
    {
        Capture other([this](const QImage&) { ++lost_; });
        ASSERT_TRUE(other.start(kBlue));
        ASSERT_FALSE(other.grab().isNull());
    }
    const int before = lost_;
    QTest::qWait(150);
    EXPECT_EQ(lost_, before);
}

class PictureSourceTest : public CaptureTest {
protected:
    void start() {
        source_.start([this](const QImage& frame) { frame.isNull() ? void(++lost_) : live_.append(frame.size()); });
    }
    fakes::Settings settings_;
    RealPictureSource source_{settings_};
};

TEST_F(PictureSourceTest, RunsThePipelineOfTheSettings) {
    settings_.put("VIDEOCHAINE", kBlue);
    start();
    EXPECT_EQ(source_.grab().size(), QSize(720, 576));
    source_.stop();
}

TEST_F(PictureSourceTest, ADeviceOfTheSettingsThatIsNotThereIsNoConnection) {
    settings_.put("VIDEO", "/nonexistent");
    start();
    EXPECT_TRUE(source_.grab().isNull());
    EXPECT_TRUE(live_.isEmpty());
    EXPECT_GT(lost_, 0);
}

TEST_F(PictureSourceTest, AnInputThatTheCardDoesntHaveIsNoConnection) {
    settings_.put("VIDEO", "/dev/null");
    settings_.put("VIDEOENTREE", "S-Video");
    start();
    EXPECT_TRUE(source_.grab().isNull());
}

TEST_F(PictureSourceTest, ConnectsAnewAtTheNextGrab) {
    settings_.put("VIDEOCHAINE", kBlue + " ! identity error-after=3");
    start();
    ASSERT_TRUE(within(3000, [&] { return lost_ > 0; }));
    settings_.put("VIDEOCHAINE", kBlue);
    EXPECT_EQ(source_.grab().size(), QSize(720, 576));
}

}  // namespace
}  // namespace qt
