# cmake -D INPUT=file -D OUTPUT=file.c -P bytes_to_c.cmake: the bytes of a file as an array in C,
# with its size, for the library that they are linked into and for nobody outside it.
file(READ "${INPUT}" bytes HEX)
string(REGEX REPLACE "(..)" "0x\\1," bytes "${bytes}")
string(REGEX REPLACE "(................................................................................)" "\\1\n" bytes "${bytes}")
file(WRITE "${OUTPUT}"
"#include <stddef.h>
#define HIDDEN __attribute__((visibility(\"hidden\")))
HIDDEN _Alignas(4) const unsigned char orvane_resources[] = {
${bytes}
};
HIDDEN const size_t orvane_resources_size = sizeof orvane_resources;
")
