#pragma once

#include "reports/first_trimester.h"
#include "reports/gynaecology.h"
#include "reports/later_trimesters.h"

inline const reports::Letterhead kLetterhead{"Clinique des Tilleuls", "Docteur Hélène MARCHAND",
                                             "12, rue du Vieux Pont", "67000 STRASBOURG", "Tél. 03 88 00 00 00"};
inline const reports::Patient kPatient{"Mme", "Zoé", "D'ALMEIDA"};
inline const reports::Device kDevice{"Echographe A", "15/01/2001"};

/// An exam of the first trimester with every value filled, `count` telling how many embryos.
inline reports::FirstTrimesterExam sampleExam(const QString& count) {
    reports::FirstTrimesterExam exam;
    exam.letterhead = kLetterhead;
    exam.patient = kPatient;
    exam.device = kDevice;
    exam.LblIMC = "18,8";
    exam.LblDatExam = "05/04/2002";
    exam.LblDDR = "10/01/2002";
    exam.LblDG = "24/01/2002";
    exam.LblAgeGesta = "12 Sem. 1 J. A.";
    exam.LblDGUS = "25/01/2002";
    exam.LblOperateur = "Dr MARCHAND";
    exam.LblModalites = "Voie abdominale";
    exam.LblConditions = "Bonnes";
    exam.LblSituation = "Intra utérine";
    exam.LblNbrE = count;
    exam.LblAspect = "Tonique";
    exam.LblDim = "42";
    exam.TxtIndic = "Datation, clarté nucale";
    exam.TxtUterus = "Antéversé, régulier";
    exam.TxtAnnexes = "Sans particularité";
    exam.TxtDouglas = "Libre";
    exam.TxtPl = "Postérieur";
    exam.TxtLA = "Quantité normale";
    exam.TxtConclu1 = "Grossesse évolutive.";
    exam.embryos = {{{"55", "20", "6", "1.2", "Vus", "160", "Présents", "Sans anomalie décelée."},
                     {"54", "19", "5", "1.1", "Non vus", "155", "Rares", "Estomac vu."},
                     {"53", "18", "4", "1.0", "Douteux", "150", "Absents", "Vessie vue."}}};
    return exam;
}

inline const QString kIntroduction = "L'échographie ne permet pas de déceler toutes les anomalies.";

/// An exam of the second trimester with every value filled, `count` telling how many fetuses.
inline reports::LaterExam laterExam(const QString& count) {
    reports::LaterExam exam;
    exam.letterhead = kLetterhead;
    exam.patient = kPatient;
    exam.device = kDevice;
    exam.LblIMC = "22,4";
    exam.LblDatExam = "05/04/2002";
    exam.LblDDR = "01/11/2001";
    exam.LblDG = "15/11/2001";
    exam.LblDGUS = "16/11/2001";
    exam.LblAgeGesta = "22,0 Sem. A.";
    exam.LblOperateur = "Dr MARCHAND";
    exam.LblModalites = "Voie abdominale";
    exam.LblConditions = "Bonnes";
    exam.TxtIndic = "Morphologie";
    exam.TxtUterus = "Normal";
    exam.TxtAnnexes = "Non vues";
    exam.TxtDouglas = "Libre";
    exam.TxtUtD = "IR 0,55";
    exam.TxtUtG = "IR 0,60";
    exam.TxtNbrE = count;
    exam.liquid = "Quantité normale";
    exam.placenta = "Fundique";
    exam.TxtConclu1 = "Croissance harmonieuse.";
    exam.fetuses = {{{"Céphalique", "54", "15", "23", "198", "50", "172", "38", "37", "33", "36", "148", "Présents",
                      "IR 0,70", "IR 0,80", "Crâne et face sans anomalie."},
                     {"Siège", "53", "14", "22", "196", "49", "170", "37", "36", "32", "35", "142", "Vifs", "IR 0,72",
                      "IR 0,82", "Estomac et vessie vus."},
                     {"Transverse", "52", "13", "21", "194", "48", "168", "36", "35", "31", "34", "138", "Rares",
                      "IR 0,74", "IR 0,84", "Rachis vu."}}};
    exam.percentiles = {"50ème p", "cervelet normal", "60ème p", "40ème p", "30ème p", "pied court", "70ème p"};
    return exam;
}

/// A gynaecological exam with every value of both pages filled.
inline reports::GynaecologyExam gynaecologyExam() {
    return {.letterhead = kLetterhead,
            .patient = kPatient,
            .device = kDevice,
            .TxtDate = "05/04/2002",
            .CmbMedecin = "Dr MARCHAND",
            .CmbModExam = "Voie vaginale",
            .CmbCondExam = "Bonnes",
            .TxtGyneco = {"Douleurs",
                          "Antéversé",
                          "72",
                          "41",
                          "38",
                          "Homogène",
                          "Vide",
                          "Régulier",
                          "7",
                          "En place",
                          "Myome fundique",
                          "Normal",
                          "Kyste",
                          "Non vue",
                          "Fine",
                          "Libre",
                          "Latérale droite",
                          "4 5",
                          "Liquidienne",
                          "Bénigne",
                          "Ovarienne",
                          "Kyste fonctionnel."},
            .TxtJStim = "9",
            .TxtDimD = "32",
            .TxtNbrFolD = "3",
            .TxtTFolD = "17 12 9",
            .TxtDimG = "28",
            .TxtNbrFolG = "2",
            .TxtTFolG = "14 8",
            .TxtEndom = "10"};
}
