#pragma once

#include <vector>

#include "Picture.h"

/// The pictures of the product lines, by the names of their files.
std::vector<PictureFile> productPictures();
