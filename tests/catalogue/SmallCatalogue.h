#pragma once

#include <filesystem>
#include <string>

#include "catalogue/Decoding.h"
#include "support/RecordingPorts.h"

namespace norlaplan::testing {

/// 24 numbers from `first` on, with commas before them.
inline std::string numbersFrom(int first) {
    std::string text;
    for (int i = 0; i < 24; ++i)
        text += "," + std::to_string(first + i);
    return text;
}

/// A speed block: the key, 23 fields that nobody reads, 24 numbers from `first` on.
inline std::string speedBlock(const std::string& key, int first) {
    return key + std::string(23, ',') + numbersFrom(first);
}

/// A catalogue of a few rows with numbers that are easy to calculate with by hand.
class SmallCatalogue {
  public:
    SmallCatalogue() {
        std::filesystem::copy(shippedFolder() / "overlays", folder_.path() / "overlays");
        writeSections();
        writePrecisions();
        writeCodes();
    }

    const std::filesystem::path& path() const { return folder_.path(); }

    void write(const std::string& table, const std::string& content) const {
        folder_.write(std::filesystem::path("Data Tables") / table, content);
    }
    std::string read(const std::string& table) const {
        return folder_.read(std::filesystem::path("Data Tables") / table);
    }
    void remove(const std::string& table) const {
        std::filesystem::remove(folder_.path() / "Data Tables" / table);
    }

  private:
    void writeSections() const {
        for (const std::string family : {"A", "C", "X"}) {
            write("13-" + family + ".csv",
                  "0.6,,,,,,,,,\r\n13,,,,,,,,,\r\n"
                  "first,1,100,126,108.4,117.6,0,0.5,1,40\r\n"
                  "again,0,100,999,1,1,1,9,4,9\r\n"
                  "big,1,190,216,198.5,207.5,209,0.6,3,81\r\n"
                  "blank,,200,226,208.5,217.5,0,0.7,2,85\r\n"
                  "odd,1,210,236,218.5,227.5,0,0.7,2,88\r\n"
                  "column,1,220,246,228.5,237.5,0,0.7,13,90\r\n");
        }
        write("8-X.csv",
              "0.4,,,,,,,,,\n8,,,,,,,,,\n"
              "thin,1,100,116,104.8,111.2,0,0.1,1,60\n");
    }
    void writePrecisions() const {
        for (const std::string precision : {"0", "1", "2", "4", "6"}) {
            write("CLS" + precision + ".csv",
                  ",,,,,,,,,\n"
                  "100,-.0008,-.0009,.0004,.0005,.0006,.0007,.001,.002,-.005\n"
                  "190,-.0012,-.0014,.0016,.0017,.0018,.0019,.0008,.0019,-.005\n"
                  "200,-.0012,-.0014,.0016,.0017,.0018,.0019,.0008,.0019,-.005\n"
                  "220,-.0012,-.0014,.0016,.0017,.0018,.0019,.0008,.0019,-.005\n");
        }
        write("CLS0N.csv", "coated 0,,,,\n190,-.0002,-.0011,.0003,-.0013\n");
        write("CLS4N.csv", "coated 4,,,,\n190,-.0004,-.0021,.0005,-.0023\n");
        write("CLS6N.csv", "coated 6,,,,\n190,-.0006,-.0031,.0007,-.0033\n");
    }
    void writeCodes() const {
        const std::string separators =
            "P, \"P= Ribbon, brass\" , RIBBON\nF,F= Full,FULL\nM,M= Wire,WIRE\nW,W= Wire,WIRE\n"
            "S,S= Springs,SPRING\nJ,J= Crown,CROWN\nN,N= Crown,CROWN\nZS,Z= Spacer,SPACER\n";
        write("ASEPARATOR.CSV", separators + "ZP,Z= Toroids,TOROID\nZV,Z= Toroids,TOROID\n");
        write("XSEPARATOR.CSV", separators + "ZT,Z= Slugs,SLUG\n");
        write(
            "Fitnumber.doc",
            "A,.0001,.0005,Clearance\nK,.0002,.0006,Preload\nY,.001,.0015,Preload\nZ,.0003,.0007,Special\n");
        write("SPEEDC.CSV", speedBlock("P", 1) + "\n" + speedBlock("J", 201) + "\n");
        write("SPEEDA.CSV", speedBlock("P", 1) + "\n" + speedBlock("J", 201) + "\n");
        write("SPEEDX.CSV", speedBlock("J", 1) + "," + speedBlock("P", 101) + "\n" + speedBlock("P", 201) +
                                "," + speedBlock("J", 301) + "\n");
    }

    TemporaryFolder folder_;
};

}  // namespace norlaplan::testing
