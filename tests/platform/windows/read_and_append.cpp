#include <fstream>

// read_and_append FILE COPY LINE: what another process does with a file that is open elsewhere.
// Writes what is in FILE to COPY, then LINE behind it to FILE.

int main(int argument_count, char** arguments) {
  if (argument_count != 4) return 2;
  std::ifstream file(arguments[1], std::ios::binary);
  std::ofstream copy(arguments[2], std::ios::binary);
  copy << file.rdbuf();
  std::ofstream end(arguments[1], std::ios::app);
  end << arguments[3] << '\n';
  return file && copy.flush() && end.flush() ? 0 : 1;
}
