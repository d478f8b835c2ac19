#pragma once

#include <vector>

#include "Picture.h"

/// The picture browser's pictures: custom bearings and drawings, by the names of their files.
std::vector<PictureFile> customPictures();
