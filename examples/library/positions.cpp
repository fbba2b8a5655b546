// Lists where a segment of a motion file is in the world: the number of the frame, x, y and z.
#include <orvane/formats/htr/reader.h>
#include <orvane/formats/pose/pose_walk.h>

#include <algorithm>
#include <iostream>
#include <string>

int main(int argc, char** argv) {
  if (argc != 3) {
    std::cerr << "usage: positions FILE.htr SEGMENT\n";
    return 2;
  }
  orvane::HtrDocument document;
  const std::string message = orvane::ReadHtrFile(document, argv[1], /*read_motion=*/true);
  const orvane::HtrSegment* const segment = document.FindSegment(argv[2]);
  if (!message.empty() || segment == nullptr) {
    std::cerr << argv[1] << ": " << (message.empty() ? "has no such segment" : message) << '\n';
    return 1;
  }
  const auto hierarchy = orvane::ListHierarchy(document);
  const auto entry = std::find_if(hierarchy.begin(), hierarchy.end(),
                                  [&](const auto& each) { return each.segment == segment; });
  if (entry == hierarchy.end()) return 0;  // it hangs from no root
  // Frames and entries count from 0.
  orvane::PoseWalk walk(hierarchy, orvane::PoseParts::kPositions);
  for (std::size_t frame = 0; frame < segment->GetNumFrames(); ++frame) {
    walk.MoveTo(frame);
    const orvane::Point& place =
        walk.PositionOf(static_cast<std::size_t>(entry - hierarchy.begin()));
    std::cout << document.GetStartFrame() + static_cast<long long>(frame) << '\t' << place[0]
              << '\t' << place[1] << '\t' << place[2] << '\n';
  }
}
