#pragma once

#include <string>
#include <string_view>

// Texts that are formats by accident: printed as printf would, without there being any arguments.
namespace orvane {

// Returns `format` with its conversions carried out as if every argument were zero, and without
// reading any. Case by case:
//
//   %d %i %u %o %x %X             0
//   %f %F %e %E %g %G %a %A       0.000000
//   %s                            (null)
//   %c %n                         nothing, and nothing is written anywhere
//   %%                            a per cent sign
//   anything else                 stands as it is
//
// Flags, width and precision of the first two lines are honoured, a "*" among them counting as 0;
// the result of one conversion takes no more than 256 characters. Length modifiers (hh, h, l, ll,
// j, z, t, L) change nothing.
[[nodiscard]] std::string FormatWithoutArguments(std::string_view format);

}  // namespace orvane
