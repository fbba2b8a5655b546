#pragma once

// Numbers as they stand in a file.
namespace orvane {

class TextBuffer;

class BvhNumberText {
 public:
  // The shortest text that reads back as the same number.
  BvhNumberText() = default;
  // With so many digits behind the point, 0 to 20.
  explicit BvhNumberText(int decimals) : decimals_(decimals) {}

  // With so many as make no difference to a skeleton of that height: less than a ten-millionth of
  // it, and six at least. The shortest text where those would be more than fifteen.
  static BvhNumberText OfLengths(double height);

  // With six, which turn a bone of the height's length by less than a hundred-millionth of it.
  static BvhNumberText OfAngles();

  // Never as a negative zero. REQUIRES: it is finite.
  void Put(double number, TextBuffer& text) const;

 private:
  static constexpr int kShortest = -1;

  int decimals_ = kShortest;
};

}  // namespace orvane
