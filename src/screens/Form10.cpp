#include "screens/Form10.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTabBar>
#include <QVBoxLayout>

#include "documents/ApplicationFile.h"
#include "documents/ApplicationReport.h"
#include "screens/BusyPointer.h"
#include "screens/DocumentOutput.h"
#include "screens/FlowRow.h"
#include "screens/FormBuilder.h"
#include "screens/Picture.h"
#include "screens/Screens.h"
#include "screens/SideTabs.h"
#include "screens/Theme.h"
#include "state/Settings.h"
#include "state/StagedFile.h"
#include "state/UnsavedApplication.h"
#include "state/WholeFile.h"

namespace norlaplan {
namespace {

/// No form that anybody has typed comes near this size.
constexpr std::uintmax_t kLargestFile = 16U << 20U;

struct LightLook {
    const char* file;
    const char* meaning;
    const char* legend;
};

LightLook lookOf(Light light) {
    switch (light) {
        case Light::Green:
            return {"\\icons\\TRFFC10A.ICO", "Complete Data Set", "Green Light means Complete Data Set"};
        case Light::Yellow:
            return {"\\icons\\TRFFC10B.ICO", "Partial Data Set", "Yellow Light means Partial Data Set"};
        case Light::Red:
            break;
    }
    return {"\\icons\\TRFFC10C.ICO", "Empty Data Set", "Red Light means Empty Data Set"};
}

QIcon iconOf(const Services& services, Light light) {
    return iconOrNone(services.folder.find(lookOf(light).file));
}

/// The field with the focus has paper of its own, and black writing whatever the desktop's theme.
void colourFocus(QWidget& box, bool focused) {
    QPalette palette;
    if (focused) {
        palette.setColor(QPalette::Base, QColor(255, 255, 192));
        palette.setColor(QPalette::Text, Qt::black);
    }
    box.setPalette(palette);
}

}  // namespace

Form10::Form10(Screens& screens) : Form(screens, forms::kApplication, "Application Form") {
    tabs_ = new SideTabs("SSTab1");
    tabs_->setAccessibleName(QStringLiteral("Sections of the form"));
    for (int tab = 1; tab <= kApplicationTabs; ++tab)
        tabs_->addTab(pages_.page(tab), applicationTab(tab));
    auto* const mainMenu =
        button("Command1", "&Main Menu", "Return to Main Menu", [this] { goToMainMenu(); });
    auto* const print = button("Command2", "P&rint", "Print completed form", [this] { this->print(); });
    save_ = button("Command3", "&Save", "Save data to file", [this] { save(); });
    auto* const open =
        button("Command4", "&Open...", "Read a saved data file back into the form", [this] { this->open(); });

    page().addWidget(tabs_, 1);
    page().addWidget(makeLegend());
    setFooter({.mainMenu = mainMenu, .others = {open, print}, .main = save_});
    QWidget* before = tabs_->tabBar();
    for (QWidget* const control : pages_.order()) {
        setTabOrder(before, control);
        before = control;
    }
    followEntries();
}

QWidget* Form10::makeLegend() {
    auto* const legend = new QWidget;
    auto* const row = theme::spaced(new QHBoxLayout(legend), 0);
    int number = 1;
    for (const Light light : {Light::Green, Light::Yellow, Light::Red}) {
        auto* const picture = build::label("");
        const int size = tabs_->tabBar()->iconSize().width();
        picture->setPixmap(iconOf(services(), light).pixmap(QSize(size, size), devicePixelRatioF()));
        auto* const words = build::label(("Legend" + std::to_string(number++)).c_str(), lookOf(light).legend);
        words->setFont(theme::noteFont());
        row->addWidget(picture);
        row->addWidget(words);
        row->addSpacing(theme::kGap);
    }
    row->addStretch();
    return legend;
}

void Form10::followEntries() {
    for (const ApplicationText& text : pages_.texts()) {
        text.box->installEventFilter(this);
        const auto follow = [this, &text] { entered(text); };
        if (auto* const line = qobject_cast<QLineEdit*>(text.box))
            on(line, &QLineEdit::textChanged, text.field->tip, follow);
        else
            on(static_cast<QPlainTextEdit*>(text.box), &QPlainTextEdit::textChanged, text.field->tip, follow);
    }
    for (const ApplicationChoice& choice : pages_.choices()) {
        for (QAbstractButton* const option : choice.buttons->buttons()) {
            on(option, &QAbstractButton::clicked, choice.group->question,
               [this, &choice, id = choice.buttons->id(option)] { chosen(choice, id); });
        }
    }
    on(&pages_.shock(), &QCheckBox::clicked, "Vibration or Shock", [this] {
        state().application.data.shock = pages_.shock().isChecked() ? kYes : kNo;
        noteChange(applicationField("Check1"));
    });
    tabs_->tabBar()->installEventFilter(this);
}

void Form10::opened() {
    setApplicationDefaults(state().application.data);
    fill();
    tabs_->setCurrentIndex(0);
    pages_.order().front()->setFocus();
}

void Form10::fill() {
    ApplicationForm& form = state().application;
    filling_ = true;
    for (const ApplicationText& text : pages_.texts()) {
        const std::string& value = valueOf(*text.field, form.data, state().user);
        const QString shown = QString::fromStdString(text.field->isContact() ? shownUserText(value) : value);
        if (text.text() != shown) text.setText(shown);
        if (text.field->isContact()) noteEntry(form, *text.field, shown.toStdString());
        if (text.unit != nullptr) text.unit->setText(unitText(text.field->unit, state().units));
    }
    for (const ApplicationChoice& choice : pages_.choices()) {
        const std::string& value = form.data.*choice.group->value;
        // An exclusive group never lets go of its last choice.
        choice.buttons->setExclusive(false);
        for (QAbstractButton* const option : choice.buttons->buttons()) {
            const auto place = static_cast<std::size_t>(choice.buttons->id(option));
            option->setChecked(value == choice.group->options[place].value);
        }
        choice.buttons->setExclusive(true);
    }
    pages_.shock().setChecked(form.data.shock == kYes);
    filling_ = false;
    applyRules();
    showLights();
}

void Form10::entered(const ApplicationText& text) {
    if (filling_) return;
    valueOf(*text.field, state().application.data, state().user) = text.text().toStdString();
    noteChange(*text.field);
}

void Form10::chosen(const ApplicationChoice& choice, int option) {
    const ApplicationGroup& group = *choice.group;
    state().application.data.*group.value = group.options[static_cast<std::size_t>(option)].value;
    noteChange(applicationField(group.options.front().control));
}

void Form10::noteChange(const ApplicationField& field) {
    ApplicationForm& form = state().application;
    form.unsaved = true;
    noteEntry(form, field, valueOf(field, form.data, state().user));
    applyRules();
    showLights();
}

void Form10::applyRules() {
    const ApplicationData& now = state().application.data;
    pages_.text("Text17").setEnabled(now.shock == kYes);
    pages_.frame("Frame11").setVisible(now.oscillation == kYes);
    for (const char* const frame : {"Frame13", "Frame14", "Frame15"})
        pages_.frame(frame).setVisible(now.precisionClass == "8");
}

void Form10::showLights() {
    for (int tab = 1; tab <= kApplicationTabs; ++tab) {
        const Light light = statusLight(state().application, tab);
        auto& shown = lights_.at(static_cast<std::size_t>(tab) - 1);
        if (shown == light) continue;
        shown = light;
        tabs_->setTabIcon(tab - 1, iconOf(services(), light));
        tabs_->setTabToolTip(tab - 1, lookOf(light).meaning);
    }
}

bool Form10::eventFilter(QObject* watched, QEvent* event) {
    if (watched == tabs_->tabBar()) {
        if (event->type() == QEvent::MouseMove) showLights();
        return Form::eventFilter(watched, event);
    }
    auto* const box = qobject_cast<QWidget*>(watched);
    if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut)
        colourFocus(*box, event->type() == QEvent::FocusIn);
    if (event->type() == QEvent::KeyPress && qobject_cast<QLineEdit*>(watched) != nullptr) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            moveOn(*box);
            return true;
        }
    }
    return Form::eventFilter(watched, event);
}

