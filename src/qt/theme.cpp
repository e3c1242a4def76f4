#include "qt/theme.h"

#include <QAbstractScrollArea>
#include <QApplication>
#include <QFontDatabase>
#include <QIcon>
#include <QPainter>
#include <QPalette>
#include <QPixmapCache>
#include <QProxyStyle>
#include <QStyleOption>
#include <algorithm>
#include <cmath>
#include <vector>

// A static library hands over its resources only when asked to.
static void loadArtwork() {
    Q_INIT_RESOURCE(artwork);
}

namespace qt::theme {
namespace {

constexpr qreal kTextPoints = 10;
// Kilobytes: the pictures of all windows of a day take 1,400. The toolkit would keep 10 MB.
constexpr int kPixmapCache = 2048;

// As the contrast of texts is reckoned for readers with weak sight.
double luminance(const QColor& color) {
    const auto linear = [](double c) { return c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4); };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

double contrast(const QColor& one, const QColor& other) {
    const auto [dark, light] = std::minmax({luminance(one), luminance(other)});
    return (light + 0.05) / (dark + 0.05);
}

QPalette paletteOf(QColor window, QColor base, QColor text, QColor accent) {
    QPalette palette(window, window);
    palette.setColor(QPalette::Base, base);
    palette.setColor(QPalette::AlternateBase, window);
    for (const auto role : {QPalette::Text, QPalette::WindowText, QPalette::ButtonText, QPalette::ToolTipText}) {
        palette.setColor(role, text);
    }
    QColor faint = text;
    faint.setAlpha(110);
    for (const auto role : {QPalette::Text, QPalette::WindowText, QPalette::ButtonText}) {
        palette.setColor(QPalette::Disabled, role, faint);
    }
    palette.setColor(QPalette::ToolTipBase, base);
    palette.setColor(QPalette::Highlight, accent);
    palette.setColor(QPalette::Link, accent);
    return palette;
}

QPalette lightPalette() {
    QPalette palette =
        paletteOf(QColor(0xf4, 0xf5, 0xf6), Qt::white, QColor(0x20, 0x26, 0x2b), QColor(0x0b, 0x6b, 0x7d));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    return palette;
}

QPalette darkPalette() {
    QPalette palette = paletteOf(QColor(0x2a, 0x2e, 0x32), QColor(0x1e, 0x21, 0x24), QColor(0xe6, 0xe9, 0xeb),
                                 QColor(0x4f, 0xb8, 0xc9));
    palette.setColor(QPalette::HighlightedText, QColor(0x10, 0x16, 0x18));
    return palette;
}

QPalette basePalette(QPalette palette) {
    const QByteArray wanted = qgetenv("VERANOX_PALETTE");
    if (wanted == "claire") {
        return lightPalette();
    }
    if (wanted == "sombre") {
        return darkPalette();
    }
    const bool dark = palette.color(QPalette::Window).lightness() < 128;
    const QPalette own = dark ? darkPalette() : lightPalette();
    for (const auto role : {QPalette::Highlight, QPalette::HighlightedText, QPalette::Link}) {
        palette.setColor(role, own.color(role));
    }
    return palette;
}

// Captions and hints stand back, and are still read by weak eyes.
QPalette wantedPalette(const QPalette& given) {
    QPalette palette = basePalette(given);
    palette.setColor(QPalette::PlaceholderText,
                     mixed(palette.color(QPalette::Text), palette.color(QPalette::Base), 0.3));
    return palette;
}

/// The toolkit keeps pictures of what it has drawn for each palette, and the names of those pictures for good. To it a
/// palette made anew is another one, however alike they look; here it is the first that looked so.
class KnownPalettes {
public:
    QPalette known(const QPalette& palette) {
        const auto met = std::ranges::find(palettes_, palette);
        QPalette known = met == palettes_.end() ? palettes_.emplace_back(palette) : *met;
        known.setCurrentColorGroup(palette.currentColorGroup());
        return known;
    }

private:
    std::vector<QPalette> palettes_;
};

/// Draws the frame of a text or list that has the focus in the accent colour, as that of a field of one line, gives
/// boxes and circles to tick an edge that a dark palette shows, and keeps captions off the edges of their buttons.
class HouseStyle final : public QProxyStyle {
public:
    using QProxyStyle::polish;
    using QProxyStyle::QProxyStyle;

