#pragma once

#include <vector>

#include "help/RichDocument.h"
#include "help/RtfTables.h"
#include "help/RtfTokens.h"

namespace norlaplan {

/// Gathers a table row's definition, from "trowd" on: where its cells end, their lines and fills.
class RtfRow {
  public:
    /// Takes a word of the definition; other words are passed over.
    void word(const RtfToken& token, const RtfTables& tables);

    int leftEdge() const { return leftEdge_; }
    const std::vector<CellLook>& cells() const { return cells_; }

  private:
    void endCell(int rightEdge);

    int leftEdge_ = 0;
    std::vector<CellLook> cells_;
    CellLook next_;
    bool* side_ = nullptr;  ///< the side that the border words are about; none for other borders
};

}  // namespace norlaplan
