#pragma once

#include <map>
#include <ostream>
#include <string>
#include <vector>

#include "inspect/mapping/mapping_roles.h"
#include "inspect/mapping/name_matching.h"
#include "inspect/report/report.h"

// What `orvane map show` tells: as a table for a person, or as JSON for a program.
// docs/command-line.md documents the JSON.

namespace cli {

struct PresentMarker {
  std::string name;     // in the capture
  double coverage = 0;  // the part of the frames that it is present in, 0 to 1
};

struct RoleReport {
  std::string mapping;
  std::string capture;  // the TRC file; empty for none
  std::vector<orvane::MappingRole> roles;
  std::map<std::string, PresentMarker> present;  // by names in the mapping
  orvane::NameMatch match;
  std::vector<orvane::FileReport> reports;  // on the files; empty when nothing is looked for
};

void PrintRolePage(const RoleReport& report, std::ostream& out);
void PrintRoleJson(const RoleReport& report, std::ostream& out);

}  // namespace cli
