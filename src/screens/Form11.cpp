#include "screens/Form11.h"

#include <QGridLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "numbers/RuntimeError.h"
#include "screens/FormBuilder.h"
#include "screens/NumberField.h"
#include "screens/Screens.h"
#include "screens/Theme.h"
#include "state/Settings.h"

namespace norlaplan {
namespace {

struct UserField {
    const char* label;
    const char* tip;
    std::string UserInfo::*text;
};
constexpr std::array<UserField, 8> kFields = {{
    {"Name", "Your Name", &UserInfo::userName},
    {"Company", "Company Name", &UserInfo::userCompany},
    {"Address line 1", "Company Address", &UserInfo::userAddress1},
    {"Address line 2", "Company Address", &UserInfo::userAddress2},
    {"Title", "Job Title", &UserInfo::userTitle},
    {"Phone #", "Phone Number with Country Code", &UserInfo::userPhone},
    {"Fax #", "Fax number with Country Code", &UserInfo::userFax},
    {"Email Subject suffix", "Automatically created Email Subject Line for \"Send to\" option",
     &UserInfo::userMailSuffix},
}};
constexpr int kFieldLetters = 40;

}  // namespace

Form11::Form11(Screens& screens) : Form(screens, forms::kUserInfo, "User Information") {
    auto* const grid = theme::spaced(new QGridLayout, 0);
    for (std::size_t i = 0; i < kFields.size(); ++i) {
        const auto row = static_cast<int>(i);
        const QByteArray number = QByteArray::number(row + 1);
        QLineEdit* const field = build::edit("Text" + number, kFields[i].tip);
        field->setMinimumWidth(field->fontMetrics().averageCharWidth() * kFieldLetters);
        QLabel* const label = build::label("Label" + number, kFields[i].label);
        build::buddy(*label, *field);
        grid->addWidget(label, row, 0);
        grid->addWidget(field, row, 1);
        fields_[i] = field;
    }
    auto* const save = button("Command1", "Save Data and Exit", "", [this] { saveAndLeave(); });
    setWidth(Width::Own);
    page().addLayout(grid);
    page().addStretch();
    setFooter({.main = save});
}

void Form11::opened() {
    for (std::size_t i = 0; i < kFields.size(); ++i)
        fields_[i]->setText(QString::fromStdString(shownUserText(state().user.*kFields[i].text)));
    askAgain(*fields_.front());
}

void Form11::saveAndLeave() {
    for (std::size_t i = 0; i < kFields.size(); ++i)
        state().user.*kFields[i].text = fields_[i]->text().toStdString();
    // A folder that can't be written must not hold the user here.
    screens().hide(*this);
    try {
        SaveSettings(state(), services().folder, SettingsPart::User);
    } catch (const RuntimeError& error) {
        services().messages.show({windowTitle().toStdString(),
                                  "SETTINGS.INI could not be written: " + std::string(error.what()) +
                                      ".\n\nThe data are kept until the program ends.",
                                  Icon::Critical});
    }
}

}  // namespace norlaplan
