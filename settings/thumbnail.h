// Small copies of pictures.
#pragma once

#include "platform/pictures.h"

/// The picture made smaller, in its proportions, so that it is at most so many pixels wide and high; each
/// pixel is the mean of those that it stands for. A picture that is small enough is given as it is.
Picture Thumbnail(const Picture &picture, int most_width, int most_height);
