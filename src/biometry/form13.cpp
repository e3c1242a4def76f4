#include "biometry/form13.h"

#include "base/numbers.h"
#include "biometry/chart_painter.h"
#include "forms/desk.h"
#include "forms/key_filters.h"

namespace biometry {
namespace {

constexpr auto kSource =
    u"Les courbes biométriques foetales sont pour la plupart celles données par Le Collège Français d'Echographie "
    u"Foetale. Elles representent le 3 ème, 10 ème, 50 ème, 90 ème et 97 ème percentile.";

// The axes along which the two labels slide, and the room of the teaching picture, in twips.
constexpr int kOrdonneeGap = 1100;
constexpr int kAbscisseTop = 6900;
constexpr int kEchoLeft = 6000;
constexpr int kEchoWidth = 2700;
constexpr int kEchoHeight = 1950;

}  // namespace

const std::array<Form13::Curve, 7> Form13::kCurves{{
    {Chart::Bip, u"Diamètre Bipariétal", u"Diamètre Bipariétal", u"Courbe CFEF", 4000, u"bip"},
    {Chart::Cc, u"Circonférence céphalique", u"Circonférence Céphalique", u"Courbe CFEF", 4000, u"cc"},
    {Chart::Dat, u"Diamètre Abdominal Transverse", u"Abdominal Transverse", u"Courbe CFEF", 4100, u"dat"},
    {Chart::Ca, u"Circonférence Abdominale", u"Circonférence Abdominale", u"Courbe CFEF", 4000, u"ca"},
    {Chart::Fem, u"Fémur", u"Fémur", u"Courbe CFEF", 4000, u"femur"},
    {Chart::Pied, u"Pied", u"Pied", u"", 4000, u"pied"},
    {Chart::Cer, u"Cervelet", u"Cervelet", u"Courbe CFEF", 4100, u"cervelet"},
}};

Form13::Form13(forms::Desk& desk) : Form(desk, kName.toString(), QStringLiteral("Courbes")) {
    Frame2.holds(Sem_Entier);
    Label3.setText(QString::fromUtf16(kSource));
    for (forms::Image* picture : pictures_) {
        picture->hide();
    }
    Croix.setSide(kCrossSide);
    Croix.hide();
    Frame2.hide();
    Sem_Entier.hide();
    Sem_Entier.onKey = forms::digitsOnly;
    Sem_Entier.onChange = [this] { onWeekChange(); };
    Centile.hide();
    const std::array buttons{&CommandBip, &CommandCc, &CommandDat, &CommandCa, &CommandFem, &CommandLp, &CommandCerv};
    for (std::size_t i = 0; i < buttons.size(); ++i) {
        buttons[i]->onClick = [this, i] { showCurve(i); };
    }
    Command1.onClick = [this] { unload(); };
}

void Form13::load() {
    Sem_Entier.setText(biometry().SAF3.text());
}

void Form13::onWeekChange() {
    if (const auto left = abscissaLeft(Sem_Entier.text())) {
        Abscisse.moveTo({*left, kAbscisseTop});
        Abscisse.setText(Sem_Entier.text() + QStringLiteral(" Sem. A."));
    }
}

void Form13::showCurve(std::size_t which) {
    const Curve& curve = kCurves[which];
    setTitle(QString::fromUtf16(curve.title));
    Sem_Entier.hide();
    Frame2.hide();
    Ordonnee.show();
    Label3.hide();
    for (std::size_t i = 0; i < pictures_.size(); ++i) {
        pictures_[i]->setVisible(i == which);
    }
    Echo.setPlace({kEchoLeft, curve.echoTop, kEchoWidth, kEchoHeight});
    Echo.setDrawing(QString::fromUtf16(curve.drawing));
    showPercentile(curve);
    placeCross(curve);
}

void Form13::showPercentile(const Curve& curve) {
    const Measure measure = geometry(curve.chart).measure;
    const bool measured = base::isNumeric(biometry().row(measure).field.text());
    Centile.setVisible(measured);
    if (measured) {
        Centile.setText(biometry().row(measure).label.text());
    }
    Label1.setText(QString::fromUtf16(curve.heading));
    Label2.setText(QString::fromUtf16(curve.source));
}

void Form13::placeCross(const Curve& curve) {
    const QString value = biometry().row(geometry(curve.chart).measure).field.text();
    const MarkerMove move = cross(curve.chart, Sem_Entier.text(), value);
    if (move.visible) {
        Croix.setVisible(*move.visible);
    }
    if (move.to) {
        Croix.moveTo({move.to->left, move.to->top});
        Ordonnee.moveTo({static_cast<float>(geometry(curve.chart).left - kOrdonneeGap), move.to->top});
        Ordonnee.setText(value);
        Abscisse.moveTo({move.to->left, kAbscisseTop});
        Abscisse.setText(Sem_Entier.text() + QStringLiteral(" Sem. A."));
    }
    if (!Croix.visible()) {
        Ordonnee.hide();
    }
}

}  // namespace biometry
