// Windows bitmap files. Only their making; nothing reads them here.
#pragma once

#include "platform/pictures.h"

#include <string>

/// The bytes of a 24-bit Windows bitmap file of the picture.
std::string Bitmap_Bytes(const Picture &picture);
