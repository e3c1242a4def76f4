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

/// A place for a file in that folder.
QString place(const QString& name);

/// The path of NOM.MDB with so many patients.
QString patients(int count = kPatients);
/// The path of ECHO.MDB: obstetric exams of 82 fields, in the order in which they were made.
QString exams();
/// The path of ATCD.MDB: a history for each patient.
QString histories();
/// The path of ECHOTEK.MDB.
QString album();

/// A name of so many syllables.
QString invented(std::mt19937& random, int syllables);

}  // namespace large_practice
