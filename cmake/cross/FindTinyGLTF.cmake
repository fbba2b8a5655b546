# This system's library of the same name is its header, compiled.
include(HeadersOnly)
find_package(nlohmann_json REQUIRED)
orvane_headers_only(TinyGLTF::header tiny_gltf.h)

if(NOT TARGET TinyGLTF::TinyGLTF)
  set(source "${PROJECT_BINARY_DIR}/headers/tiny_gltf.cpp")
  file(CONFIGURE OUTPUT "${source}" CONTENT "#define TINYGLTF_IMPLEMENTATION\n#include <tiny_gltf.h>\n")
  add_library(orvane_tiny_gltf STATIC "${source}")
  target_compile_features(orvane_tiny_gltf PUBLIC cxx_std_20)
  # No scene of ours has a picture.
  target_compile_definitions(orvane_tiny_gltf PUBLIC TINYGLTF_NO_STB_IMAGE TINYGLTF_NO_STB_IMAGE_WRITE)
  target_link_libraries(orvane_tiny_gltf PUBLIC TinyGLTF::header nlohmann_json::nlohmann_json)
  add_library(TinyGLTF::TinyGLTF ALIAS orvane_tiny_gltf)
endif()
set(TinyGLTF_FOUND TRUE)
