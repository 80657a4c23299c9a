// Writes Windows bitmap files. Nothing here reads them.
#pragma once

#include "platform/pictures.h"

#include <string>

/// Returns the bytes of a 24-bit Windows bitmap file of the picture.
std::string Bitmap_Bytes(const Picture &picture);
