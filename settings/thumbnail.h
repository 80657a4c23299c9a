#pragma once

#include "platform/pictures.h"

/// Returns a picture reduced, in its proportions, to at most this width and height in pixels. Each pixel is
/// the mean of the pixels that it replaces. Returns a picture that is small enough unchanged.
Picture Thumbnail(const Picture &picture, int most_width, int most_height);
