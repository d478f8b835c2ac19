#pragma once

#include <string>
#include <vector>

#include "documents/Document.h"
#include "state/ProgramState.h"

namespace norlaplan {

constexpr const char* kApplicationTitle = "REQUEST FOR BEARING PROPOSAL DATA FORM";
constexpr const char* kApplicationAttention = "Attention: Varden Sales";

/// A section of the application form's document: its head, and lines whose cells stand in columns.
struct ApplicationSection {
    std::string head;                             ///< empty for lines that go on under the head before
    std::vector<std::vector<std::string>> lines;  ///< a cell may hold line feeds
    std::vector<double> columns = {2.9};          ///< of the cells behind the first, inches from that one
};

/// The RTF document and the printed page differ in a few words.
enum class ApplicationWords { Document, Print };

/// All sections in their order.
std::vector<ApplicationSection> applicationSections(const ProgramState& state, ApplicationWords words);

/// The form as an RTF document.
std::string applicationRtf(const ProgramState& state, ClockPort& clock);
/// The same on paper; what doesn't fit on one page goes on the next.
void printApplication(const ProgramState& state, ClockPort& clock, Canvas& canvas);
/// Both, for printing and saving.
Document applicationDocument(const ProgramState& state, ClockPort& clock);

}  // namespace norlaplan
