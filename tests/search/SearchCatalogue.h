#pragma once

#include <string>

#include <gtest/gtest.h>

#include "numbers/Text.h"
#include "search/SearchEngine.h"
#include "state/LoadEntry.h"
#include "support/Folders.h"
#include "support/RecordingPorts.h"

namespace norlaplan::testing {

/// Stops the search from a given row on; never when none is given.
class Watch : public SearchWatch {
  public:
    explicit Watch(int stopAt = -1) : stopAt_(stopAt) {}
    bool goOn(double done) override {
        EXPECT_GE(done, before_);
        EXPECT_LE(done, 1.0);
        before_ = done;
        return ++rows < stopAt_ || stopAt_ < 0;
    }
    int rows = 0;

  private:
    int stopAt_;
    double before_ = 0.0;
};

inline std::string rowOf(const std::string& name, int bore, int stock = 1, int speedIndex = 1) {
    return name + "," + std::to_string(stock) + "," + std::to_string(bore) + "," + std::to_string(bore + 26) +
           ",0,0,0,0.5," + std::to_string(speedIndex) + ",60\r\n";
}

inline std::string numbers(double first) {
    std::string text;
    for (int i = 0; i < 24; ++i)
        text += "," + plainText(first + i);
    return text;
}

/// A small catalogue of the middle section, with empty tables beside it, and the state of a search in it.
struct SearchCatalogue {
    SearchCatalogue() {
        section("");
        const std::string key = ",,,,,,,,,,,,,,,,,,,,,,,";
        place.write("Data Tables/SPEEDC.CSV", "P" + key + numbers(9.0) + "\r\n");
        place.write("Data Tables/SPEEDA.CSV", "R" + key + numbers(13.0) + "\r\n");
        place.write("Data Tables/SPEEDX.CSV", "Q" + key + numbers(1.0) + ",Q" + key + numbers(1.0) + "\r\n" +
                                                  "P" + key + numbers(20.0) + ",P" + key + numbers(8.0) +
                                                  "\r\n");
        place.write("Data Tables/CLS0.csv",
                    "head,,,,,,,,,\r\n100,0,0,0,0,0,0,.0006,.0014,0\r\n200,0,0,0,0,0,0,.001,.002,0\r\n");
        state.criteria = {1.0, 20.0, 0.1, 3.0, 1.0, 20.0, 0.1, 3.0};
        state.loads.radialLoadDisplay = 500.0;
        convertLoads(state);
        style("4-POINT CONTACT", "X");
    }

    void section(const std::string& rows) {
        for (const char* const family : {"C", "X", "A"}) {
            const std::string head = ".6,,,,,,,,,\r\n13,,,,,,,,,\r\n";
            place.write(std::string("Data Tables/13-") + family + ".csv", head + rows);
            place.write(std::string("Data Tables/8-") + family + ".csv", head);
            place.write(std::string("Data Tables/20-") + family + ".csv", head);
        }
    }

    void style(const std::string& caption, const std::string& letter) { state.style = {caption, letter}; }

    SearchEnd run(int stopAt = -1) {
        Watch watch(stopAt);
        return RunBearingSearch(state, ProgramFolder(place.path()), messages, watch);
    }

    TemporaryFolder place;
    ProgramState state;
    RecordingMessages messages;
};

}  // namespace norlaplan::testing
