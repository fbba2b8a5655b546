#pragma once

// Whether a person is looking, and at how wide a line; and how he reads it.

namespace platform {

// True when the process's standard error goes to a terminal.
[[nodiscard]] bool ErrorIsTerminal();

// Columns of that terminal; 0 when it does not tell, or when it is none.
[[nodiscard]] int ErrorColumns();

// As long as it exists, a console takes what is written to it as UTF-8; then as before. Terminals
// elsewhere than on Windows do so anyway, and where there is no console nothing happens.
class Utf8Console {
 public:
  Utf8Console();
  Utf8Console(const Utf8Console&) = delete;
  Utf8Console& operator=(const Utf8Console&) = delete;
  ~Utf8Console();

 private:
  [[maybe_unused]] unsigned former_ = 0;  // code page; 0: there is no console
};

}  // namespace platform
