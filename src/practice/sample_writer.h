#pragma once

#include "practice/practice.h"

namespace practice {

/// Adds the rows of the sample to the files of a new practice.
void writeSample(const Paths& files);

}  // namespace practice
