#pragma once

#include <QDate>
#include <QString>
#include <span>

/// The rows of the sample practice. Names, people, places and devices are invented.
namespace practice {

/// A calendar day as it stands in the tables; all zero is no day.
struct Day {
    int day = 0, month = 0, year = 0;

    QDate date() const { return {year, month, day}; }
};

/// No exam of the sample is later than this day.
inline constexpr Day kLastDay{14, 6, 2002};

/// A stored response: its rubric, what follows it when it is inserted (A, B or C), its text. The rows of one rubric
/// stand in their order. Where a rubric describes findings, its rows up to the first that closes it (C) are the usual
/// finding.
struct Phrase {
    int rubric;
    char16_t ending;
    QStringView text;
};

/// What few patient sheets hold, or hold otherwise.
struct SheetExtras {
    bool secondLine = false;  // a second address line was entered
    QStringView fund = u"Caisse primaire de Belvaude";
    QStringView quality = u"Assurée";
    QStringView rights = u"01/01/2002";
    QStringView card = u"O";
    QStringView doctor2{}, doctor3{}, doctor4{};
    QStringView twinRank{}, cover{};
    Day coverEnd{};
    QStringView divers1{}, divers2{}, divers3{}, divers4{}, insured{};
    QStringView situation{}, lost{};
    QStringView regional = u"N";
    QStringView thirdParty{};
};

/// A sheet on which nothing was entered but a surname.
inline constexpr SheetExtras kNoExtras{.fund = {}, .quality = {}, .rights = {}, .card = {}, .regional = {}};

/// A patient sheet as it was entered.
struct Patient {
    int number;
    int insuranceRank = 0;  // the order number inside the social security number; 0 is no number
    QStringView civility{}, name, firstName{}, maidenName{};
    Day born{};
    QStringView sex{};
    QStringView street{}, town{};
    QStringView phone{}, fax{}, email{};
    QStringView profession{}, category{}, doctor{};
    SheetExtras more{};
};

/// A patient's medical history.
struct History {
    int patient;
    QStringView text;
};

/// An album key word: list 0 holds the diagnoses, 1 to 3 the three criteria.
struct KeyWord {
    int list;
    QStringView text;
};

/// The pregnancies of the sample, named by what they show.
enum class Story {
    Normal,
    SmallForDates,
    Breech,
    TwinsApart,
    TwinsUnequal,
    Triplets,
    Large,
    Redated,
    SeenEarly,
    Stopped,
    DateUnknown,
    NoUltrasoundStart,
    FirstChild,
    SecondChild,
    LowPlacenta,
    LittleFluid,
    PoorView,
    ExamDeleted,
    RenalPelvis,
    LateComer,
    ThickNeck,
    ShortCervix,
    NewTwins,
    TwiceInOneDay,
};

/// What the exams of one pregnancy share: the last period, the start by ultrasound (the theoretical start is 14 days
/// after the last period) and the mother's height in centimetres.
struct Pregnancy {
    Story story;
    int patient;
    Day ddr, dgus;
    int height;
};

/// Where an exam stands: its pregnancy, its NUMECHO and TYPECHO, its day, the mother's weight in kilograms.
struct Visit {
    Story story;
    int number, kind;
    Day day;
    int weight;
};

/// What obstetric exams of both families say in words. What is left out is the usual phrase of its rubric.
struct Words {
    int doctor = 1;  // which of the practitioners
    QStringView MODEXAM{}, CONDITIONS{}, INDI{};
    QStringView UTERUS{}, ANNEXES{}, DOUGLAS{}, LA{}, PL{};
    QStringView UTD{}, UTG{};  // later exams only; empty when left out
};

/// The ovular sacs of a first-trimester exam; the diameter in millimetres.
struct Sac {
    int count = 1;
    int Dim = 0;
    QStringView SITUATION{}, ASPECT{};
};

/// One embryo; 0 is not measured. Heart rate in beats a minute, lengths in millimetres.
struct Embryo {
    int AC = 0, LCC = 0, Bip = 0, Fem = 0;
    QStringView NUQUE{}, OSNEZ{};
    QStringView MA{}, MORPHO{};  // left out: the usual phrases
};

/// A first-trimester exam.
struct FirstTrimesterExam {
    Visit visit;
    Words words;
    Sac sac;
    Embryo embryos[3];
    QStringView finding;
};

/// The measures of one fetus, in millimetres, and its heart rate in beats a minute; 0 is not measured.
struct Measures {
    int Bip = 0, Cc = 0, DIO = 0, CERV = 0, Dat = 0, Ca = 0, Fem = 0, Pied = 0, TIBIA = 0, Hum = 0, OSNEZ = 0, AC = 0;
};

/// One fetus of a later exam.
struct Fetus {
    Measures measures{};
    QStringView presentation{}, ARTO{}, ARTC{};
    QStringView remark{};  // behind the usual morphology
    QStringView MORPHO{};  // in its place
};

/// A second or third trimester exam.
struct LaterExam {
    Visit visit;
    Words words;
    Fetus fetuses[3];
    QStringView finding;
};

/// The pelvic page of a gynaecology exam, lengths in millimetres. When there is one, what is left out of it is the
/// usual phrase of its rubric, or empty for the mass.
struct PelvicPage {
    QStringView INDI{};
    int LONGUEUR = 0, LARG = 0, EPAIS = 0, EENDO = 0;
    QStringView SITUATION{}, STRUCTURE{}, CAVITE{}, ENDO{}, DIU{}, MASSE{}, OVD{}, OVG{}, TD{}, TG{}, DOUGLAS{};
    QStringView SITUA{}, DIMENSIONS{}, STRUCT{}, NAT{}, ORIGINE{};
    QStringView CONCLU{};
};

/// The monitoring page; sizes in millimetres, follicles one behind the other.
struct MonitoringPage {
    QStringView JSTIM{}, DIMOVD{}, NBRFOLD{}, DIMFOLD{}, DIMOVG{}, NBRFOLG{}, DIMFOLG{}, ENDOMETRE{}, DOP1{}, DOP2{};
};

/// A gynaecology exam with one page or both.
struct GynaecologyExam {
    int patient, number;
    Day day, ddr;
    int doctor;
    PelvicPage pelvic{};
    MonitoringPage monitoring{};
};

std::span<const Phrase> practicePhrases();
std::span<const Phrase> firstTrimesterPhrases();
std::span<const Phrase> laterPhrases();
std::span<const Phrase> gynaecologyPhrases();

std::span<const Patient> samplePatients();
std::span<const History> sampleHistories();
std::span<const KeyWord> sampleKeyWords();

std::span<const Pregnancy> samplePregnancies();
std::span<const FirstTrimesterExam> firstTrimesterExams();
std::span<const LaterExam> laterExams();
std::span<const LaterExam> multipleExams();
std::span<const GynaecologyExam> gynaecologyExams();

}  // namespace practice
