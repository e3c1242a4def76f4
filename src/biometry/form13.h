#pragma once

#include <array>

#include "biometry/charts.h"
#include "biometry/form12.h"
#include "forms/controls.h"
#include "forms/form.h"

namespace biometry {

/// The growth curves: one large chart at a time, with a cross on the measure that the biometry window holds now.
class Form13 final : public forms::Form {
public:
    static constexpr QStringView kName = u"Form13";

    explicit Form13(forms::Desk& desk);

    forms::Label Label1{*this, "Label1"};
    forms::Label Label2{*this, "Label2"};
    forms::Label Label3{*this, "Label3"};
    forms::Label Centile{*this, "Centile"};
    forms::Frame Frame2{*this, "Frame2", "Sem. A."};
    forms::TextBox Sem_Entier{*this, "Sem_Entier"};

    forms::Image BipCourbe{*this, "BipCourbe"};
    forms::Image CcCourbe{*this, "CcCourbe"};
    forms::Image DatCourbe{*this, "DatCourbe"};
    forms::Image CaCourbe{*this, "CaCourbe"};
    forms::Image FemCourbe{*this, "FemCourbe"};
    forms::Image LpCourbe{*this, "LpCourbe"};
    forms::Image CervCourbe{*this, "CervCourbe"};
    forms::Image Echo{*this, "Echo"};
    forms::Marker Croix{*this, "Croix"};
    forms::Label Ordonnee{*this, "Ordonnee"};
    forms::Label Abscisse{*this, "Abscisse"};

    forms::Button CommandBip{*this, "CommandBip", "&Bip"};
    forms::Button CommandCc{*this, "CommandCc", "&Circonf. Céphal."};
    forms::Button CommandDat{*this, "CommandDat", "&D.A.T."};
    forms::Button CommandCa{*this, "CommandCa", "Circonf. &Abdo."};
    forms::Button CommandFem{*this, "CommandFem", "&Fémur"};
    forms::Button CommandLp{*this, "CommandLp", "&Pied"};
    forms::Button CommandCerv{*this, "CommandCerv", "C&ervelet"};
    forms::Button CommandTib{*this, "CommandTib", "Tibia"};
    forms::Button Command1{*this, "Command1", "&Quitter"};

    /// A chart and what its button shows with it.
    struct Curve {
        Chart chart;
        const char16_t* title;
        const char16_t* heading;
        const char16_t* source;
        int echoTop;
        const char16_t* drawing;
    };
    static const std::array<Curve, 7> kCurves;

    /// The picture of the chart with this place in `kCurves`.
    forms::Image& picture(std::size_t which) const { return *pictures_[which]; }

private:
    void load() override;
    Form12& biometry() const { return desk().at<Form12>(); }
    void onWeekChange();
    void showCurve(std::size_t which);
    void showPercentile(const Curve& curve);
    void placeCross(const Curve& curve);

    const std::array<forms::Image*, 7> pictures_{&BipCourbe, &CcCourbe, &DatCourbe, &CaCourbe,
                                                 &FemCourbe, &LpCourbe, &CervCourbe};
};

}  // namespace biometry
