#pragma once

#include "plugin/resources/product.h"

// What every importer and exporter of the module answers alike when the host asks about it.
namespace orvane {

inline constexpr char kAuthorName[] = "Orvane Corporation";
inline constexpr char kCopyrightMessage[] = ORVANE_COPYRIGHT;
inline constexpr unsigned kClassVersion = 300;  // version number times 100

}  // namespace orvane
