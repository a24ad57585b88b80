// What a sweep has done so far, which a file keeps.
#pragma once

#include <array>
#include <bitset>
#include <cstdint>
#include <filesystem>

#include "sweep/samples.h"
#include "sweep/type_check.h"

namespace sweep {

// Of one type.
struct type_record {
  std::bitset<blocks> done;
  findings found;
  double seconds = 0;  // of one processor
};

// Of all types.
using record = std::array<type_record, numLabelCvts>;

// Returns what a file keeps; an empty record if there is no such file. Throws std::runtime_error if the file holds
// anything else.
[[nodiscard]] record load(std::filesystem::path const& file);

// Keeps the record. At every moment the file holds either this record or the one before. Throws std::runtime_error
// if it cannot be written.
void save(record const& all, std::filesystem::path const& file);

}  // namespace sweep
