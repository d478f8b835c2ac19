#include "screens/FormRegistry.h"

#include "screens/DataForm.h"
#include "screens/Form1.h"
#include "screens/Form10.h"
#include "screens/Form11.h"
#include "screens/Form12.h"
#include "screens/Form13.h"
#include "screens/Form14.h"
#include "screens/Form15.h"
#include "screens/Form16.h"
#include "screens/Form17.h"
#include "screens/Form18.h"
#include "screens/Form19.h"
#include "screens/Form2.h"
#include "screens/Form20.h"
#include "screens/Form21.h"
#include "screens/Form22.h"
#include "screens/Form23.h"
#include "screens/Form24.h"
#include "screens/Form25.h"
#include "screens/Form26.h"
#include "screens/Form27.h"
#include "screens/Form28.h"
#include "screens/Form29.h"
#include "screens/Form3.h"
#include "screens/Form31.h"
#include "screens/Form4.h"
#include "screens/Form6.h"
#include "screens/Form7.h"
#include "screens/Form8.h"
#include "screens/Form9.h"
#include "screens/Screens.h"
#include "screens/form30.h"
#include "screens/form5.h"
#include "screens/lodestarform.h"
#include "screens/tlodestarballloads.h"

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
    {forms::kAbout, "The About box", make<Form4>},
    {forms::kTrainingShow, "The training show", make<form5>},
    {forms::kUnits, "The units screen", make<Form6>},
    {forms::kProductPage, "The page of a product line", make<Form7>},
    {forms::kProductTable, "The table of the metric series", make<Form8>},
    {forms::kPartNumber, "The part number screen", make<Form9>},
    {forms::kApplication, "The application form", make<Form10>},
    {forms::kUserInfo, "The user information screen", make<Form11>},
    {forms::kSizes, "The size screen", make<Form12>},
    {forms::kSort, "The sort screen", make<Form13>},
    {forms::kLoads, "The load screen", make<Form14>},
    {forms::kResults, "The list of search results", make<Form15>},
    {forms::kStyle, "The style screen", make<Form16>},
    {forms::kDataSheet, "The data sheet screen", make<Form17>},
    {forms::kAxialPlay, "The axial play screen", make<Form18>},
    {forms::kLife, "The load-life screen", make<Form19>},
    {forms::kHelpTopic, "The help topic viewer", make<Form20>},
    {forms::kCatalogPages, "The catalog introduction", make<Form21>},
    {forms::kHelpIndex, "The help index", make<Form22>},
    {forms::kPreloadTorque, "The preload torque screen", make<Form23>},
    {forms::kDeflection, "The deflection screen", make<Form24>},
    {forms::kGraphSettings, "The graph adjustment screen", make<Form25>},
    {forms::kDeflectionGraph, "The deflection graph", make<Form26>},
    {forms::kLubeFilm, "The lube film check", make<Form27>},
    {forms::kFaxCover, "The fax cover page", make<Form28>},
    {forms::kPictureBrowser, "The picture browser", make<Form29>},
    {forms::kContactStress, "The contact stress screen", make<form30>},
    {forms::kThermalFits, "The thermal fits screen", make<Form31>},
    {forms::kAnalysis, "The load distribution analysis", make<DataForm>},
    {forms::kBallResults, "The table of ball results", make<lodestarform>},
    {forms::kBallLoadGraph, "The ball load graph", make<tlodestarballloads>},
};

}  // namespace

std::span<const FormEntry> formRegistry() {
    return kRegistry;
}

void addForms(Screens& screens) {
    for (const FormEntry& entry : kRegistry)
        screens.add(entry.name, entry.make);
}

}  // namespace norlaplan
