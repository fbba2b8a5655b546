#pragma once

#include <ostream>
#include <string>

#include "cli/common/failure.h"
#include "cli/common/file_kind.h"
#include "cli/common/table.h"
#include "cli/info/info_report.h"
#include "cli/info/trc_info.h"

namespace cli {

// What `orvane info` tells of many files: a line a file.
class InfoTable {
 public:
  InfoTable();

  void Add(const InfoReport& report);
  void Add(const TrcInfoReport& report);
  // A file that could not be shown.
  void Add(const std::string& file, FileKind kind, ExitStatus why);

  // Nothing without a file.
  void Print(std::ostream& out) const;

 private:
  Table table_;
};

}  // namespace cli
