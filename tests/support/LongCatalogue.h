#pragma once

#include <string>

#include "state/LoadEntry.h"
#include "state/ProgramFolder.h"
#include "state/ProgramState.h"
#include "support/RecordingPorts.h"

namespace norlaplan::testing {

/// A made-up catalogue of radial bearings with any number of rows, each with a bore of its own and its line
/// in the precision table; `hits` rows, spread evenly, fit the envelope by their outside diameter.
class LongCatalogue {
  public:
    LongCatalogue(int rows, int hits) {
        const std::string head = ",,,,,,,,,\r\n13,,,,,,,,,\r\n";
        std::string section = head;
        std::string precision = ",,,,,,,,,\r\n";
        for (int i = 0; i < rows; ++i) {
            const bool fits = hits > 0 && i % (rows / hits) == 0;
            const double bore = 100.0 + i * 0.01;
            const std::string boreText = std::to_string(bore);
            section += "K" + std::to_string(10000 + i) + "CP0,1," + boreText + "," +
                       std::to_string(fits ? bore + 26.0 : 1000.0) + ",0,0,0,0,1,60\r\n";
            precision += boreText + ",0,0,0,0,0,0,.0006,.0014,0\r\n";
        }
        place_.write("Data Tables/8-C.csv", head);
        place_.write("Data Tables/13-C.csv", section);
        place_.write("Data Tables/20-C.csv", head);
        place_.write("Data Tables/CLS0.csv", precision);
        std::string speeds = "P";
        for (int field = 1; field < 48; ++field)
            speeds += field < 24 ? "," : ",9";
        place_.write("Data Tables/SPEEDC.csv", speeds + "\r\n");
    }

    ProgramFolder folder() const { return ProgramFolder(place_.path()); }

    /// A search for radial bearings of up to 10 inches outside diameter.
    ProgramState state() const {
        ProgramState state;
        state.style = {"RADIAL CONTACT", "C"};
        state.criteria = {1.0, 10.0, 0.1, 3.0, 1.0, 10.0, 0.1, 3.0};
        state.loads.radialLoadDisplay = 500.0;
        convertLoads(state);
        return state;
    }

  private:
    TemporaryFolder place_;
};

}  // namespace norlaplan::testing
