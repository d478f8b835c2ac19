#include "screens/Form27.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>
#include <tuple>

#include "numbers/Text.h"
#include "screens/BusyPointer.h"
#include "screens/EqualSigns.h"
#include "screens/FormBuilder.h"
#include "screens/Theme.h"

namespace norlaplan {
namespace {

constexpr int kFieldDigits = 12;

QString text(const std::string& utf8) {
    return QString::fromStdString(utf8);
}

QString text(double number) {
    return text(plainText(number));
}

}  // namespace

Form27::Form27(Screens& screens) : Form(screens, forms::kLubeFilm, "Lube Film Thickness Check for") {
    layOut();
    for (QLineEdit* const field : {specificGravity_, viscosity_})
        on(field, &QLineEdit::textChanged, "Lubricant", [this] { hideResults(); });
    for (QRadioButton* const option : {ssu_, centistokes_})
        on(option, &QRadioButton::toggled, "Lubricant Viscosity", [this] { hideResults(); });
    on(specificGravity_, &QLineEdit::textEdited, "Specific Gravity", [this] { unmarkDensities(); });
    for (std::size_t i = 0; i < densities_.size(); ++i) {
        on(densities_[i], &QRadioButton::clicked, kLubricantDensities[i].caption,
           [this, i] { takeDensity(kLubricantDensities[i].specificGravity); });
    }
    setFooter({.previous = button("Command1", "Return", "Return to Load Life Screen", [this] { closed(); }),
               .main = button("Command2", "Calculate", "Yes, Calculate", [this] { calculate(); })});
}

QGroupBox* Form27::bearingFrame() {
    for (const char* const name : {"Label1", "Label2", "Label3", "Label4", "Label5", "Label6"})
        bearing_.push_back(build::valueLabel(name));
    return build::labelFrame("Frame1", "BEARING",
                             {bearing_[0], bearing_[1], bearing_[2], bearing_[3], bearing_[4], bearing_[5]});
}

QGroupBox* Form27::unitFrame() {
    QGroupBox* const frame = build::frame("Frame3", "Viscosity unit");
    auto* const column = theme::spaced(new QVBoxLayout(frame), theme::kFrameMargin);
    column->addWidget(ssu_ = build::option("Option1", "SSU", "The viscosity is in Saybolt seconds"));
    column->addWidget(centistokes_ =
                          build::option("Option2", "centistokes", "The viscosity is in centistokes"));
    column->addStretch();
    return frame;
}

QGroupBox* Form27::densityFrame() {
    QGroupBox* const frame = build::frame("Frame4", "Lubricant density");
    auto* const grid = theme::spaced(new QGridLayout(frame), theme::kFrameMargin);
    int row = 0;
    for (const LubricantDensity& density : kLubricantDensities) {
        const QByteArray name = "Option" + QByteArray::number(row + 3);
        densities_.push_back(build::option(name.constData(), density.caption, "Take its specific gravity"));
        grid->addWidget(densities_.back(), row, 0);
        auto* const value = build::label(("Density" + QByteArray::number(row + 3)).constData(),
                                         text(density.specificGravity));
        grid->addWidget(value, row++, 1);
    }
    grid->setColumnStretch(2, 1);
    grid->setRowStretch(row, 1);
    return frame;
}

QGroupBox* Form27::lubricantFrame() {
    QGroupBox* const frame = build::frame("Frame2", "LUBRICANT");
    specificGravity_ = build::edit("Text1", "Density of the lubricant relative to that of water");
    specificGravity_->setText(text(kUsualSpecificGravity));
    viscosity_ = build::edit("Text2", "Viscosity of the lubricant at running temperature");
    auto* const entries = theme::spaced(new QGridLayout, 0);
    int row = 0;
    for (const auto& [caption, field, unit] : {std::tuple{"Specific Gravity", specificGravity_, "grams/cc."},
                                               std::tuple{"Lubricant Viscosity", viscosity_, ""}}) {
        QLabel* const label = build::label(("Label" + QByteArray::number(7 + row)).constData(), caption);
        build::buddy(*label, *field);
        field->setFixedWidth(field->fontMetrics().horizontalAdvance(QString(kFieldDigits, QChar('0'))));
        entries->addWidget(label, row, 0);
        entries->addWidget(field, row, 1);
        entries->addWidget(build::label(("Unit" + QByteArray::number(1 + row)).constData(), unit), row, 2);
        ++row;
    }
    entries->setColumnStretch(3, 1);
    auto* const choices = theme::spaced(new QHBoxLayout, 0);
    choices->addWidget(unitFrame());
    choices->addWidget(densityFrame(), 1);
    auto* const column = theme::spaced(new QVBoxLayout(frame), theme::kFrameMargin);
    column->addLayout(entries);
    column->addLayout(choices);
    column->addStretch();
    return frame;
}

QGroupBox* Form27::resultFrame() {
    maxBallLoad_ = build::valueLabel("Label9");
    innerSpeed_ = build::valueLabel("Label10");
    outerSpeed_ = build::valueLabel("Label11");
    film_ = build::valueLabel("Label12");
    lambda_ = build::valueLabel("Label13");
    lifeFactor_ = build::valueLabel("Label14");
    minimumViscosity_ = build::valueLabel("Label15");
    comment_ = build::label("Label16");
    noUnit_ = build::label("Warning1", "Neither SSU nor centistokes is chosen: the viscosity counts as 0.");
    for (QLabel* const label : {lambda_, lifeFactor_, comment_, noUnit_})
        build::makeBold(*label);
    for (QLabel* const label : {comment_, noUnit_}) {
        label->setTextInteractionFlags(Qt::TextSelectableByMouse);
        label->setWordWrap(true);
        build::keepRoom(*label);
    }
    results_ = build::labelFrame("Frame5", "RESULTS",
                                 {maxBallLoad_, innerSpeed_, outerSpeed_, film_, lambda_, lifeFactor_,
                                  minimumViscosity_, comment_, noUnit_});
    build::keepRoom(*results_);
    return results_;
}

void Form27::layOut() {
    auto* const inputs = theme::spaced(new QHBoxLayout, 0);
    inputs->addWidget(bearingFrame());
    inputs->addWidget(lubricantFrame(), 1);
    page().addLayout(inputs);
    page().addWidget(resultFrame());
    page().addStretch();
}

void Form27::opened() {
    setWindowTitle(text("Lube Film Thickness Check for " + state().bearing.partNumber + " Restricted use!"));
    const auto lines = filmBearingLines(state());
    for (std::size_t i = 0; i < lines.size(); ++i)
        bearing_[i]->setText(text(lines[i]));
    alignEqualSigns(bearing_);
    hideResults();
    viscosity_->setFocus();
    viscosity_->selectAll();
}

ViscosityUnit Form27::unit() const {
    if (ssu_->isChecked()) return ViscosityUnit::Ssu;
    return centistokes_->isChecked() ? ViscosityUnit::Centistokes : ViscosityUnit::None;
}

void Form27::takeDensity(double specificGravity) {
    specificGravity_->setText(text(specificGravity));
}

void Form27::unmarkDensities() {
    for (QRadioButton* const option : densities_) {
        // One of a group can't be unmarked as long as the group keeps one marked.
        option->setAutoExclusive(false);
        option->setChecked(false);
        option->setAutoExclusive(true);
    }
}

void Form27::hideResults() {
    results_->hide();
}

void Form27::calculate() {
    hideResults();
    const BusyPointer busy;
    const Lubricant lubricant =
        lubricantOf(specificGravity_->text().toStdString(), viscosity_->text().toStdString(), unit());
    showResults(computeLubeFilm(state(), lubricant, services().messages));
}

void Form27::showResults(const FilmResult& result) {
    const FilmTexts texts = filmTexts(result, state().units);
    maxBallLoad_->setText(text(texts.maxBallLoad));
    innerSpeed_->setText(text(texts.innerSpeed));
    outerSpeed_->setText(text(texts.outerSpeed));
    film_->setText(text(texts.film));
    lambda_->setText(text(texts.lambda));
    lifeFactor_->setText(text(texts.lifeFactor));
    minimumViscosity_->setText(text(texts.minimumViscosity));
    comment_->setText(text(texts.comment));
    alignEqualSigns(
        std::vector{maxBallLoad_, innerSpeed_, outerSpeed_, film_, lambda_, lifeFactor_, minimumViscosity_});
    theme::makeWarning(*noUnit_);
    noUnit_->setVisible(unit() == ViscosityUnit::None);
    results_->show();
}

}  // namespace norlaplan
