#include "qt/chart_view.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QHelpEvent>
#include <QLabel>
#include <QToolTip>
#include <QVBoxLayout>

#include "biometry/curves.h"
#include "forms/desk.h"
#include "qt/binder.h"
#include "qt/drawing_view.h"
#include "qt/theme.h"

namespace qt {
namespace {

using biometry::Chart;

/// A window of 9600 by 7200 twips with a chart and what moves over it.
class Charts final : public forms::Form {
public:
    explicit Charts(forms::Desk& desk) : Form(desk, QStringLiteral("Courbes"), QStringLiteral("Essai")) {
        Croix.setSide(biometry::kCrossSide);
        Croix.hide();
        Point.setSide(biometry::kMarkerSide);
        Point.setColor(0xE00000);
        Word.setColor(0xFF0000);
        Word.setPoints(13);
    }
    forms::Image Curve{*this, "Curve"};
    forms::Image Other{*this, "Other"};
    forms::Image Echo{*this, "Echo"};
    forms::Marker Croix{*this, "Croix"};
    forms::Marker Point{*this, "Point"};
    forms::Label Abscisse{*this, "Abscisse", "22 Sem. A."};
    forms::Label Word{*this, "Word", "< 3"};
};

class ChartViewTest : public ::testing::Test {
protected:
    ChartViewTest() {
        desk_.add("Courbes", [this] { return std::make_unique<Charts>(desk_); });
        form_ = static_cast<Charts*>(&desk_.at("Courbes"));
        window_ = std::make_unique<FormWindow>(*form_);
        form_->Other.hide();
        Binder bind(*window_);
        auto* all = new QVBoxLayout(window_.get());
        all->setContentsMargins(0, 0, 0, 0);
        view_ = new ChartView(*window_, QRectF(0, 0, 9600, 7200));
        view_->addChart(Chart::Bip, form_->Curve);
        view_->addChart(Chart::Ca, form_->Other);
        drawing_ = bind.drawing(form_->Echo, "Dessin");
        view_->follow(form_->Echo, drawing_);
        view_->follow(form_->Abscisse, bind.label(form_->Abscisse));
        view_->addMarker(form_->Croix, "Mesure");
        view_->addMarker(form_->Point, "Rappel 1");
        word_ = bind.label(form_->Word);
        desk_.show("Courbes");
        all->addWidget(view_);
        window_->resize(640, 480);
        window_->present();
        QApplication::processEvents();
    }
    ~ChartViewTest() override {
        delete word_;
        window_->retire();
    }

    QWidget* widgetOf(const forms::Control& control) { return window_->widgetOf(control); }
    QColor seen(QPointF twips, double scale = 1 / 15.0) {
        return view_->grab().toImage().pixelColor((twips * scale).toPoint());
    }
    QString tipAt(QPointF twips) { return view_->tipAt(twips / 15); }

