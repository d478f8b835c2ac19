#include "screens/FormRegistry.h"

#include "screens/Form1.h"
#include "screens/Form12.h"
#include "screens/Form13.h"
#include "screens/Form14.h"
#include "screens/Form15.h"
#include "screens/Form16.h"
#include "screens/Form17.h"
#include "screens/Form19.h"
#include "screens/Form2.h"
#include "screens/Form3.h"
#include "screens/Form6.h"
#include "screens/Form9.h"
#include "screens/Screens.h"

namespace norlaplan {
namespace {

template <typename Kind>
std::unique_ptr<Form> make(Screens& screens) {
    return std::make_unique<Kind>(screens);
}

constexpr FormEntry kRegistry[] = {
    {forms::kStart, "The start screen", make<Form1>},
    {forms::kTextViewer, "The text viewer", make<Form2>},
    {forms::kMainMenu, "The main menu", make<Form3>},
    {forms::kAbout, "The About box", nullptr},
    {forms::kTrainingShow, "The training show", nullptr},
    {forms::kUnits, "The units screen", make<Form6>},
    {forms::kProductPage, "The page of this product line", nullptr},
    {forms::kProductTable, "The table of this product line", nullptr},
    {forms::kPartNumber, "The part number screen", make<Form9>},
    {forms::kApplication, "The application form", nullptr},
    {forms::kUserInfo, "The user information screen", nullptr},
    {forms::kSizes, "The size screen", make<Form12>},
    {forms::kSort, "The sort screen", make<Form13>},
    {forms::kLoads, "The load screen", make<Form14>},
    {forms::kResults, "The list of search results", make<Form15>},
    {forms::kStyle, "The style screen", make<Form16>},
    {forms::kDataSheet, "The data sheet screen", make<Form17>},
    {forms::kAxialPlay, "The axial play screen", nullptr},
    {forms::kLife, "The load-life screen", make<Form19>},
    {forms::kHelpTopic, "The help topic viewer", nullptr},
    {forms::kCatalogPages, "The catalog introduction", nullptr},
    {forms::kHelpIndex, "The help index", nullptr},
    {forms::kPreloadTorque, "The preload torque screen", nullptr},
    {forms::kDeflection, "The deflection screen", nullptr},
    {forms::kGraphSettings, "The graph adjustment screen", nullptr},
    {forms::kDeflectionGraph, "The deflection graph", nullptr},
    {forms::kLubeFilm, "The lube film check", nullptr},
    {forms::kFaxCover, "The fax cover page", nullptr},
    {forms::kPictureBrowser, "The picture browser", nullptr},
    {forms::kContactStress, "The contact stress screen", nullptr},
    {forms::kThermalFits, "The thermal fits screen", nullptr},
    {forms::kAnalysis, "The load distribution analysis", nullptr},
    {forms::kBallResults, "The table of ball results", nullptr},
    {forms::kBallLoadGraph, "The ball load graph", nullptr},
    {forms::kTraining, "The bearing training", nullptr},
    {forms::kMail, "Sending by mail", nullptr},
    {forms::kExport, "The export file", nullptr},
};

}  // namespace

std::span<const FormEntry> formRegistry() {
    return kRegistry;
}

Message notInThisVersion(const std::string& name) {
    std::string what = "This screen";
    for (const FormEntry& entry : kRegistry) {
        if (name == entry.name.text) what = entry.plainName;
    }
    return {"Norlaplan MM", what + " is not part of this version of the program.", Icon::Information};
}

void addForms(Screens& screens) {
    for (const FormEntry& entry : kRegistry) {
        if (entry.make != nullptr) screens.add(entry.name, entry.make);
    }
}

}  // namespace norlaplan
