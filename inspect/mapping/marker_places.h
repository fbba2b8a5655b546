#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "inspect/mapping/walk_tracks.h"

// Where each marker of a walking body mostly is, and how the markers keep their distances: medians
// over the frames of a walk. All lengths are in heights of the body: from its lowest marker, by
// their places, to the middle of those on its head. So units and sizes do not matter.
//
// The head is what is highest: the markers no more than 0.08 heights below the highest one. They
// must be three to six, keep their distances, and be no further than 0.08 from the middle. The
// middle of the body is where most pairs of markers are mirrored; when markers of one height are
// mirrored but turned, all is turned back, by up to 20 degrees.
//
// There is more than one body, or none, when more than three markers are beyond 0.62 to a side or
// 0.45 forward or back of the head, when one side has more than eight more than the other, and when
// the head is not above the middle.
//
// Markers that do not stay with the body, or that are seen in less than a tenth of the frames, have
// no place. Of a pair that is hardly seen together nothing is known.

namespace orvane {

class MarkerPlaces {
 public:
  // Why nothing can be said, as a sentence without its full stop; empty when it can.
  [[nodiscard]] const std::string& Problem() const { return problem_; }

  explicit MarkerPlaces(WalkTracks walk);

  [[nodiscard]] std::size_t Count() const { return places_.size(); }
  // Whether the marker has a place; only those are asked for below.
  [[nodiscard]] bool HasPlace(std::size_t marker) const { return has_place_[marker]; }
  // `left` from the middle of the body, `up` from its lowest marker, `forward` from the head.
  [[nodiscard]] const BodyPoint& At(std::size_t marker) const { return places_[marker]; }
  // The height that it is above in nine tenths of the frames.
  [[nodiscard]] double LowestOf(std::size_t marker) const;
  [[nodiscard]] const std::vector<std::size_t>& Head() const { return head_; }

  // From `from` to `to`: the median of what it is in each frame, by axis.
  [[nodiscard]] BodyPoint Offset(std::size_t from, std::size_t to) const;
  // As above, what a share of the frames does not exceed forward.
  [[nodiscard]] double ForwardOffset(std::size_t from, std::size_t to, double share) const;

  struct Distance {
    double median = 0;
    double spread = 0;  // between a tenth and nine tenths of the frames; infinite when not known
  };
  [[nodiscard]] Distance Between(std::size_t one, std::size_t other) const;
  // How much the sum of two distances varies: from `one` to each of the others.
  [[nodiscard]] double SpreadOfSum(std::size_t one, std::size_t other, std::size_t third) const;
  [[nodiscard]] bool AreRigid(std::size_t one, std::size_t other, double most_spread) const {
    return Between(one, other).spread <= most_spread;
  }

 private:
  // Of two markers: what is half way between them, and by how much their line is turned forward.
  struct Across {
    double middle;
    double turn;
  };

  void MeasurePlaces();
  void FindHead();
  [[nodiscard]] bool IsHead(double height) const;
  void Straighten();
  [[nodiscard]] std::vector<Across> PairsAcross(double most_forward) const;
  [[nodiscard]] static double MiddleOf(const std::vector<Across>& pairs);
  void Scale(double factor);
  void Turn(double angle);
  void Move(const BodyPoint& by);
  void RefuseOthers();
  [[nodiscard]] std::vector<std::size_t> Placed() const;

  std::vector<BodyTrack> tracks_;
  std::vector<BodyPoint> places_;
  std::vector<bool> has_place_;
  std::vector<std::size_t> head_;
  std::string problem_;
};

}  // namespace orvane
