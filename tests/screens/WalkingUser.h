#pragma once

#include <QAction>
#include <QComboBox>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QProgressDialog>
#include <QRadioButton>
#include <QTreeView>
#include <array>
#include <random>

#include "screens/Program.h"

namespace norlaplan::testing {

/// Somebody who presses, chooses and types at random on the form in front, and tells each step in words. The
/// same seed takes the same steps. Some of the numbers typed are good and some aren't; now and then a table
/// of the catalogue is missing for a few steps.
class WalkingUser {
  public:
    WalkingUser(Program& program, std::mt19937_64& chance) : program_(program), chance_(chance) {
        namespace fs = std::filesystem;
        const fs::path tables = program.files.path() / "Data Tables";
        fs::remove(tables);
        fs::copy(programFolder() / "Data Tables", tables, fs::copy_options::recursive);
        for (const auto& entry : fs::directory_iterator(tables))
            tables_.push_back(entry.path());
        std::sort(tables_.begin(), tables_.end());
        program.messages.decide = [this](const Message& question) { return answer(question); };
        program.saveDialog.choice = SaveChoice{program.files.path() / "saved.rtf", 1};
        program.colourDialog.choice = rgb(200, 120, 0);
    }

    /// One step on the form in front; gives what it was.
    std::string step() {
        Form& form = *program_.screens.current();
        const std::string where = form.objectName().toStdString() + ": ";
        if (missing_ > 0 && --missing_ == 0) return restoreTables();
        const unsigned kind = below(100);
        if (program_.office.runs() && below(20) == 0) return endShow();
        if (kind < 1) return where + pressHelp(form);
        if (kind < 2) return where + pressEscape(form);
        if (kind < 4) return where + closeWindow(form);
        if (kind < 8) return where + pickMenuItem(form);
        if (kind < 9) return removeTable();
        if (kind < 30) return where + fillForm(form);
        if (kind < 40) return where + pickFromList(form);
        return where + pressButton(form);
    }

  private:
    using Texts = std::vector<const char*>;

    unsigned below(std::size_t end) { return static_cast<unsigned>(chance_() % end); }
    template <typename Items>
    auto& oneOf(Items& items) {
        return items[below(items.size())];
    }
    template <typename Kind>
    std::vector<Kind*> usable(const Form& form) {
        std::vector<Kind*> all;
        for (Kind* const one : form.findChildren<Kind*>()) {
            if (one->isVisible() && one->isEnabled()) all.push_back(one);
        }
        return all;
    }

    Answer answer(const Message& question) {
        if (question.title == "Warning") return below(10) == 0 ? Answer::Yes : Answer::No;
        if (question.title == "Program Help") return oneOf(kAnswers);
        // A search that goes on with such a row would only end by Escape, so it is stopped as well.
        const auto* const form = program_.screens.current();
        auto* const bar = form == nullptr ? nullptr : form->findChild<QProgressDialog*>("SearchProgress");
        const bool yes = below(2) == 0;
        if (bar != nullptr && (yes || below(2) == 0)) bar->cancel();
        return yes ? Answer::Yes : Answer::No;
    }

    static std::string pressEscape(Form& form) {
        QWidget* const focus = form.focusWidget();
        QTest::keyClick(focus == nullptr ? &form : focus, Qt::Key_Escape);
        return "Escape";
    }
    static std::string pressHelp(Form& form) {
        QTest::keyClick(&form, Qt::Key_F1);
        return "F1";
    }
    std::string endShow() {
        program_.office.end();
        return "the show ends";
    }
    static std::string closeWindow(Form& form) {
        form.close();
        return "close button";
    }

    std::string pressButton(Form& form) {
        const auto buttons = usable<QAbstractButton>(form);
        if (buttons.empty()) return pressEscape(form);
        QAbstractButton& button = *oneOf(buttons);
        const std::string told =
            button.objectName().toStdString() + " \"" + button.text().toStdString() + "\"";
        button.click();
        return told;
    }

