#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

// The parameters of a C3D file: groups of named values, each with its size and a description.
namespace orvane {

inline constexpr std::size_t kC3dBlock = 512;
// As one byte counts the blocks.
inline constexpr std::size_t kMostC3dParameterBytes = 255 * kC3dBlock;

// Collects the bytes of the section. Names are capitals; descriptions have 255 bytes at most.
class C3dParameterSection {
 public:
  // A parameter may take so many bytes, because the next one is found by a signed number.
  static constexpr std::size_t kMostDataBytes = 32'500;

  C3dParameterSection();

  // The parameters that are added next belong to it.
  void AddGroup(std::string_view name, std::string_view description);

  // 16 bits each; a single one without dimensions.
  void AddWords(std::string_view name, std::string_view description,
                const std::vector<std::uint32_t>& words);
  void AddFloat(std::string_view name, std::string_view description, float value);
  void AddText(std::string_view name, std::string_view description, std::string_view text);
  // All as long as the longest of them, with blanks. REQUIRES: no more than 255 texts of 255
  // bytes, and no more than kMostDataBytes in all.
  void AddTexts(std::string_view name, std::string_view description,
                const std::vector<std::string_view>& texts);

  // The whole section, filled up to full blocks. REQUIRES: it is called once. The count of blocks
  // in it is only right for kMostC3dParameterBytes at most.
  [[nodiscard]] std::string Finish();

 private:
  enum class Type : std::uint32_t { kText = 0xFF, kWords = 2, kFloats = 4 };

  void AddParameter(std::string_view name, std::string_view description, Type type,
                    const std::vector<std::size_t>& dimensions, std::string_view data);
  void StartRecord(std::string_view name, std::uint32_t group, std::size_t size_behind_link);
  void PutByte(std::uint32_t value);
  void PutWord(std::uint32_t value);
  void PutDescription(std::string_view description);

  std::string bytes_;
  std::size_t last_link_ = 0;  // where the last record tells how far away the next one is
  std::uint32_t groups_ = 0;
};

}  // namespace orvane
