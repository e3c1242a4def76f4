#include "qt/elided_label.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QHelpEvent>
#include <QPixmap>
#include <QToolTip>

namespace qt {
namespace {

class ElidedLabels : public ::testing::Test {
protected:
    /// What stands on the label at a width.
    QImage drawn(const QString& text, int width) {
        label_.setText(text);
        label_.resize(width, label_.sizeHint().height());
        return label_.grab().toImage();
    }
    QString tip() {
        QHelpEvent hover(QEvent::ToolTip, {2, 2}, label_.mapToGlobal(QPoint(2, 2)));
        QApplication::sendEvent(&label_, &hover);
        return QToolTip::text();
    }

    const QString name_ = QStringLiteral("DE LA TOURELLE-MONTBRISSON");
    ElidedLabel label_;
};

TEST_F(ElidedLabels, WantTheWholeTextAndGiveWay) {
    label_.setText(name_);
    EXPECT_GE(label_.sizeHint().width(), label_.fontMetrics().horizontalAdvance(name_));
    EXPECT_LT(label_.minimumSizeHint().width(), label_.sizeHint().width() / 2);
}

TEST_F(ElidedLabels, KeepAShortTextWhole) {
    label_.setText(QStringLiteral("05/04/2002"));
    EXPECT_EQ(label_.minimumSizeHint(), label_.sizeHint());
}

TEST_F(ElidedLabels, EndWithDotsWhereTheTextIsCut) {
    const int width = label_.fontMetrics().horizontalAdvance(QStringLiteral("DE LA TOUREL"));
    const QString cut = label_.fontMetrics().elidedText(name_, Qt::ElideRight, width);
    ASSERT_TRUE(cut.endsWith(u'…'));
    EXPECT_EQ(drawn(name_, width), drawn(cut, width));
}

TEST_F(ElidedLabels, HaveTheWholeTextInTheirTipWhereItIsCut) {
    drawn(name_, 600);
    EXPECT_EQ(tip(), "");
    drawn(name_, 60);
    EXPECT_EQ(tip(), name_);
}

}  // namespace
}  // namespace qt
