#include <CLI/CLI.hpp>
#include <filesystem>
#include <fstream>
#include <iostream>

#include "cli/help/definitions.h"
#include "cli/manual/completion.h"
#include "cli/manual/man_page.h"
#include "cli/parser.h"

// Writes the pages of the manual, and the completion of command lines, to a folder: as they lie
// below share/ where the program is installed.

namespace {

namespace fs = std::filesystem;

void Write(const fs::path& path, const std::string& text) {
  fs::create_directories(path.parent_path());
  std::ofstream file(path, std::ios::binary);
  file << text;
  file.close();
  if (!file) throw std::runtime_error(path.string() + " could not be written");
}

void WritePages(const CLI::App& app, const fs::path& folder) {
  Write(folder / (cli::PageName(app) + ".1"), cli::ManPage(app));
  for (const CLI::App* verb : cli::VerbsOf(app)) WritePages(*verb, folder);
}

void WriteAll(const fs::path& folder) {
  cli::Work work;
  const auto app = cli::MakeParser(work);
  WritePages(*app, folder / "man/man1");
  Write(folder / "bash-completion/completions/orvane", cli::BashCompletion(*app));
}

}  // namespace

int main(int argument_count, char** arguments) {
  if (argument_count != 2) {
    std::cerr << "make_manual: the folder to write to is missing\n";
    return 2;
  }
  try {
    WriteAll(arguments[1]);
  } catch (const std::exception& error) {
    std::cerr << "make_manual: " << error.what() << '\n';
    return 1;
  }
  return 0;
}
