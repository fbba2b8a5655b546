#pragma once

#include <string>
#include <vector>

#include "tests/inspect/check/check_rows.h"
#include "tests/support/htr_text.h"

// What is told of HTR files, each of them a walk with one damage.

namespace test {

// Lines: 1 [Header], 5 NumSegments, 6 NumFrames, 7 DataFrameRate, 14 [SegmentNames&Hierarchy],
// 17 [BasePosition], 20 [Hips], 24 [Spine], 28 [EndOfFile].
HtrText Walk();
std::string DamagedWalk(const std::string& from, const std::string& to);

extern const std::vector<CheckRow> kHtrHeaderRows;   // the file, its lines and its header
extern const std::vector<CheckRow> kHtrSegmentRows;  // numbers, the hierarchy and what moves

}  // namespace test
