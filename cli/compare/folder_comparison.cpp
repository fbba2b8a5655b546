#include "cli/compare/folder_comparison.h"

#include <algorithm>
#include <filesystem>
#include <iostream>
#include <map>

#include "cli/common/found_files.h"
#include "cli/common/json_members.h"
#include "cli/common/messages.h"
#include "cli/common/table.h"
#include "cli/common/tally.h"
#include "cli/compare/comparison_members.h"
#include "cli/compare/comparison_text.h"
#include "formats/text/numbers.h"
#include "platform/path_text.h"

namespace cli {
namespace {

using orvane::FileReport;
using orvane::FormatDouble;
using orvane::FormatInt;

// Cells of a pair behind its name and its verdict.
std::string Largest(const orvane::Spread& spread) {
  return spread.count > 0 ? FormatDouble(spread.largest) : "-";
}

std::string FirstBeyond(const std::optional<std::int64_t>& frame) {
  return frame ? FormatInt(*frame) : "-";
}

std::vector<std::string> CellsOf(const MotionReport& report) {
  const auto& overall = report.motion.overall;
  return {Largest(overall.position_mm), Largest(overall.orientation_deg),
          FirstBeyond(overall.first_beyond)};
}

std::vector<std::string> CellsOf(const MarkerReport& report) {
  const auto& overall = report.comparison.overall;
  return {Largest(overall.distance_mm), "-", FirstBeyond(overall.first_beyond)};
}

class ComparingFolders {
 public:
  explicit ComparingFolders(const FolderWishes& wishes)
      : wishes_(wishes),
        manner_(wishes.manner),
        a_(Find(wishes.folder_a)),
        b_(Find(wishes.folder_b)) {
    manner_.report.file.clear();
    manner_.report.gathered = &reports_;
    for (const std::string& name : a_.names) sides_[platform::PathOf(name)].in_a = true;
    for (const std::string& name : b_.names) sides_[platform::PathOf(name)].in_b = true;
  }

  ExitStatus Run() {
    RequireReportOutside();
    TellOfFolders();
    JsonWriter json(std::cout);
    if (wishes_.json) BeginPairs(json);
    for (const auto& [name, sides] : sides_) {
      if (sides.in_a && sides.in_b) {
        ComparePair(platform::TextOf(name), json);
      } else {
        AddOnly(platform::TextOf(name), sides.in_a);
      }
    }
    if (wishes_.json) {
      EndPairs(json);
    } else if (!wishes_.quiet) {
      PrintPage();
    }
    Complain();
    WriteReportFile(reports_, wishes_.manner.report);
    return std::max(status_, IsSame() ? ExitStatus::kDone : ExitStatus::kDifferent);
  }

 private:
  struct Sides {
    bool in_a = false;
    bool in_b = false;
  };

  FoundFiles Find(const std::string& folder) const {
    return FilesIn(folder, {{".htr", ".trc"}, "compare", "compared", wishes_.recursive});
  }

  static std::string FileIn(const std::string& folder, const std::string& name) {
    return platform::TextOf(platform::PathOf(folder) / platform::PathOf(name));
  }

  void RequireReportOutside() const {
    std::vector<std::string> files;
    for (const std::string& name : a_.names) files.push_back(FileIn(wishes_.folder_a, name));
    for (const std::string& name : b_.names) files.push_back(FileIn(wishes_.folder_b, name));
    RequireReportApart(wishes_.manner.report, files, {});
  }

  void TellOfFolders() {
    for (const FoundFiles* found : {&a_, &b_}) {
      if (!wishes_.quiet) PrintNotes(*found);
      if (!found->errors.empty()) Add({ExitStatus::kInputOutput, found->errors});
    }
  }

  void Add(const Failure& failure) {
    complaints_.insert(complaints_.end(), failure.complaints.begin(), failure.complaints.end());
    status_ = std::max(status_, failure.status);
  }

