#include "practice/sample_fields.h"

namespace practice {
namespace {

// clang-format off
constexpr QStringView kFirstTrimester[] = {
    u"MACHINE", u"DATECIRC", u"TYPECHO", u"AGESTA", u"DATEXAM",
    u"BMI", u"OPERATEUR", u"DDR", u"DG", u"DGUS", u"MODEXAM", u"CONDITIONS", u"INDI", u"UTERUS", u"ANNEXES", u"DOUGLAS",
    u"NBRS", u"SITUATION", u"DIM", u"ASPECT", u"NBRE",
    u"MA", u"AC", u"LCC", u"BIP", u"FEM", u"NUQUE", u"OSNEZ", u"MORPHO", u"CA",
    u"LA", u"PL", u"CONCLU1",
    u"MA2", u"AC2", u"LCC2", u"BIP2", u"FEM2", u"NUQUE2", u"OSNEZ2", u"MORPHO2", u"CA2",
    u"MA3", u"AC3", u"LCC3", u"BIP3", u"FEM3", u"NUQUE3", u"OSNEZ3", u"MORPHO3", u"CA3",
};

constexpr QStringView kLater[] = {
    u"AGESTA", u"TYPECHO", u"NBRE", u"MACHINE", u"DATECIRC", u"DATEXAM",
    u"BMI", u"OPERATEUR", u"DDR", u"DG", u"DGUS", u"MODEXAM", u"CONDITIONS", u"INDI", u"UTERUS", u"ANNEXES", u"DOUGLAS",
    u"UTD", u"UTG",
    u"NUQUE", u"MA", u"AC", u"BIP", u"CC", u"DIO", u"CERV", u"DAT", u"CA", u"FEM", u"PIED", u"TIBIA", u"HUM", u"OSNEZ",
    u"MORPHO", u"ARTO", u"ARTC", u"LA", u"PL", u"CONCLU1",
    u"NUQUE2", u"MA2", u"AC2", u"BIP2", u"CC2", u"DIO2", u"CERV2", u"DAT2", u"CA2", u"FEM2", u"PIED2", u"TIBIA2",
    u"HUM2", u"OSNEZ2", u"MORPHO2", u"ARTO2", u"ARTC2",
    u"NUQUE3", u"MA3", u"AC3", u"BIP3", u"CC3", u"DIO3", u"CERV3", u"DAT3", u"CA3", u"FEM3", u"PIED3", u"TIBIA3",
    u"HUM3", u"OSNEZ3", u"MORPHO3", u"ARTO3", u"ARTC3",
};

constexpr QStringView kGynaecology[] = {
    u"MACHINE", u"DATECIRC", u"DATEXAM", u"OPERATEUR", u"DDR", u"MODEXAM", u"CONDITIONS", u"INDI",
    u"SITUATION", u"LONGUEUR", u"LARG", u"EPAIS", u"STRUCTURE", u"CAVITE", u"ENDO", u"EENDO", u"DIU", u"MASSE",
    u"OVD", u"OVG", u"TD", u"TG", u"DOUGLAS", u"SITUA", u"DIMENSIONS", u"STRUCT", u"NAT", u"ORIGINE", u"CONCLU",
    u"JSTIM", u"DIMOVD", u"NBRFOLD", u"DIMFOLD", u"DIMOVG", u"NBRFOLG", u"DIMFOLG", u"ENDOMETRE", u"DOP1", u"DOP2",
};
// clang-format on

}  // namespace

std::span<const QStringView> firstTrimesterFieldNames() {
    return kFirstTrimester;
}

std::span<const QStringView> laterFieldNames() {
    return kLater;
}

std::span<const QStringView> gynaecologyFieldNames() {
    return kGynaecology;
}

}  // namespace practice
