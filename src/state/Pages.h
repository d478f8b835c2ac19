#pragma once

#include "state/Drawing.h"

namespace norlaplan {

/// How many pages a drawing has. `measure` gives the widths of texts; nothing is drawn on it.
int pageCount(const Drawing& drawing, Canvas& measure);

/// The pages of a drawing from `first` to `last`, counted from 1, as a drawing of these alone.
Drawing somePages(const Drawing& drawing, int first, int last);

/// One page of a drawing, counted from 1, as a drawing of one page. What it is made of must still be there.
Drawing onePage(const Drawing& drawing, int page);

}  // namespace norlaplan
