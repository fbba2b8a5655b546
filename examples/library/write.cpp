// Writes a motion file: a pendulum of 500 mm that swings by 30 degrees for two seconds.
#include <orvane/formats/htr/writer.h>

#include <cmath>
#include <iostream>
#include <numbers>
#include <string>

int main(int argc, char** argv) {
  if (argc != 2) {
    std::cerr << "usage: write FILE.htr\n";
    return 2;
  }
  constexpr int kRate = 60;
  constexpr int kFrames = 2 * kRate;

  orvane::HtrSegment pendulum("Pendulum");
  pendulum.SetIsRoot(true);
  pendulum.SetBaseTranslation(0, 1000, 0);           // millimeters, as the document says
  pendulum.SetBaseRotation(0, 0, std::numbers::pi);  // radians: it hangs down
  pendulum.SetBoneLength(500);
  for (int frame = 0; frame < kFrames; ++frame) {
    const double phase = 2 * std::numbers::pi * frame / kRate;
    const double angle = std::numbers::pi / 6 * std::cos(phase);
    pendulum.AddFrame(orvane::Vector3(), orvane::Vector3(0, 0, angle), /*scale=*/1);
  }

  orvane::HtrDocument document;
  document.SetDataFrameRate(kRate);
  document.SetNumFrames(kFrames);
  document.AddSegment(pendulum);  // a copy

  const std::string message = orvane::WriteHtrFile(document, argv[1]);
  if (!message.empty()) std::cerr << argv[1] << ": " << message << '\n';
  return message.empty() ? 0 : 1;
}
