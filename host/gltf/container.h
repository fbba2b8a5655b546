#pragma once

#include <string>

#include "host/gltf/document.h"
#include "host/gltf/writer.h"

namespace host::gltf {

// The bytes of the file with `document` in it. Throws a Refusal when they are more than it can
// hold.
std::string PackedDocument(Document document, Container container);

}  // namespace host::gltf
