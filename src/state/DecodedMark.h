#pragma once

#include <string>

#include "state/BearingSpec.h"

namespace norlaplan {

/// Says whether the record of the bearing holds the decoded bearing of its part number: a decode sets it at
/// its good end, and whoever writes into the record by other means takes it off. It holds for one number,
/// separator choice and unit system, so that it can't outlive a change of any of them.
class DecodedMark {
  public:
    void set(const BearingSpec& bearing, const std::string& unitSystem) {
        partNumber_ = bearing.partNumber;
        zSeparatorChoice_ = bearing.zSeparatorChoice;
        unitSystem_ = unitSystem;
        ++decodes_;
    }
    void takeOff() { partNumber_.clear(); }
    bool holds(const BearingSpec& bearing, const std::string& unitSystem) const {
        return !partNumber_.empty() && partNumber_ == bearing.partNumber &&
               zSeparatorChoice_ == bearing.zSeparatorChoice && unitSystem_ == unitSystem;
    }
    /// How many decodes have come to a good end: tells one from the next of the same number.
    int decodes() const { return decodes_; }

  private:
    std::string partNumber_, zSeparatorChoice_, unitSystem_;
    int decodes_ = 0;
};

}  // namespace norlaplan
