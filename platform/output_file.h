#pragma once

#include <string>
#include <string_view>

// A file that appears whole or not at all: its bytes are written beside it under another name,
// ".orvane-" with two numbers behind, and only when all of them are safe does it get its own.
// Neither a full disk nor a killed process leaves half a file, and what stood there before is kept
// until then. What a killed process leaves under that other name is removed by the next one that
// writes into the folder.

namespace platform {

// The making of one file. What was begun and not delivered is removed with the object.
class OutputFile {
 public:
  // Nothing happens yet. `path` (UTF-8) is the file to make; a symbolic link that leads to a file
  // stands for that file. `replace` allows it to take the place of an existing one, whose
  // permissions it then gets; on Windows it has those that its folder gives to files.
  OutputFile(const std::string& path, bool replace);
  ~OutputFile();
  OutputFile(const OutputFile&) = delete;
  OutputFile& operator=(const OutputFile&) = delete;

  // Whether a file is there that would be replaced if that were allowed.
  [[nodiscard]] bool IsTaken() const;

  // Whether a file is there that nobody may write, whatever this user may otherwise do. It is never
  // replaced.
  [[nodiscard]] bool IsReadOnly() const;

  // Returns why the file cannot be made, as far as it can be told before trying, or an empty text.
  [[nodiscard]] std::string WhyImpossible() const;

  // The folder that the file is to lie in: of one that a link stands for, its own. Who writes it
  // there can hand it to TakeOver.
  [[nodiscard]] std::string Folder() const;

  // Writes `bytes` beside the file's place, behind those of the calls before. Returns an empty
  // text, or what went wrong in the system's words. REQUIRES: neither Write nor TakeOver nor Finish
  // has been called, and no call has failed.
  [[nodiscard]] std::string Append(std::string_view bytes);

  // Waits until what was appended is on the disk. Returns as Append does.
  // REQUIRES: Append has been called, and no call has failed.
  [[nodiscard]] std::string Finish() const;

  // Append and Finish, for who has all bytes at once.
  // REQUIRES: neither Append nor TakeOver has been called.
  [[nodiscard]] std::string Write(std::string_view bytes);

  // As Write, but with the bytes of the finished file `path`, which lies on the same disk, such as
  // in a folder in Folder(), and is this object's from now on.
  // REQUIRES: neither Write nor Append has been called.
  [[nodiscard]] std::string TakeOver(const std::string& path);

  // Gives what was written its name. An existing file is replaced in one step when that is
  // allowed, and kept otherwise, even one that has appeared in the meantime. Returns an empty text,
  // or what went wrong in the system's words; the file's place is then as it was.
  // REQUIRES: Write, Finish or TakeOver has succeeded, and Deliver has not.
  [[nodiscard]] std::string Deliver();

 private:
  [[nodiscard]] std::string CreateAside();
  [[nodiscard]] std::string FillAside(std::string_view bytes);
  void Close();

  std::string path_;
  bool replace_;
  std::string aside_;  // empty when nothing stands aside
  int file_ = -1;
};

}  // namespace platform
