// Lists the gaps of a marker file: the marker, and the numbers of the first and the last frame.
#include <orvane/formats/trc/document.h>

#include <iostream>
#include <string>

int main(int argc, char** argv) {
  if (argc != 2) {
    std::cerr << "usage: gaps FILE.trc\n";
    return 2;
  }
  orvane::TRCDocument document;
  const std::string message = document.Read(argv[1], /*include_unnamed=*/true);
  if (!message.empty()) {
    std::cerr << argv[1] << ": " << message << '\n';
    return 1;
  }
  // Samples count from 0, and a gap ends before its `end`.
  const long long first_frame = document.FirstFrame();
  for (const orvane::TRCMarker& marker : document.markers()) {
    for (const orvane::TRCMarker::Gap& gap : marker.Gaps()) {
      std::cout << marker.Name() << '\t' << first_frame + static_cast<long long>(gap.begin) << '\t'
                << first_frame + static_cast<long long>(gap.end) - 1 << '\n';
    }
  }
}
