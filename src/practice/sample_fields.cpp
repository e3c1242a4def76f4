#include "practice/sample_fields.h"

#include <algorithm>

#include "base/dates.h"
#include "base/numbers.h"
#include "practice/sample_texts.h"

namespace practice {
namespace {

QString orUsual(QStringView text, int rubric) {
    return text.isEmpty() ? usualFinding(rubric) : text.toString();
}

QString measure(int value) {
    return value > 0 ? QString::number(value) : QString();
}

QString suffix(int fetus) {
    return fetus == 0 ? QString() : QString::number(fetus + 1);
}

/// Kilograms over square metres, to one decimal.
QString bodyMass(int weight, int height) {
    const double metres = height / 100.0;
    return base::decimalText(base::roundHalfEven(weight / (metres * metres) * 10) / 10);
}

struct Dating {
    QDate ddr, dg, dgus, day;

    QDate start() const { return dgus.isValid() ? dgus : dg; }
};

Dating datingOf(const Visit& visit) {
    const Pregnancy& pregnancy = pregnancyOf(visit.story);
    const QDate ddr = pregnancy.ddr.date();
    return {ddr, ddr.isValid() ? ddr.addDays(14) : QDate(), pregnancy.dgus.date(), visit.day.date()};
}

void addDates(Fields& fields, const Dating& dating) {
    fields[u"DATEXAM"_qs] = base::shortDate(dating.day);
    fields[u"DDR"_qs] = base::shortDate(dating.ddr);
    fields[u"DG"_qs] = base::shortDate(dating.dg);
    fields[u"DGUS"_qs] = base::shortDate(dating.dgus);
    fields[u"AGESTA"_qs] = ageText(dating.start(), dating.day);
}

void addDevice(Fields& fields, int doctor) {
    fields[u"MACHINE"_qs] = onlyText(14);
    fields[u"DATECIRC"_qs] = onlyText(15);
    fields[u"OPERATEUR"_qs] = practitioner(doctor);
}

void addWords(Fields& fields, const Words& words) {
    fields[u"MODEXAM"_qs] = orUsual(words.MODEXAM, 2);
    fields[u"CONDITIONS"_qs] = orUsual(words.CONDITIONS, 3);
    fields[u"INDI"_qs] = orUsual(words.INDI, 7);
    fields[u"UTERUS"_qs] = orUsual(words.UTERUS, 8);
    fields[u"ANNEXES"_qs] = orUsual(words.ANNEXES, 9);
    fields[u"DOUGLAS"_qs] = orUsual(words.DOUGLAS, 10);
    fields[u"LA"_qs] = orUsual(words.LA, 12);
    fields[u"PL"_qs] = orUsual(words.PL, 13);
}

Fields obstetric(const Visit& visit, const Words& words) {
    Fields fields;
    addDevice(fields, words.doctor);
    addDates(fields, datingOf(visit));
    addWords(fields, words);
    fields[u"TYPECHO"_qs] = QString::number(visit.kind);
    fields[u"BMI"_qs] = bodyMass(visit.weight, pregnancyOf(visit.story).height);
    return fields;
}

void addSac(Fields& fields, const Sac& sac) {
    fields[u"NBRS"_qs] = QString::number(sac.count);
    fields[u"DIM"_qs] = measure(sac.Dim);
    fields[u"SITUATION"_qs] = orUsual(sac.SITUATION, 4);
    fields[u"ASPECT"_qs] = orUsual(sac.ASPECT, 5);
}

bool isPresent(const Embryo& embryo) {
    return embryo.LCC > 0;
}

bool isPresent(const Fetus& fetus) {
    return fetus.measures.AC > 0;
}

QString nasalBone(const Embryo& embryo) {
    return embryo.NUQUE.isEmpty() ? embryo.OSNEZ.toString() : orUsual(embryo.OSNEZ, 45);
}

void addEmbryo(Fields& fields, const Embryo& embryo, const QString& k) {
    fields[u"MA"_qs + k] = orUsual(embryo.MA, 6);
    fields[u"AC"_qs + k] = QString::number(embryo.AC);
    fields[u"LCC"_qs + k] = measure(embryo.LCC);
    fields[u"BIP"_qs + k] = measure(embryo.Bip);
    fields[u"FEM"_qs + k] = measure(embryo.Fem);
    fields[u"NUQUE"_qs + k] = embryo.NUQUE.toString();
    fields[u"OSNEZ"_qs + k] = nasalBone(embryo);
    fields[u"MORPHO"_qs + k] = orUsual(embryo.MORPHO, 11);
}

void addMeasures(Fields& fields, const Measures& measures, const QString& k) {
    fields[u"AC"_qs + k] = measure(measures.AC);
    fields[u"BIP"_qs + k] = measure(measures.Bip);
    fields[u"CC"_qs + k] = measure(measures.Cc);
    fields[u"DIO"_qs + k] = measure(measures.DIO);
    fields[u"CERV"_qs + k] = measure(measures.CERV);
    fields[u"DAT"_qs + k] = measure(measures.Dat);
    fields[u"CA"_qs + k] = measure(measures.Ca);
    fields[u"FEM"_qs + k] = measure(measures.Fem);
    fields[u"PIED"_qs + k] = measure(measures.Pied);
    fields[u"TIBIA"_qs + k] = measure(measures.TIBIA);
    fields[u"HUM"_qs + k] = measure(measures.Hum);
    fields[u"OSNEZ"_qs + k] = measure(measures.OSNEZ);
}

QString morphology(const Fetus& fetus) {
    QString text = orUsual(fetus.MORPHO, 17);
    if (!fetus.remark.isEmpty()) {
        text += u"\r\n"_qs;
    }
    return text += fetus.remark;
}

void addFetus(Fields& fields, const Fetus& fetus, const QString& k) {
    addMeasures(fields, fetus.measures, k);
    fields[u"NUQUE"_qs + k] = orUsual(fetus.presentation, 25);
    fields[u"MA"_qs + k] = usualFinding(6);
    fields[u"MORPHO"_qs + k] = morphology(fetus);
    fields[u"ARTO"_qs + k] = fetus.ARTO.toString();
    fields[u"ARTC"_qs + k] = fetus.ARTC.toString();
}

QString openingSentence(int count, const Dating& dating) {
    static constexpr QStringView kNames[] = {u"unique", u"gémellaire", u"triple"};
    return u"Grossesse %1 évolutive de %2. "_qs.arg(kNames[count - 1], spokenAge(dating.start(), dating.day));
}

QString conclusion(bool evolving, int count, const Visit& visit, QStringView finding) {
    QString text = evolving ? openingSentence(count, datingOf(visit)) : QString();
    return text += finding;
}

bool hasPelvicPage(const PelvicPage& page) {
    return page.LONGUEUR > 0;
}

void addUterus(Fields& fields, const PelvicPage& page) {
    fields[u"SITUATION"_qs] = orUsual(page.SITUATION, 32);
    fields[u"LONGUEUR"_qs] = measure(page.LONGUEUR);
    fields[u"LARG"_qs] = measure(page.LARG);
    fields[u"EPAIS"_qs] = measure(page.EPAIS);
    fields[u"STRUCTURE"_qs] = orUsual(page.STRUCTURE, 33);
    fields[u"CAVITE"_qs] = orUsual(page.CAVITE, 34);
    fields[u"ENDO"_qs] = orUsual(page.ENDO, 35);
    fields[u"EENDO"_qs] = measure(page.EENDO);
    fields[u"DIU"_qs] = orUsual(page.DIU, 36);
    fields[u"MASSE"_qs] = orUsual(page.MASSE, 37);
}

void addAnnexes(Fields& fields, const PelvicPage& page) {
    fields[u"OVD"_qs] = orUsual(page.OVD, 30);
    fields[u"OVG"_qs] = orUsual(page.OVG, 30);
    fields[u"TD"_qs] = orUsual(page.TD, 31);
    fields[u"TG"_qs] = orUsual(page.TG, 31);
    fields[u"DOUGLAS"_qs] = orUsual(page.DOUGLAS, 10);
}

void addMass(Fields& fields, const PelvicPage& page) {
    fields[u"SITUA"_qs] = page.SITUA.toString();
    fields[u"DIMENSIONS"_qs] = page.DIMENSIONS.toString();
    fields[u"STRUCT"_qs] = page.STRUCT.toString();
    fields[u"NAT"_qs] = page.NAT.toString();
    fields[u"ORIGINE"_qs] = page.ORIGINE.toString();
}

void addPelvicPage(Fields& fields, const PelvicPage& page) {
    fields[u"MODEXAM"_qs] = u"Voie endovaginale."_qs;
    fields[u"CONDITIONS"_qs] = usualFinding(3);
    fields[u"INDI"_qs] = page.INDI.toString();
    addUterus(fields, page);
    addAnnexes(fields, page);
    addMass(fields, page);
    fields[u"CONCLU"_qs] = page.CONCLU.toString();
}

void addMonitoring(Fields& fields, const MonitoringPage& page) {
    fields[u"JSTIM"_qs] = page.JSTIM.toString();
    fields[u"DIMOVD"_qs] = page.DIMOVD.toString();
    fields[u"NBRFOLD"_qs] = page.NBRFOLD.toString();
    fields[u"DIMFOLD"_qs] = page.DIMFOLD.toString();
    fields[u"DIMOVG"_qs] = page.DIMOVG.toString();
    fields[u"NBRFOLG"_qs] = page.NBRFOLG.toString();
    fields[u"DIMFOLG"_qs] = page.DIMFOLG.toString();
    fields[u"ENDOMETRE"_qs] = page.ENDOMETRE.toString();
    fields[u"DOP1"_qs] = page.DOP1.toString();
    fields[u"DOP2"_qs] = page.DOP2.toString();
}

}  // namespace

const Pregnancy& pregnancyOf(Story story) {
    const auto rows = samplePregnancies();
    return *std::ranges::find(rows, story, &Pregnancy::story);
}

Fields fieldsOf(const FirstTrimesterExam& exam) {
    Fields fields = obstetric(exam.visit, exam.words);
    addSac(fields, exam.sac);
    int count = 0;
    bool evolving = false;
    for (const Embryo& embryo : exam.embryos) {
        if (!isPresent(embryo)) {
            continue;
        }
        addEmbryo(fields, embryo, suffix(count++));
        evolving = evolving || embryo.AC > 0;
    }
    fields[u"NBRE"_qs] = QString::number(count);
    fields[u"CONCLU1"_qs] = conclusion(evolving, count, exam.visit, exam.finding);
    return fields;
}

Fields fieldsOf(const LaterExam& exam) {
    Fields fields = obstetric(exam.visit, exam.words);
    fields[u"UTD"_qs] = exam.words.UTD.toString();
    fields[u"UTG"_qs] = exam.words.UTG.toString();
    int count = 0;
    for (const Fetus& fetus : exam.fetuses) {
        if (isPresent(fetus)) {
            addFetus(fields, fetus, suffix(count++));
        }
    }
    fields[u"NBRE"_qs] = QString::number(count);
    fields[u"CONCLU1"_qs] = conclusion(true, count, exam.visit, exam.finding);
    return fields;
}

Fields fieldsOf(const GynaecologyExam& exam) {
    Fields fields;
    addDevice(fields, exam.doctor);
    fields[u"DATEXAM"_qs] = base::shortDate(exam.day.date());
    fields[u"DDR"_qs] = base::shortDate(exam.ddr.date());
    if (hasPelvicPage(exam.pelvic)) {
        addPelvicPage(fields, exam.pelvic);
    }
    addMonitoring(fields, exam.monitoring);
    return fields;
}

}  // namespace practice
