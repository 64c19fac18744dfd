#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "tables/MemoryTable.h"

namespace ORXKMPrintProp::bench {

using Rows = std::vector<std::vector<Text>>;

/// The cells of a table, all of them texts.
struct Sample {
  std::vector<Text> columns;
  Rows rows;
};

/// Dimension, attribute and member table. The last dimension row is a structure, to which all members belong.
std::vector<Sample> MakeSamples(std::int64_t rows);

std::shared_ptr<MemoryTable> TableOf(const Sample& sample);
std::shared_ptr<MemoryTable> GeneralTable();

}  // namespace ORXKMPrintProp::bench
