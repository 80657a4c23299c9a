#pragma once

#include "platform/pictures.h"

/// Returns the picture, reduced in proportion to fit into `most_width` by `most_height` pixels. Each pixel
/// is the mean of the pixels that it replaces. A picture that is small enough stays unchanged.
Picture Thumbnail(const Picture &picture, int most_width, int most_height);
