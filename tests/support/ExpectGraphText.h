#pragma once

#include <string>

#include <gtest/gtest.h>

#include "documents/Graph.h"

namespace norlaplan::testing {

/// The text of a graph has these words in the middle of its box, in this size and colour.
inline void expectGraphText(const GraphText& text, const std::string& words, const PageBox& box,
                            double points, Colour colour) {
    EXPECT_EQ(text.text, words);
    EXPECT_NEAR(text.box.left, box.left, 1e-9) << words;
    EXPECT_NEAR(text.box.top, box.top, 1e-9) << words;
    EXPECT_NEAR(text.box.right, box.right, 1e-9) << words;
    EXPECT_NEAR(text.box.bottom, box.bottom, 1e-9) << words;
    EXPECT_EQ(text.look.points, points) << words;
    EXPECT_EQ(text.look.colour, colour) << words;
    EXPECT_EQ(text.look.alignment, Alignment::Centre) << words;
}

}  // namespace norlaplan::testing
