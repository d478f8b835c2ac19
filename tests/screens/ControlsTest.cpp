#include <algorithm>
#include <iterator>

#include "screens/controls/ControlTables.h"
#include "screens/controls/ControlsOfAForm.h"

namespace norlaplan::testing {
namespace {

QStringList differencesOf(Visitor& program, const ControlTable& table, const Facts& facts) {
    return ControlCheck(*program.screens.current(), table.rows, facts).differences();
}

/// The main menu in US units as a user finds it, with something put wrong.
QStringList differencesOfMenuWith(const std::function<void(Visitor&)>& spoil) {
    Visitor program("US", {});
    program.toMenu();
    spoil(program);
    return differencesOf(program, {kMainMenuRows, {}}, {"US"});
}

}  // namespace

/// One table of every control of every form, walked scene by scene in both unit systems.
class ControlsTest : public QObject {
    Q_OBJECT

  private:
    const std::vector<ControlTable> tables_ = controlTables();

    bool hasRows(const std::string& form) const {
        for (const ControlTable& table : tables_) {
            for (const ControlRow& row : table.rows) {
                if (row.form == form) return true;
            }
        }
        return false;
    }
    /// The facts of every scene of a form, in each unit system.
    static std::vector<Facts> allFacts(const ControlTable& table, const std::string& form) {
        std::vector<Facts> all;
        for (const Scene& scene : table.scenes) {
            for (const char* const system : kSystems) {
                if (scene.form == form) all.push_back(factsOf(scene, system));
            }
        }
        return all;
    }
    static bool isFact(const std::string& fact, const std::vector<Facts>& scenes) {
        return fact == kNever || std::any_of(scenes.begin(), scenes.end(),
                                             [&](const Facts& facts) { return facts.contains(fact); });
    }

  private slots:
    void everyControlIsAsItsRowSays_data() {
        QTest::addColumn<std::size_t>("table");
        QTest::addColumn<std::size_t>("scene");
        QTest::addColumn<QString>("system");
        for (std::size_t table = 0; table < tables_.size(); ++table) {
            for (std::size_t scene = 0; scene < tables_[table].scenes.size(); ++scene) {
                for (const char* const system : kSystems) {
                    QTest::addRow("%s, %s", tables_[table].scenes[scene].name.c_str(), system)
                        << table << scene << QString(system);
                }
            }
        }
    }
    void everyControlIsAsItsRowSays() {
        QFETCH(std::size_t, table);
        QFETCH(std::size_t, scene);
        QFETCH(QString, system);
        const QStringList differences =
            differencesIn(tables_[table], tables_[table].scenes[scene], system.toStdString());
        QVERIFY2(differences.isEmpty(), qPrintable("\n" + differences.join("\n")));
    }

    void everyFormHasItsRows() {
        for (const FormEntry& entry : formRegistry()) {
            QVERIFY2(hasRows(entry.name), entry.name.text);
        }
    }

    void everyRowIsSeenInAScene() {
        for (const ControlTable& table : tables_) {
            for (const ControlRow& row : table.rows) {
                const std::vector<Facts> scenes = allFacts(table, row.form);
                const QByteArray where = QByteArray(row.form) + " " + row.control + " \"" + row.text + "\"";
                QVERIFY2(std::any_of(scenes.begin(), scenes.end(),
                                     [&](const Facts& facts) { return applies(row, facts); }),
                         where);
            }
        }
    }

    void everyConditionNamesFactsOfAScene() {
        for (const ControlTable& table : tables_) {
            for (const ControlRow& row : table.rows) {
                const std::vector<Facts> scenes = allFacts(table, row.form);
                for (const char* const condition : {row.shownWhen, row.enabledWhen, row.markedWhen}) {
                    for (const Term& term : termsOf(condition == nullptr ? "" : condition))
                        QVERIFY2(isFact(term.fact, scenes), (row.form + (" " + term.fact)).c_str());
                }
            }
        }
    }