    // Not set on the application: what is set there each widget takes into a palette of its own.
    void polish(QPalette& palette) override { palette = wantedPalette(palette); }

    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override {
        QProxyStyle::drawControl(element, option, painter, widget);
        const bool framed = element == CE_ShapedFrame && qobject_cast<const QAbstractScrollArea*>(widget);
        if (framed && option->state.testFlag(State_HasFocus)) {
            painter->save();
            painter->setPen(option->palette.color(QPalette::Highlight));
            painter->drawRect(option->rect.adjusted(0, 0, -1, -1));
            painter->restore();
        }
    }

    QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                           const QWidget* widget) const override {
        const QSize size = QProxyStyle::sizeFromContents(type, option, contents, widget);
        return type == CT_PushButton ? size.expandedTo({contents.width() + 3 * kGrid, 0}) : size;
    }

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override {
        const auto draw = [&](const QStyleOption& known) {
            QProxyStyle::drawPrimitive(element, &known, painter, widget);
        };
        if (const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option)) {
            draw(withKnownPalette(*button));
        } else if (const auto* tool = qstyleoption_cast<const QStyleOptionToolButton*>(option)) {
            draw(withKnownPalette(*tool));
        } else if (option->type == QStyleOption::SO_Default) {
            draw(withKnownPalette(*option));
        } else {
            draw(*option);
        }
        const bool circle = element == PE_IndicatorRadioButton;
        if ((circle || element == PE_IndicatorCheckBox) && isDark()) {
            drawEdge(circle, *option, *painter);
        }
    }

private:
    template <class Option>
    Option withKnownPalette(const Option& option) const {
        Option known(option);
        known.palette = palettes_.known(option.palette);
        return known;
    }

    static void drawEdge(bool circle, const QStyleOption& option, QPainter& painter) {
        painter.save();
        painter.setRenderHint(QPainter::Antialiasing, circle);
        painter.setPen(option.palette.color(QPalette::PlaceholderText));
        painter.setBrush(Qt::NoBrush);
        const QRect edge = option.rect.adjusted(0, 0, -1, -1);
        circle ? painter.drawEllipse(edge) : painter.drawRect(edge);
        painter.restore();
    }

    mutable KnownPalettes palettes_;
};

}  // namespace

QColor mixed(const QColor& color, const QColor& other, double part) {
    const auto mix = [part](double from, double to) { return static_cast<float>(from + (to - from) * part); };
    return QColor::fromRgbF(mix(color.redF(), other.redF()), mix(color.greenF(), other.greenF()),
                            mix(color.blueF(), other.blueF()));
}

void apply(QApplication& application) {
    loadArtwork();
    QPixmapCache::setCacheLimit(kPixmapCache);
    QApplication::setStyle(new HouseStyle(QStringLiteral("Fusion")));
    QFont font = QApplication::font();
    font.setPointSizeF(kTextPoints);
    QApplication::setFont(font);
    application.setWindowIcon(windowIcon());
}

bool isDark() {
    return QApplication::palette().color(QPalette::Window).lightness() < 128;
}

QColor readable(QColor text, const QColor& behind) {
    constexpr double kLeastContrast = 4.5;
    constexpr int kSteps = 20;
    const QColor towards = luminance(behind) < 0.2 ? Qt::white : Qt::black;
    for (int step = 0; step < kSteps && contrast(text, behind) < kLeastContrast; ++step) {
        text = mixed(text, towards, 0.1);
    }
    return text;
}

QFont sectionFont() {
    QFont font = QApplication::font();
    font.setBold(true);
    return font;
}

QFont fixedFont() {
    QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    font.setPointSizeF(kTextPoints);
    return font;
}

QFont headingFont() {
    QFont font = QApplication::font();
    font.setPointSizeF(kTextPoints * 1.5);
    font.setBold(true);
    return font;
}

QIcon windowIcon() {
    return QIcon(QStringLiteral(":/artwork/icon.svg"));
}

}  // namespace qt::theme
