#include <gmock/gmock.h>

#include <algorithm>
#include <map>
#include <nlohmann/json.hpp>
#include <regex>
#include <set>
#include <sstream>
#include <utility>

#include "tests/cli/orvane_test.h"

// What the check says of the damaged files that the scripts in examples/ make, against what each
// verb tells on standard error of the same files.

namespace {

using nlohmann::json;
using test::ProgramResult;
using test::ReadFile;

using Arguments = std::vector<std::string>;

constexpr char kExamples[] = ORVANE_SOURCE_DIR "/examples/";

// What is done with the damaged files of a kind.
struct Use {
  std::string name;
  std::string script;
  std::string list;    // of the files
  std::string action;  // as docs/findings.md calls it
  Arguments before;    // the verb and what stands in front of the file
  Arguments behind;
};

std::ostream& operator<<(std::ostream& out, const Use& use) { return out << use.name; }

struct Said {
  std::string severity;
  std::string code;
};

// The columns of a row of a table, without the blanks around them.
std::vector<std::string> ColumnsOf(const std::string& row) {
  std::vector<std::string> columns;
  std::istringstream cells(row.substr(1));
  for (std::string cell; std::getline(cells, cell, '|');) {
    const std::size_t first = cell.find_first_not_of(' ');
    const std::size_t last = cell.find_last_not_of(' ');
    columns.push_back(first == std::string::npos ? "" : cell.substr(first, last - first + 1));
  }
  return columns;
}

// The severity of each code for `action`, from the tables of the page.
std::map<std::string, std::string> SeveritiesFor(const std::string& action) {
  std::istringstream lines(ReadFile(ORVANE_SOURCE_DIR "/docs/findings.md"));
  std::map<std::string, std::string> severities;
  std::size_t wanted = 0;
  for (std::string line; std::getline(lines, line);) {
    if (!line.starts_with("| ")) continue;
    const std::vector<std::string> columns = ColumnsOf(line);
    if (columns[0] == "Code") {
      wanted = static_cast<std::size_t>(std::find(columns.begin(), columns.end(), action) -
                                        columns.begin());
    } else {
      severities[columns[0].substr(1, columns[0].size() - 2)] = columns.at(wanted);
    }
  }
  return severities;
}

std::vector<Said> SaidIn(const std::string& error) {
  static const std::regex finding("^orvane: .*: (note|warning|error): .* \\[([a-z-]+)\\]$");
  std::vector<Said> said;
  std::istringstream lines(error);
  std::smatch match;
  for (std::string line; std::getline(lines, line);) {
    if (std::regex_match(line, match, finding)) said.push_back({match[1], match[2]});
  }
  return said;
}

// How a refusal says what a code says, with more about it.
bool IsSaidInARefusal(const std::string& code, const std::string& error) {
  static const std::map<std::string, std::string> refusals = {
      {"htr-frames-too-many",
       ": The header announces 2000000000 frames, but the file holds 120 "
       "[htr-frames-too-many]\n"},
      {"trc-frames-too-many",
       ": The header announces 2000000000 frames, but the file holds 120 "
       "[trc-frames-too-many]\n"},
      {"trc-markers-missing", ": The file holds no markers [trc-markers-missing]\n"}};
  const auto refusal = refusals.find(code);
  return refusal != refusals.end() && error.find(refusal->second) != std::string::npos;
}

class SaidFindingsTest : public test::OrvaneTest, public testing::WithParamInterface<Use> {
 protected:
  SaidFindingsTest() {
    test::ProgramRun run;
    run.command = {"/usr/bin/env", "python3", "-B", kExamples + GetParam().script,
                   folder_.File("damaged")};
    EXPECT_EQ(RunProgram(run).status, 0);
    std::istringstream listed(ReadFile(folder_.File("damaged/" + GetParam().list)));
    for (std::string file, line, code; listed >> file >> line >> code;) {
      files_.push_back("damaged/" + file);
    }
    for (const std::string name : {"walk.htr", "walk.trc"}) {
      Write(name, ReadFile(kExamples + name));
      EXPECT_EQ(Orvane({"import", name, "-o", name + ".glb", "--quiet"}).status, 0);
    }
  }

  // The codes that the check finds in each of the files, with their severities for the action.
  std::map<std::string, std::map<std::string, std::string>> Found() const {
    Arguments arguments = {"check", "--json"};
    if (GetParam().action != "inspect") {
      arguments.insert(arguments.end(), {"--for", GetParam().action});
    }
    arguments.insert(arguments.end(), files_.begin(), files_.end());
    std::map<std::string, std::map<std::string, std::string>> found;
    const json listing = json::parse(Orvane(arguments).output);
    for (const json& file : listing["files"]) {
      for (const json& finding : file["findings"]) {
        found[file["file"]][finding["code"]] = finding["severity"];
      }
    }
    return found;
  }

