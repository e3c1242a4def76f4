#pragma once

#include <QRegion>
#include <QWidget>
#include <vector>

#include "biometry/chart_painter.h"
#include "forms/controls.h"
#include "qt/form_window.h"

namespace qt {

/// The charts of a window and what moves over them, drawn in one go under one transform from the window's twips, at any
/// size and pixel ratio. Each picture and each marker has a bare widget of its own in its place: it is what a screen
/// reader meets.
class ChartView final : public QWidget {
public:
    /// `part` is the part of the window that it shows, in twips.
    ChartView(FormWindow& window, const QRectF& part);

    /// Draws a chart while its picture is visible.
    void addChart(biometry::Chart chart, forms::Image& picture);
    /// Draws a marker as a disc of its colour, or as a cross in the accent colour if it has none.
    void addMarker(forms::Marker& marker, const QString& name);
    /// Keeps a widget over the charts at the place of its control; a label, which has no size, above or beside it.
    void follow(forms::Control& control, QWidget* widget);

    /// What a screen reader tells of the chart of this picture besides its name.
    void setTwin(const forms::Image& picture, const QString& text);

    /// What a pointer at this place of the view tells; empty away from all curves.
    QString tipAt(QPointF pixel) const;

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    bool event(QEvent* event) override;

private:
    struct ShownChart {
        biometry::Chart chart;
        const forms::Image* picture;
        QWidget* twin;
    };
    struct Follower {
        const forms::Control* control;
        QWidget* widget;
    };

    double scale() const;
    QTransform toPixels() const;
    QRect inPixels(const QRectF& twips) const;
    QRect covered(biometry::Chart chart) const;
    void placeAll();
    void place(const Follower& follower) const;
    QWidget* bare(const QString& name);
    void fillAround(QPainter& painter, QRegion region) const;
    void drawCharts(QPainter& painter, const QRect& part) const;
    void drawMarkers(QPainter& painter) const;

    FormWindow& window_;
    QRectF part_;
    std::vector<ShownChart> charts_;
    std::vector<const forms::Marker*> markers_;
    std::vector<Follower> followers_;
};

/// The colours of a chart on screen.
biometry::Ink screenInk(const QPalette& palette);

}  // namespace qt
