#pragma once

#include <array>
#include <filesystem>
#include <optional>

#include "screens/ApplicationPages.h"
#include "screens/Form.h"

namespace norlaplan {

class SideTabs;

/// Application form: what the maker needs to propose a bearing, on twelve pages, each with a light that tells
/// how complete it is.
class Form10 : public Form {
  public:
    explicit Form10(Screens& screens);

    void opened() override;
    void cameBack() override { fill(); }

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    QWidget* makeLegend();
    void followEntries();
    /// Shows what the program knows, and the units in force.
    void fill();
    void entered(const ApplicationText& text);
    void chosen(const ApplicationChoice& choice, int option);
    /// Takes note of what now stands in a value, in its light and as unsaved.
    void noteChange(const ApplicationField& field);
    /// Shows and enables what the choices ask for.
    void applyRules();
    void showLights();
    /// To the next control, on the next page when this one has no more.
    void moveOn(QWidget& from);

    void goToMainMenu();
    void print();
    void save();
    void saveWithData(const std::filesystem::path& path);
    void open();

    ApplicationPages pages_;
    SideTabs* tabs_;
    QPushButton* save_;
    std::array<std::optional<Light>, kApplicationTabs> lights_;
    bool filling_ = false;  ///< the program fills the controls, not the user
};

}  // namespace norlaplan
