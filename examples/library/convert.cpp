// Makes a BVK file of a marker file, and tells before what is odd in that and what becomes of it.
#include <orvane/formats/bvk/writer.h>
#include <orvane/formats/text/files.h>
#include <orvane/inspect/check/trc_check.h>
#include <orvane/inspect/report/report.h>

#include <ctime>
#include <fstream>
#include <iostream>
#include <stdexcept>
#include <string>

int main(int argc, char** argv) try {
  if (argc != 3) throw std::runtime_error("usage: convert FILE.trc OUT.bvk");
  orvane::FileSource source(argv[1]);
  if (!source.IsOpen()) throw std::runtime_error(std::string(argv[1]) + ": cannot be read");

  orvane::TRCDocument document;
  const orvane::CheckedFile checked = orvane::CheckTrc(argv[1], source, document);
  for (const auto& finding : orvane::ReportOn(checked, orvane::Action::kConvert).findings) {
    std::cerr << argv[1] << ':' << finding.line << ": " << finding.cause << ". "
              << finding.consequence << '\n';
  }
  if (source.HasFailed() || !checked.refusal.empty()) return 1;

  const std::time_t now = std::time(nullptr);
  const orvane::BvkDetails details{"example", std::ctime(&now), {}};
  std::ofstream output(argv[2], std::ios::binary);
  orvane::PrintBvk(document, details, [&output](std::string_view text) { output << text; });
  output.close();
  if (!output) throw std::runtime_error(std::string(argv[2]) + ": cannot be written");
} catch (const std::exception& error) {
  std::cerr << error.what() << '\n';
  return 1;
}
