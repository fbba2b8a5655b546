#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "formats/trc/document.h"
#include "formats/units/units.h"

// What a C3D file of a document will be, and what is lost on the way, told before anything is
// written. Frames are counted from 0, unless their number in a file is meant. Pointers are to the
// document's markers. Nothing fails but for want of memory. May be called from any thread, as long
// as no other one changes the document.
namespace orvane {

struct C3dOptions {
  // In place of the document's whole number of frames a second, and as text that says it exactly,
  // such as "59.94" or "60000/1001". REQUIRES: the text has 255 bytes at most.
  struct Rate {
    double frames_per_second = 0.0;
    std::string text;
  };
  std::optional<Rate> rate;
  std::uint32_t vertical_axis = kAxisY;  // which way up is, as the file tells it
  double first_time = 0.0;               // of the first frame, in seconds
};

struct C3dRefusal {
  enum class Reason {
    kTooManyMarkers,  // more than its header can count
    kTooManyFrames,   // numbered beyond 32 bits
    kNamesTooLong,    // all of them together are more than its parameters can hold
    kRate,            // it is not above 0, or is infinite; in single precision too
    kNotFinite,       // a coordinate is no number, or infinite; in single precision too
  };
  Reason reason = Reason::kTooManyMarkers;
  std::size_t count = 0;              // of markers; of bytes that the parameters would take
  std::size_t most = 0;               // that there may be
  const TRCMarker* marker = nullptr;  // of kNotFinite
  std::size_t frame = 0;              // of kNotFinite
};

// What the document says and the file does not.
struct C3dLosses {
  struct Label {
    const TRCMarker* marker = nullptr;
    std::string label;               // what is left of its name, of 255 bytes at most
    bool is_cut = false;             // the name is longer
    bool has_blanks_at_end = false;  // which readers take for padding
    bool is_beyond_ascii = false;    // written as it is; readers may take it for other characters
  };
  // The coordinate that single precision moves farthest.
  struct Rounding {
    const TRCMarker* marker = nullptr;
    std::size_t frame = 0;
    double error_mm = 0.0;
  };

  std::vector<Label> labels;
  std::optional<Rounding> rounding;         // where there is any
  std::optional<std::int32_t> first_frame;  // a number below 1; the file starts at 1
  std::optional<double> first_time;  // in seconds, unless it is 0 or goes by the frame's number
  bool is_beyond_header = false;  // frames are numbered beyond 16 bits: parameters alone tell them
  bool is_rate_rounded = false;   // to single precision; a parameter has it as text
  std::optional<std::int32_t> camera_rate;  // unless it is 0 or the rate
  std::size_t disabled_markers = 0;
};

struct C3dPlan {
  std::optional<C3dRefusal> refusal;  // nothing else is told then
  std::vector<const TRCMarker*> markers;
  std::vector<std::string> labels;  // of the markers
  std::uint32_t frame_count = 0;    // the most samples that a marker has
  std::uint32_t first_frame = 1;    // its number
  double frames_per_second = 0.0;
  std::string parameters;  // the bytes of all parameters, whole blocks of them
  C3dLosses losses;
};

// Asks for every sample once, and so does printing. The plan points into `document`, which must
// outlive it and not change.
[[nodiscard]] C3dPlan PlanC3d(const TRCDocument& document, const C3dOptions& options);

}  // namespace orvane