  std::string ErrorOf(const std::string& file) const {
    Arguments arguments = GetParam().before;
    arguments.push_back(file);
    arguments.insert(arguments.end(), GetParam().behind.begin(), GetParam().behind.end());
    return Orvane(arguments).error;
  }

  std::vector<std::string> files_;
};

TEST_P(SaidFindingsTest, AreThoseOfTheCheckAndTheTable) {
  const auto found = Found();
  const auto severities = SeveritiesFor(GetParam().action);
  ASSERT_GT(files_.size(), 10U);
  for (const std::string& file : files_) {
    const std::string error = ErrorOf(file);
    std::set<std::string> codes;
    for (const Said& said : SaidIn(error)) {
      const bool is_behind_frames = found.count(file) > 0 && found.at(file).count(said.code) > 0 &&
                                    found.at(file).at(said.code) == "note";
      EXPECT_EQ(is_behind_frames ? "note" : severities.at(said.code), said.severity)
          << file << ": " << said.code;
      EXPECT_TRUE(codes.insert(said.code).second) << file << ": " << said.code << " comes again";
    }
    if (found.count(file) == 0) continue;
    for (const auto& [code, severity] : found.at(file)) {
      if (severity == "note" || IsSaidInARefusal(code, error)) continue;
      EXPECT_EQ(codes.count(code), 1U) << file << ": " << severity << ' ' << code << '\n' << error;
    }
  }
}

const Arguments kToScene = {"-o", "out.glb", "--force"};
const Arguments kToMotion = {"-o", "out.htr", "--force"};
const Arguments kToMarkerFile = {"-o", "out.trc", "--force"};
const Arguments kToMarkers = {"-o", "out.bvk", "--force"};
const Arguments kToJoints = {"-o", "out.bvh", "--force"};
const Arguments kToPoints = {"-o", "out.c3d", "--force"};
const Arguments kToTable = {"-o", "out.csv", "--force"};

// Of an import into a scene nothing is left out that a new scene would take.
Use Applied(Use use, const std::string& scene, const Arguments& selection) {
  use.behind = {"-o", "out.glb", "--force", "--apply", "--frame-rate", "file", "--into", scene};
  use.behind.insert(use.behind.end(), selection.begin(), selection.end());
  return use;
}

INSTANTIATE_TEST_SUITE_P(
    All, SaidFindingsTest,
    testing::Values(
        Use{"MotionImported", "damage_walk.py", "damages.tsv", "import", {"import"}, kToScene},
        Applied({"MotionApplied", "damage_walk.py", "damages.tsv", "apply", {"import"}, {}},
                "walk.htr.glb", {"--select", "Hips"}),
        Use{"MotionShown", "damage_walk.py", "damages.tsv", "inspect", {"info"}, {}},
        Use{"MarkersImported", "damage_markers.py", "damages.tsv", "import", {"import"}, kToScene},
        // As onto nodes that are not hidden in gaps.
        Applied({"MarkersApplied", "damage_markers.py", "damages.tsv", "apply", {"import"}, {}},
                "walk.trc.glb", {"--gaps", "hold"}),
        Use{"MarkersConverted",
            "damage_markers.py",
            "damages.tsv",
            "convert",
            {"convert"},
            kToMarkers},
        Use{"MotionRewritten", "damage_walk.py", "damages.tsv", "rewrite", {"rewrite"}, kToMotion},
        Use{"MarkersRewritten",
            "damage_markers.py",
            "damages.tsv",
            "rewrite",
            {"rewrite"},
            kToMarkerFile},
        Use{"MotionToBvh", "damage_walk.py", "damages.tsv", "rewrite", {"rewrite"}, kToJoints},
        Use{"MotionToCsv", "damage_walk.py", "damages.tsv", "rewrite", {"rewrite"}, kToTable},
        Use{"MarkersToC3d", "damage_markers.py", "damages.tsv", "rewrite", {"rewrite"}, kToPoints},
        Use{"MarkersToCsv", "damage_markers.py", "damages.tsv", "rewrite", {"rewrite"}, kToTable},
        Use{"MarkersShown", "damage_markers.py", "damages.tsv", "inspect", {"info"}, {}},
        Use{"MappingsConvertedWith",
            "damage_markers.py",
            "mappings.tsv",
            "convert",
            {"convert", "walk.trc", "-o", "out.bvk", "--force", "--mapping"},
            {}}),
    [](const auto& use) { return use.param.name; });

}  // namespace