    std::string pickMenuItem(Form& form) {
        std::vector<QAction*> items;
        for (QAction* const item : form.findChildren<QAction*>()) {
            if (!item->objectName().isEmpty() && item->menu() == nullptr && item->isVisible() &&
                item->isEnabled() && (item->objectName() != "Exit" || below(20) == 0))
                items.push_back(item);
        }
        if (items.empty()) return pressButton(form);
        QAction& item = *oneOf(items);
        item.trigger();
        return "menu " + item.objectName().toStdString();
    }

    std::string pickFromList(Form& form) {
        if (const auto files = usable<QListWidget>(form); !files.empty()) return pickFile(*files.front());
        const auto lists = usable<QComboBox>(form);
        const auto tables = usable<QTreeView>(form);
        if (lists.empty() && tables.empty()) return pressButton(form);
        if (!tables.empty() && (lists.empty() || below(2) == 0)) {
            QTreeView& table = *oneOf(tables);
            if (table.model()->rowCount() == 0) return "empty list";
            const int row = static_cast<int>(below(static_cast<std::size_t>(table.model()->rowCount())));
            table.setCurrentIndex(table.model()->index(row, 1));
            return table.objectName().toStdString() + " row " + std::to_string(row);
        }
        QComboBox& list = *oneOf(lists);
        if (list.count() == 0) return "empty list";
        const int row = static_cast<int>(below(static_cast<std::size_t>(list.count())));
        list.setCurrentIndex(row);
        return list.objectName().toStdString() + " row " + std::to_string(row);
    }

    std::string pickFile(QListWidget& files) {
        const int row = static_cast<int>(below(static_cast<std::size_t>(files.count())));
        files.setCurrentRow(row);
        return files.objectName().toStdString() + " row " + std::to_string(row);
    }

    std::string fillForm(Form& form) {
        const QString name = form.objectName();
        if (name == "Form9") return fillNumber(form);
        if (name == "Form12") return below(4) == 0 ? fillOne(form, kSizes) : fillSizes(form);
        if (name == "Form14") return below(4) == 0 ? fillOne(form, kLoads) : fillLoads(form);
        if (name == "DataForm") return fillEntry(form);
        if (name == "Form27" || name == "form30") return fillOne(form, kLoads);
        if (name == "Form24") return fillPreload(form);
        if (name == "Form25") return fillOne(form, kAxes);
        return pressButton(form);
    }

    static std::string put(QLineEdit& field, const char* text) {
        field.selectAll();
        field.insert(QString::fromUtf8(text));
        return field.objectName().toStdString() + " = \"" + text + "\"";
    }

    std::string fillNumber(Form& form) {
        const auto fields = usable<QLineEdit>(form);
        QLineEdit& field = *fields.front();
        std::string told = put(field, oneOf(kNumbers));
        if (below(3) == 0) return told;
        if (const auto options = usable<QRadioButton>(form); !options.empty()) {
            QRadioButton& option = *oneOf(options);
            option.click();
            told += ", " + option.objectName().toStdString();
        }
        QTest::keyClick(&field, Qt::Key_Return);
        return told + ", Enter";
    }

    std::string fillOne(Form& form, const Texts& texts) {
        const auto fields = usable<QLineEdit>(form);
        return fields.empty() ? "nothing to fill" : put(*oneOf(fields), oneOf(texts));
    }

    std::string fillEntry(Form& form) {
        auto fields = usable<QLineEdit>(form);
        std::erase_if(fields, [](const QLineEdit* field) { return field->isReadOnly(); });
        QLineEdit& field = *oneOf(fields);
        std::string told = put(field, oneOf(below(2) == 0 ? kSizes : kLoads));
        QTest::keyClick(&field, Qt::Key_Return);
        return told + ", Enter";
    }