  void ComparePair(const std::string& name, JsonWriter& json) {
    try {
      InputFiles files({}, "");
      CompareAndUse(FileIn(wishes_.folder_a, name), FileIn(wishes_.folder_b, name), files, manner_,
                    [&](const auto& report) {
                      AddPair(name, report.SaysTheSame(), CellsOf(report));
                      if (wishes_.json) WriteComparison(json, report);
                    });
    } catch (const Failure& failure) {
      Add(failure);
      not_compared_.push_back(name);
      table_.Add({Printable(name), "not compared", "-", "-", "-"});
    }
  }

  void AddPair(const std::string& name, bool is_same, const std::vector<std::string>& cells) {
    ++(is_same ? same_ : different_);
    std::vector<std::string> row = {Printable(name), is_same ? "same" : "differs"};
    row.insert(row.end(), cells.begin(), cells.end());
    table_.Add(std::move(row));
  }

  void AddOnly(const std::string& name, bool in_a) {
    (in_a ? only_in_a_ : only_in_b_).push_back(name);
    table_.Add({Printable(name), in_a ? "only in A" : "only in B", "-", "-", "-"});
  }

  bool IsSame() const { return different_ == 0 && only_in_a_.empty() && only_in_b_.empty(); }

  void PrintPage() const {
    if (table_.IsEmpty()) return;
    std::cout << FileLines(wishes_.folder_a, wishes_.folder_b) << '\n';
    table_.Print(std::cout);
    std::cout << TallyOf(sides_.size(),
                         {{same_, "is the same", "are the same"},
                          {different_, "differs", "differ"},
                          {only_in_a_.size(), "is only in A", "are only in A"},
                          {only_in_b_.size(), "is only in B", "are only in B"},
                          {not_compared_.size(), "could not be compared", "could not be compared"}})
              << '\n';
  }

  void BeginPairs(JsonWriter& json) const {
    json.BeginObject();
    WriteInteger(json, "version", kComparisonVersion);
    WriteText(json, "folder_a", wishes_.folder_a);
    WriteText(json, "folder_b", wishes_.folder_b);
    json.Key("pairs");
    json.BeginArray(JsonWriter::Layout::kLines);
  }

  void EndPairs(JsonWriter& json) const {
    json.EndArray();
    WriteNames(json, "only_in_a", only_in_a_);
    WriteNames(json, "only_in_b", only_in_b_);
    WriteNames(json, "not_compared", not_compared_);
    json.Key("same");
    json.Bool(status_ == ExitStatus::kDone && IsSame());
    json.EndObject();
  }

  static void WriteNames(JsonWriter& json, const char* key, const std::vector<std::string>& names) {
    json.Key(key);
    json.BeginArray(JsonWriter::Layout::kLines);
    for (const std::string& name : names) json.String(name);
    json.EndArray();
  }

  void Complain() const {
    std::cout.flush();
    if (!wishes_.quiet) TellAll(reports_, wishes_.manner.report);
    for (const Complaint& complaint : complaints_) Print(Severity::kError, complaint);
  }

  const FolderWishes& wishes_;
  CompareManner manner_;  // of one pair among them
  const FoundFiles a_;
  const FoundFiles b_;
  std::map<std::filesystem::path, Sides> sides_;  // by the names of the files
  Table table_{{{"File"},
                {"Verdict"},
                {"largest mm", Table::Side::kRight},
                {"largest deg", Table::Side::kRight},
                {"first beyond", Table::Side::kRight}}};
  std::vector<FileReport> reports_;
  std::vector<Complaint> complaints_;
  std::vector<std::string> only_in_a_;
  std::vector<std::string> only_in_b_;
  std::vector<std::string> not_compared_;
  std::size_t same_ = 0;
  std::size_t different_ = 0;
  ExitStatus status_ = ExitStatus::kDone;
};

}  // namespace

ExitStatus CompareFolders(const FolderWishes& wishes) { return ComparingFolders(wishes).Run(); }

}  // namespace cli
