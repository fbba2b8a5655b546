#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <string>
#include <vector>

#include "inspect/check/findings.h"

// The tables that the tests of the checks are made of: files, and what is told of them.

namespace test {

// "LINE:COLUMN SEVERITY CODE", what was found, what was expected, and the effect.
using Told = std::array<std::string, 4>;

// A file, and one of its findings.
struct CheckRow {
  std::string behavior;
  std::string bytes;
  Told told;
};

inline std::vector<Told> AllTold(const orvane::FindingList& findings) {
  std::vector<Told> all;
  for (const orvane::Finding& finding : findings.Sorted()) {
    all.push_back({std::to_string(finding.line) + ":" + std::to_string(finding.column) + " " +
                       std::string(orvane::SeverityName(finding.rule.severity)) + " " +
                       std::string(finding.rule.code),
                   finding.found, finding.expected, finding.effect});
  }
  return all;
}

// Expects what `tell` tells of the file of every row to hold its finding.
template <typename Tell>
void ExpectTold(const std::vector<CheckRow>& rows, const Tell& tell) {
  for (const CheckRow& row : rows) {
    EXPECT_THAT(tell(row.bytes), testing::Contains(row.told)) << row.behavior;
  }
}

// Expects a row for every one of `rules`.
template <typename Rules>
void ExpectARowForEach(const Rules& rules, const std::vector<CheckRow>& rows) {
  for (const orvane::FindingRule& rule : rules) {
    const std::string end = " " + std::string(rule.code);
    EXPECT_TRUE(std::any_of(rows.begin(), rows.end(), [&end](const CheckRow& row) {
      return row.told[0].ends_with(end);
    })) << rule.code;
  }
}

}  // namespace test