    void aControlThatDiffersIsNoticed_data() {
        using Spoil = std::function<void(Visitor&)>;
        QTest::addColumn<Spoil>("spoil");
        QTest::addColumn<QString>("difference");
        const auto button = [](const char* name,
                               const std::function<void(QAbstractButton&)>& spoil) -> Spoil {
            return [=](Visitor& program) { spoil(program.control<QAbstractButton>("Form3", name)); };
        };
        QTest::newRow("caption") << button("Command9", [](auto& it) { it.setText("Data sheet"); })
                                 << "Command9 reads \"Data sheet\", not \"Data Sheet\" as stated";
        QTest::newRow("tip") << button("Command9", [](auto& it) { it.setToolTip(""); })
                             << "Command9 has the tip \"\", not \"View Data sheet (drawing)\" as stated";
        QTest::newRow("hidden") << button("Command9", [](auto& it) { it.hide(); }) << "Command9 is hidden";
        QTest::newRow("shown") << button("Command16", [](auto& it) { it.show(); }) << "Command16 is shown";
        QTest::newRow("disabled") << button("Command9", [](auto& it) { it.setEnabled(false); })
                                  << "Command9 is disabled";
        QTest::newRow("marked") << button("Command9", [](auto& it) {
            it.setCheckable(true);
            it.setChecked(true);
        }) << "Command9 is marked";
        QTest::newRow("missing") << button("Command9", [](auto& it) { delete &it; }) << "Command9 is missing";
        QTest::newRow("twice") << button("Command9", [](auto& it) { it.setObjectName("Command10"); })
                               << "Command10 is there twice";
        QTest::newRow("other words spoken")
            << button("Command9", [](auto& it) { it.setAccessibleDescription("Drawing"); })
            << "Command9 doesn't say its tip";
        QTest::newRow("without a row")
            << button("Command9", [](auto& it) { it.setObjectName("Command20"); }) << "Command20 has no row";
        QTest::newRow("without a name")
            << button("Command9", [](auto& it) { new QCheckBox("More", it.parentWidget()); })
            << "QCheckBox \"More\" without a name has no row";
        QTest::newRow("of another kind") << button("Command9", [](auto& it) {
            auto* const other = new QLabel(it.parentWidget());
            other->setObjectName("Command9");
            delete &it;
        }) << "Command9 is of another kind than its name says";
        QTest::newRow("item of a menu")
            << Spoil([](Visitor& program) { program.control<QAction>("Form3", "makeqlx").setVisible(true); })
            << "File > makeqlx is shown";
        QTest::newRow("new item of a menu") << Spoil([](Visitor& program) {
            program.control<QMenu>("Form3", "Sendto").addAction("Fax")->setObjectName("fax");
        }) << "File > Sendto > fax has no row";
        QTest::newRow("window") << Spoil([](Visitor& program) {
            program.screens.form("Form3").setWindowTitle("Menu");
        }) << "Form3 reads \"Menu\", not \"Norlaplan MM\" as stated";
    }
    void aControlThatDiffersIsNoticed() {
        QFETCH(std::function<void(Visitor&)>, spoil);
        QFETCH(QString, difference);
        QCOMPARE(differencesOfMenuWith([](Visitor&) {}), QStringList());
        const QStringList differences = differencesOfMenuWith(spoil);
        QVERIFY2(differences.contains(difference), qPrintable(differences.join("\n")));
    }

    void aTextWithANumberTakesNumbersOnly() {
        for (const char* const number : {"7", "1,200", ".4", "0.40", "-12", "1.13E+09"})
            QVERIFY2(reads(QString("LIFE = %1 HOURS").arg(number), "LIFE = ~ HOURS"), number);
        for (const char* const other : {"", "nan", "1.2.3", "7 8", "inf"})
            QVERIFY2(!reads(QString("LIFE = %1 HOURS").arg(other), "LIFE = ~ HOURS"), other);
        QVERIFY(reads("Data sheet of K19013X A", "Data sheet of *"));
        QVERIFY(!reads("Data sheet of ", "Data sheet of *"));
        QVERIFY(!reads("Data sheet", "Data shee."));
    }

    void aConditionAsksForEachOfItsFacts() {
        QVERIFY(holds("", {}));
        QVERIFY(holds("speed", {"speed", "US"}));
        QVERIFY(!holds("speed", {"US"}));
        QVERIFY(holds("!speed", {"US"}));
        QVERIFY(!holds("!speed", {"speed"}));
        QVERIFY(holds("PATH STRESS & !C", {"PATH STRESS"}));
        QVERIFY(!holds("PATH STRESS & !C", {"PATH STRESS", "C"}));
        QVERIFY(!holds("PATH STRESS & !C", {}));
    }
};

}  // namespace norlaplan::testing

QTEST_MAIN(norlaplan::testing::ControlsTest)
#include "ControlsTest.moc"