    forms::Desk desk_;
    Charts* form_ = nullptr;
    std::unique_ptr<FormWindow> window_;
    ChartView* view_ = nullptr;
    DrawingView* drawing_ = nullptr;
    QLabel* word_ = nullptr;
};

TEST_F(ChartViewTest, DrawsTheChartWhosePictureIsVisible) {
    const QPointF median =
        biometry::spot(Chart::Bip, 30, biometry::smoothCurve(biometry::Measure::Bip, 50)[17].millimetres);
    const QColor link = view_->palette().color(QPalette::Link);
    EXPECT_EQ(seen(median), link);
    form_->Curve.hide();
    EXPECT_NE(seen(median), link);
    EXPECT_FALSE(widgetOf(form_->Curve)->isVisible());
}

TEST_F(ChartViewTest, KeepsEachMarkerOnItsValueAtAnySize) {
    const biometry::Point at = biometry::point(Chart::PageBip, 22, 110);
    form_->Point.moveTo({at.left, at.top});
    EXPECT_EQ(seen(biometry::spot(Chart::PageBip, 22, 110)), QColor(0xE0, 0, 0));
    window_->resize(1280, 960);
    QApplication::processEvents();
    EXPECT_EQ(seen(biometry::spot(Chart::PageBip, 22, 110), 2 / 15.0), QColor(0xE0, 0, 0));
    const QRect place = widgetOf(form_->Point)->geometry();
    EXPECT_TRUE(place.contains((biometry::spot(Chart::PageBip, 22, 110) * 2 / 15.0).toPoint()));
    EXPECT_LT(place.width(), 20);
}

TEST_F(ChartViewTest, ShowsAndHidesTheCross) {
    const biometry::Point at = biometry::point(Chart::Bip, 20, 110);
    form_->Croix.moveTo({at.left, at.top});
    const QColor before = seen(biometry::spot(Chart::Bip, 20, 110));
    form_->Croix.show();
    EXPECT_TRUE(widgetOf(form_->Croix)->isVisible());
    EXPECT_GT(seen(biometry::spot(Chart::Bip, 20, 110)).red(), before.red() / 2);
    EXPECT_NE(seen(biometry::spot(Chart::Bip, 20, 110)), before);
}

TEST_F(ChartViewTest, MovesALabelAndADrawingWithTheWindow) {
    form_->Abscisse.moveTo({3000, 6900});
    EXPECT_EQ(widgetOf(form_->Abscisse)->pos(), QPoint(200, 460));
    form_->Echo.setPlace({6000, 4050, 2700, 1950});
    EXPECT_EQ(drawing_->geometry(), QRect(400, 270, 180, 130));
    window_->resize(1280, 960);
    QApplication::processEvents();
    EXPECT_EQ(widgetOf(form_->Abscisse)->pos(), QPoint(400, 920));
}

TEST_F(ChartViewTest, TellsWeekAndValueOfTheCurveUnderThePointer) {
    EXPECT_EQ(tipAt(biometry::spot(Chart::Bip, 22, 53.5)), "22 SA : 53,5 mm (50 ème percentile)");
    EXPECT_EQ(tipAt(biometry::spot(Chart::Bip, 22, 100)), "");
    form_->Curve.hide();
    EXPECT_EQ(tipAt(biometry::spot(Chart::Bip, 22, 53.5)), "");
}

TEST_F(ChartViewTest, TellsItInAToolTip) {
    const QPoint at = (biometry::spot(Chart::Bip, 22, 53.5) / 15).toPoint();
    QHelpEvent event(QEvent::ToolTip, at, view_->mapToGlobal(at));
    QApplication::sendEvent(view_, &event);
    EXPECT_EQ(QToolTip::text(), "22 SA : 53,5 mm (50 ème percentile)");
}

TEST_F(ChartViewTest, TellsAScreenReaderWhatItShows) {
    view_->setTwin(form_->Curve, "22 SA, 53 mm, 50 ème Percentile");
    EXPECT_EQ(widgetOf(form_->Curve)->accessibleName(), "Diamètre Bipariétal");
    EXPECT_EQ(widgetOf(form_->Curve)->accessibleDescription(), "22 SA, 53 mm, 50 ème Percentile");
    EXPECT_EQ(widgetOf(form_->Other)->accessibleDescription(), "");
}

TEST_F(ChartViewTest, EachDrawingOfAMeasureIsThere) {
    for (const char* name : {"bip", "cc", "dat", "ca", "femur", "pied", "cervelet"}) {
        form_->Echo.setDrawing(name);
        EXPECT_EQ(drawing_->pictureSize(), QSize(360, 260)) << name;
    }
    form_->Echo.setDrawing("");
    EXPECT_TRUE(drawing_->pictureSize().isEmpty());
}

TEST_F(ChartViewTest, ALabelThatHadItsColourAndSizeBeforeItsWindowShowsThem) {
    EXPECT_EQ(word_->font().pointSize(), 13);
    const QColor red = word_->palette().color(QPalette::WindowText);
    EXPECT_GT(red.red(), red.green() + 80);
}

TEST(ReadableColour, StandsOutOnLightAndDarkGround) {
    EXPECT_EQ(theme::readable(QColor(0, 0, 255), Qt::white), QColor(0, 0, 255));
    const QColor onDark = theme::readable(QColor(0, 0, 255), QColor(0x2a, 0x2e, 0x32));
    EXPECT_GT(onDark.lightness(), QColor(0, 0, 255).lightness());
    EXPECT_GT(onDark.blue(), onDark.red());
}

}  // namespace
}  // namespace qt
