// Encodes pictures as Windows bitmap files. Nothing here decodes them.
#pragma once

#include "platform/pictures.h"

#include <string>

/// Returns the picture as the bytes of a 24-bit Windows bitmap file.
std::string Bitmap_Bytes(const Picture &picture);
