#pragma once

#include <QString>

// The libraries by which statements are read.
namespace modReaderVersion {

// "pugixml 1.13, zlib 1.2.13"
[[nodiscard]] QString Text();

} // namespace modReaderVersion
