#pragma once

#include <QHash>
#include <QString>
#include <span>

#include "practice/sample_rows.h"

namespace practice {

/// The texts of one exam's fields, by name in capitals. A field without a text is saved empty.
using Fields = QHash<QString, QString>;

/// The text fields that each writing window saves.
std::span<const QStringView> firstTrimesterFieldNames();
std::span<const QStringView> laterFieldNames();
std::span<const QStringView> gynaecologyFieldNames();

/// The pregnancy of this story.
const Pregnancy& pregnancyOf(Story story);

/// What the writing windows would save for an exam, but for its two numbers.
Fields fieldsOf(const FirstTrimesterExam& exam);
Fields fieldsOf(const LaterExam& exam);
Fields fieldsOf(const GynaecologyExam& exam);

}  // namespace practice
