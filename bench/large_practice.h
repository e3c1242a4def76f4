#pragma once

#include <QString>
#include <random>

/// The files of a practice that has worked for decades, made at their first mention in a folder that goes with the
/// benchmark.
namespace large_practice {

inline constexpr int kPatients = 32767;
inline constexpr int kExams = 300000;
inline constexpr int kExamsOfADossier = 10;
inline constexpr int kPictures = 20000;
/// The stored responses of a rubric, and those of the indications and of the uterus.
inline constexpr int kPhrases = 20;
inline constexpr int kManyPhrases = 500;
inline constexpr int kClassedPictures = 100000;

/// A place for a file in that folder.
QString place(const QString& name);

/// The path of NOM.MDB with so many patients.
QString patients(int count = kPatients);
/// The path of ECHO.MDB: obstetric exams of 82 fields, in the order in which they were made, and the stored responses.
/// The first half of each dossier's exams are of the first trimester, the others of the later ones.
QString exams(int count = kExams, int ofADossier = kExamsOfADossier);
/// The same with exams of gynaecology alone, of 41 fields.
QString gynaecologyExams(int count = kExams, int ofADossier = kExamsOfADossier);
/// The date of a dossier's exam with this number, from 1.
QString dateOfExam(int number);
/// The path of ATCD.MDB: a history for each patient.
QString histories();
/// The path of ECHOTEK.MDB.
QString album();
/// The path of another album, of so many pictures classed with the words that a practice uses.
QString classedPictures();

/// A name of so many syllables.
QString invented(std::mt19937& random, int syllables);

}  // namespace large_practice
