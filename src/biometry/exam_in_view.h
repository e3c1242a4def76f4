#pragma once

#include <QString>
#include <array>

#include "biometry/measure.h"

namespace biometry {

/// The texts of a fetus's measures, by measure (`indexOf`), in millimetres as they stand in their fields.
using Measures = std::array<QString, kMeasureCount>;

inline constexpr std::size_t kFetusCount = 3;

/// A later exam as its viewing window shows it. All texts as they stand there; the dates as DD/MM/YYYY or whatever the
/// record holds.
struct Exam {
    QString civility;
    QString surname;
    QString firstName;
    /// The number of the dossier, and that of the exam inside it.
    QString dossierNumber;
    QString examNumber;
    /// `LblDGUS`, the start of the pregnancy by ultrasound, and `LblDatExam`.
    QString start;
    QString examDate;
    /// `TxtNbrE`.
    QString fetusCount;
    /// Which of the three fetus panels are visible.
    std::array<bool, kFetusCount> panels{};
    std::array<Measures, kFetusCount> fetuses;
};

/// The later exam in view. It is asked at the moment of use, since the window goes on living.
class ExamInView {
public:
    virtual ~ExamInView() = default;
    /// The exam as it stands now; empty texts where no window shows one.
    virtual Exam exam() const = 0;
};

}  // namespace biometry
