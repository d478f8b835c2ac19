#pragma once

#include <QWidget>
#include <array>

#include "catalogue/PartNumberMeaning.h"

class QLabel;

namespace norlaplan {

class CharacterCell;

/// A part number as it is typed: each character in a cell, under the cells what each code means or what may
/// stand there, and in one line what is wrong first.
class NumberMeaningView : public QWidget {
  public:
    NumberMeaningView();

    void explain(const PartNumberMeaning& meaning);
    /// Shows a sentence of its own in the line, until the next number.
    void say(const QString& sentence);
    /// What the line says.
    QString spoken() const;

  private:
    std::array<CharacterCell*, 10> places_{};
    std::array<QLabel*, 7> codes_{};
    QLabel* line_;
};

}  // namespace norlaplan
