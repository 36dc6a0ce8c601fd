#pragma once

#include "FrontMatter.h"

namespace vornel {

/// Reads what stands between the two marks of a head into its fields, and the first thing that is wrong with
/// it into its failure.
void readYamlFields(QStringView yaml, FrontMatter &head);

} // namespace vornel
