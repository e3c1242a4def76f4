#pragma once

#include "reports/first_trimester.h"

/// An exam of the first trimester with every value filled, `count` telling how many embryos.
inline reports::FirstTrimesterExam sampleExam(const QString& count) {
    reports::FirstTrimesterExam exam;
    exam.letterhead = {"Clinique des Tilleuls", "Docteur Hélène MARCHAND", "12, rue du Vieux Pont", "67000 STRASBOURG",
                       "Tél. 03 88 00 00 00"};
    exam.patient = {"Mme", "Zoé", "D'ALMEIDA"};
    exam.device = {"Echographe A", "15/01/2001"};
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
