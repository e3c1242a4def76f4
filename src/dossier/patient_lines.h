#pragma once

#include <QDate>
#include <QStringList>

#include "store/recordset.h"

namespace dossier {

/// The lines that tell the patient of the current record, in their order. The age counts calendar years only: the year
/// of `today` less the year of birth.
QStringList patientLines(const store::Recordset& patient, QDate today);

}  // namespace dossier
