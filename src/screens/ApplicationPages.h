#pragma once

#include <QString>
#include <map>
#include <string>
#include <vector>

#include "state/ApplicationFields.h"

class QButtonGroup;
class QCheckBox;
class QGridLayout;
class QGroupBox;
class QHBoxLayout;
class QLabel;
class QWidget;

namespace norlaplan {

/// A text of the application form on the screen: a line, or a box of several lines.
struct ApplicationText {
    const ApplicationField* field;
    QWidget* box;
    QLabel* unit;  ///< none for a value without one

    QString text() const;
    void setText(const QString& text) const;
};

/// A group of options on the screen; a button's id is the place of its option in the group.
struct ApplicationChoice {
    const ApplicationGroup* group;
    QButtonGroup* buttons;
};

/// The controls of the application form, laid out on its twelve pages from one description. The pages are
/// taken over by whoever shows them.
class ApplicationPages {
  public:
    ApplicationPages();

    QWidget* page(int tab) const { return pages_.at(tab); }
    const std::vector<ApplicationText>& texts() const { return texts_; }
    const std::vector<ApplicationChoice>& choices() const { return choices_; }
    QCheckBox& shock() const { return *shock_; }
    QWidget& text(const char* control) const;
    QGroupBox& frame(const char* name) const { return *frames_.at(name); }
    /// All controls that are entered, in the order in which the Tab key goes through them.
    const std::vector<QWidget*>& order() const { return order_; }

  private:
    struct FrameLayout;

    void makeFrame(const FrameLayout& description, QHBoxLayout& row);
    void addControl(QGroupBox& frame, QGridLayout& grid, const std::string& control, int row, int column);
    void addText(QGridLayout& grid, const ApplicationField& field, int row, int column);
    void addChoice(QGroupBox& frame, QGridLayout& grid, const ApplicationGroup& group, int row);
    void alignLabels() const;

    static const std::vector<FrameLayout>& layout();

    std::map<int, QWidget*> pages_;
    std::map<std::string, QGroupBox*> frames_;
    std::vector<ApplicationText> texts_;
    std::vector<ApplicationChoice> choices_;
    std::vector<QWidget*> order_;
    std::map<int, std::vector<QLabel*>> labels_;
    QCheckBox* shock_ = nullptr;
};

/// What stands behind a value with that unit; empty for none.
QString unitText(FieldUnit unit, const UnitMode& units);

}  // namespace norlaplan
