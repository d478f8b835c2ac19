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

}  // namespace

void addForms(Screens& screens) {
    screens.add("Form1", make<Form1>);
    screens.add("Form2", make<Form2>);
    screens.add("Form3", make<Form3>);
    screens.add("Form6", make<Form6>);
    screens.add("Form9", make<Form9>);
    screens.add("Form12", make<Form12>);
    screens.add("Form13", make<Form13>);
    screens.add("Form14", make<Form14>);
    screens.add("Form15", make<Form15>);
    screens.add("Form16", make<Form16>);
    screens.add("Form17", make<Form17>);
    screens.add("Form19", make<Form19>);
}

}  // namespace norlaplan