    std::string fillSizes(Form& form) {
        const bool metric = program_.state.units.lengthUnit == "mm";
        const auto& envelopes = metric ? kMetricEnvelopes : kEnvelopes;
        const std::array<const char*, 4>& envelope = oneOf(envelopes);
        std::string told;
        for (std::size_t i = 0; i < envelope.size(); ++i) {
            auto* const field = form.findChild<QLineEdit*>(QString("Text%1").arg(i + 1));
            told += put(*field, envelope[i]) + " ";
        }
        return told + proceed(form, "Command2");
    }

    std::string fillLoads(Form& form) {
        std::string told;
        for (QLineEdit* const field : usable<QLineEdit>(form))
            told += put(*field, oneOf(kLoads)) + " ";
        return told + proceed(form, "Command1");
    }

    std::string fillPreload(Form& form) {
        const bool metric = program_.state.units.lengthUnit == "mm";
        return put(*form.findChild<QLineEdit*>("Text3"), oneOf(metric ? kMetricPreloads : kPreloads)) + " " +
               proceed(form, "Command3");
    }

    std::string proceed(Form& form, const char* button) {
        if (below(4) == 0) return "";
        form.findChild<QAbstractButton*>(button)->click();
        return button;
    }

    std::string removeTable() {
        const std::filesystem::path& table = oneOf(tables_);
        missing_ = 1 + static_cast<int>(below(8));
        std::filesystem::remove(table);
        return "removes " + table.filename().string();
    }
    std::string restoreTables() {
        for (const std::filesystem::path& table : tables_) {
            std::filesystem::copy_file(programFolder() / "Data Tables" / table.filename(), table,
                                       std::filesystem::copy_options::overwrite_existing);
        }
        return "restores the tables";
    }

    inline static const std::array<Answer, 3> kAnswers = {Answer::Yes, Answer::No, Answer::Cancel};
    inline static const Texts kNumbers = {
        "K19013XP0",  "k10013xp0",  "K15008CP0", "K19013CP0",  "K10008XP0A", "K19013BR0N", "K10013BP0C",
        "K19013FR0A", "K20020BP0K", "K19013AP0", "K19013UP0",  "K19013TP0A", "S19013XF0",  "N19013XP6",
        "K19013XZ0",  "K19013AZ0",  "K19013X",   "K19013BP0",  "X19013XP0",  "K19913XP0",  "K19013XQ0",
        "K10013CP0Z", "",           "K190ä3XP0", "K19013FP0K", "K1O013XPO",  "K10013XP0L"};
    inline static const Texts kSizes = {"", "3", "4.5", "100", "126", "0", "1e38", "5.5e", "-1"};
    inline static const Texts kLoads = {"",    "0",   "0",   "500", "1200", "100.4", "2500",
                                        "-50", "abc", "400", "0.3", "3e38", "12,000"};
    inline static const Texts kPreloads = {"", "0", "0.0005", "0.001", "0.0035", "-0.001", "abc"};
    inline static const Texts kMetricPreloads = {"", "0", "0.0127", "0.0254", "0.0889", "-0.1", "abc"};
    inline static const Texts kAxes = {"", "0", "-1", "abc", "0.0001", "0.002", "500", "5000", "1e9"};
    inline static const std::vector<std::array<const char*, 4>> kEnvelopes = {
        {"3.9370", "5", ".5", ".52"}, {"5", "9", ".2", "1.2"}, {"0", "4", "0", "1.2"},
        {"7", "10", ".3", "2"},       {"9", "5", "1.2", ".2"}, {"20", "21", ".1", ".2"},
        {"1", "30", ".1", "1.6"},     {"3", "6", ".3", "1.1"},
    };
    inline static const std::vector<std::array<const char*, 4>> kMetricEnvelopes = {
        {"100", "126", "13", "13"}, {"127", "228.6", "5", "30"}, {"0", "101", "0", "30"},
        {"150", "250", "8", "50"},  {"250", "150", "30", "8"},
    };

    Program& program_;
    std::mt19937_64& chance_;
    std::vector<std::filesystem::path> tables_;
    int missing_ = 0;
};

}  // namespace norlaplan::testing
