#include <filesystem>
#include <fstream>
#include <iterator>
#include <regex>
#include <set>

#include "screens/FormRegistry.h"
#include "screens/Program.h"

namespace norlaplan::testing {
namespace {

/// A form that counts how it comes to the front.
class Counting : public Form {
  public:
    using Form::Form;
    void opened() override { ++timesOpened; }
    void cameBack() override { ++timesBack; }

    int timesOpened = 0, timesBack = 0;
};

/// The program with the style, size and load screens replaced by counting ones.
struct Pile : Program {
    Pile() {
        for (const FormName name : {forms::kStyle, forms::kSizes, forms::kLoads})
            screens.add(name, [name](Screens& all) { return std::make_unique<Counting>(all, name, ""); });
    }
    /// Times opened and come back, as "1+0".
    std::string counts(FormName name) {
        const auto& form = screens.formAs<Counting>(name);
        return std::to_string(form.timesOpened) + "+" + std::to_string(form.timesBack);
    }
};

class FormRegistryTest : public QObject {
    Q_OBJECT

  private slots:
    void everyNameStandsOnce() {
        std::set<std::string> names, plainNames;
        for (const FormEntry& entry : formRegistry()) {
            QVERIFY2(names.insert(entry.name).second, entry.name.text);
            QVERIFY2(plainNames.insert(entry.plainName).second, entry.plainName);
        }
    }

    void theTableOfFormsForReadersIsTheRegistry() {
        std::ifstream guide(sourceFolder() / "CONTRIBUTING.md");
        std::vector<std::string> rows;
        bool inTable = false;
        for (std::string line; std::getline(guide, line);) {
            if (line.starts_with("## ")) inTable = line == "## Forms";
            if (inTable && line.starts_with("| `")) rows.push_back(line);
        }
        QCOMPARE(rows.size(), formRegistry().size());
        for (std::size_t i = 0; i < rows.size(); ++i) {
            const FormEntry& entry = formRegistry()[i];
            const std::string name = "| `" + std::string(entry.name) + "` | `k";
            const std::string file = "`src/screens/" + std::string(entry.name) + ".h` |";
            const std::string end = "` | " + std::string(entry.plainName) + " | " + file;
            QVERIFY2(rows[i].starts_with(name), rows[i].c_str());
            QVERIFY2(rows[i].ends_with(end), rows[i].c_str());
        }
    }

    void everyFileThatTheGuideNamesIsThere() {
        std::ifstream guide(sourceFolder() / "CONTRIBUTING.md");
        const std::string text{std::istreambuf_iterator<char>(guide), {}};
        const std::regex file("`(src/[^`]+\\.(h|cpp))`");
        int found = 0;
        for (std::sregex_iterator each(text.begin(), text.end(), file), end; each != end; ++each, ++found)
            QVERIFY2(std::filesystem::exists(sourceFolder() / (*each)[1].str()), (*each)[1].str().c_str());
        QVERIFY(found > 20);
    }

    void everyFormBearsItsName() {
        Program program;
        for (const FormEntry& entry : formRegistry()) {
            QCOMPARE(program.screens.form(entry.name).objectName(), QString(entry.name.text));
        }
    }

    void aFormIsOpenedOnceAndComesBackWhenWhatLayOverItIsLeft() {
        Pile pile;
        pile.screens.show(forms::kStyle);
        QCOMPARE(pile.counts(forms::kStyle), std::string("1+0"));
        pile.screens.show(forms::kSizes);
        QCOMPARE(pile.counts(forms::kStyle), std::string("1+0"));
        pile.screens.form(forms::kSizes).close();
        QCOMPARE(pile.counts(forms::kStyle), std::string("1+1"));
        pile.screens.show(forms::kSizes);
        QCOMPARE(pile.counts(forms::kSizes), std::string("2+0"));
    }

    void aFormShownFromAboveItselfComesBackAndTheOthersClose() {
        Pile pile;
        for (const FormName name : {forms::kStyle, forms::kSizes, forms::kLoads})
            pile.screens.show(name);
        pile.screens.show(forms::kStyle);
        QCOMPARE(pile.counts(forms::kStyle), std::string("1+1"));
        QCOMPARE(pile.counts(forms::kSizes), std::string("1+0"));
        pile.screens.show(forms::kSizes);
        QCOMPARE(pile.counts(forms::kSizes), std::string("2+0"));
    }

    void aFormInPlaceOfAnotherLeavesTheOneBeneathAlone() {
        Pile pile;
        pile.screens.show(forms::kStyle);
        pile.screens.show(forms::kSizes);
        pile.screens.showInstead(pile.screens.form(forms::kSizes), forms::kLoads);
        QCOMPARE(pile.inFront(), std::string(forms::kLoads));
        QCOMPARE(pile.counts(forms::kStyle), std::string("1+0"));
        QCOMPARE(pile.counts(forms::kLoads), std::string("1+0"));
        pile.screens.form(forms::kLoads).close();
        QCOMPARE(pile.inFront(), std::string(forms::kStyle));
        QCOMPARE(pile.counts(forms::kStyle), std::string("1+1"));
    }

    void alonePutsAFormInPlaceOfAllAndAnOpenOneComesBack() {
        Pile pile;
        pile.screens.show(forms::kStyle);
        pile.screens.show(forms::kSizes);
        pile.screens.showAlone(forms::kStyle);
        QCOMPARE(pile.counts(forms::kStyle), std::string("1+1"));
        pile.screens.showAlone(forms::kLoads);
        QCOMPARE(pile.counts(forms::kLoads), std::string("1+0"));
        pile.screens.form(forms::kLoads).close();
        QCOMPARE(pile.inFront(), std::string());
    }
};

}  // namespace
}  // namespace norlaplan::testing

QTEST_MAIN(norlaplan::testing::FormRegistryTest)
#include "FormRegistryTest.moc"
