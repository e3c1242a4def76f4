#pragma once

#include <QString>

#include "reports/operations.h"

/// A report as a person can read it: its text as it would stand on paper, each piece under the attributes it is typed
/// with. "¶" is a line end; "|" ends a piece in the middle of a line.
QString readable(const reports::Report& report);

/// The text of a report alone.
QString plain(const reports::Report& report);
