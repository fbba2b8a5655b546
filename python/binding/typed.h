#pragma once

#include <nanobind/nanobind.h>
#include <nanobind/typing.h>

#include <cstddef>

// Python's containers with the types of what is in them, which the type stub tells.

namespace binding {

using TextList = nanobind::typed<nanobind::list, nanobind::str>;
using TextTuple = nanobind::typed<nanobind::tuple, nanobind::str, nanobind::ellipsis>;
using AnyDict = nanobind::typed<nanobind::dict, nanobind::str, nanobind::any>;

// (code, severity, count, line, column, names, cause, consequence)
using FindingTuple =
    nanobind::typed<nanobind::tuple, nanobind::str, nanobind::str, std::size_t, std::size_t,
                    std::size_t, TextTuple, nanobind::str, nanobind::str>;
using FindingList = nanobind::typed<nanobind::list, FindingTuple>;

}  // namespace binding
