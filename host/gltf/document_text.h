#pragma once

#include <string>

#include "host/gltf/document.h"

namespace host::gltf {

// Appends `document` as JSON to `text`. `uri` tells where its data is; it is empty when that stands
// behind the JSON. Lists are freed as they are appended, because all together are large.
void AppendText(Document& document, const std::string& uri, std::string& text);

}  // namespace host::gltf
