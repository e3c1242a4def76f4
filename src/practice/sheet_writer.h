#pragma once

#include "practice/sample_rows.h"
#include "store/recordset.h"

namespace practice {

/// Adds a sheet by the rules of the entry window: an empty text is saved as one blank, an entered second address line
/// as the first one again, and what is no date or no number is not saved at all.
void addSheet(store::Recordset& sheets, const Patient& patient);

/// The French social security number with its key, or nothing if the patient has none: sex, year and month of birth,
/// place (99 310, outside every department), order number, and 97 less the remainder of these 13 digits by 97.
QString insuranceNumber(const Patient& patient);

}  // namespace practice