void Form10::moveOn(QWidget& from) {
    const auto& order = pages_.order();
    auto next = std::find(order.begin(), order.end(), &from);
    const auto tabOf = [this](QWidget* control) {
        int tab = 0;
        while (!tabs_->widget(tab)->isAncestorOf(control))
            ++tab;
        return tab;
    };
    const auto isReached = [&](QWidget* control) {
        return control->isEnabled() && control->isVisibleTo(tabs_->widget(tabOf(control)));
    };
    do {
        ++next;
    } while (next != order.end() && !isReached(*next));
    if (next == order.end()) {
        save_->setFocus(Qt::TabFocusReason);
        return;
    }
    tabs_->setCurrentIndex(tabOf(*next));
    (*next)->setFocus(Qt::TabFocusReason);
}

void Form10::goToMainMenu() {
    screens().showAlone(forms::kMainMenu);
}

void Form10::print() {
    printDocument(services(), applicationDocument(state(), services().clock));
}

void Form10::save() {
    saveAs(applicationDocument(state(), services().clock),
           [this](const std::filesystem::path& path) { saveWithData(path); });
}

void Form10::saveWithData(const std::filesystem::path& path) {
    // Neither is replaced before both are written.
    StagedFile document(path, applicationRtf(state(), services().clock));
    StagedFile dataFile(applicationFilePath(path.string()), applicationFile(state()));
    commitTogether(document, dataFile);
    state().application.unsaved = false;
}

void Form10::open() {
    if (!mayLoseApplication(state(), services().messages)) return;
    const auto path = services().openDialog.askWhatToOpen({"Open Application Form",
                                                           {"Application Data Files (*.KDN)", "*.KDN"},
                                                           services().folder.find("\\save")});
    if (!path) return;
    const BusyPointer busy;
    ReadApplication read;
    try {
        std::error_code ignored;
        const std::uintmax_t size = std::filesystem::file_size(*path, ignored);
        if (!ignored && size > kLargestFile)
            throw BadApplicationFile("The file is too large for a data file of the application form.");
        read = readApplicationFile(readWholeFile(*path));
    } catch (const BadApplicationFile& bad) {
        services().messages.show({windowTitle().toStdString(), bad.what(), Icon::Warning});
        return;
    }
    const std::string units = read.unitSystem;
    takeApplication(state(), read);
    fill();
    if (units == state().unitSystem) return;
    services().messages.show({windowTitle().toStdString(),
                              "This form was filled in with " + units + " units, and the program now shows " +
                                  state().unitSystem + " units. The values are not converted.",
                              Icon::Warning});
}

}  // namespace norlaplan
