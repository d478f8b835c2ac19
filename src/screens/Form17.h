#pragma once

#include <filesystem>
#include <optional>

#include "documents/Document.h"
#include "screens/Form.h"

namespace norlaplan {

class DrawingView;

/// The data sheet of the current bearing: looked at, saved, printed.
class Form17 : public Form {
  public:
    explicit Form17(Screens& screens);

    void opened() override;

  protected:
    QSize sizeFor(const QSize& room) const override;

  private:
    /// Reads the drawing afresh and shows the page from its top.
    void redraw();
    /// Whether the sheet is that of the bearing in hand, decoded again where it isn't; a refusal leads to the
    /// entry screen.
    bool sheetInHand();
    void save();
    void print();
    /// The sheet is moved, not copied: the program keeps one only until it has been saved. Error 53 with the
    /// place that it was moved to before.
    void moveSheet(const std::filesystem::path& path);
    /// The sheet of the program folder. A record that nobody can draw ends the program: nothing then.
    std::optional<Document> document();
    std::optional<std::string> soundRecords();

    DrawingView* sheet_;
    Document shown_;
    std::filesystem::path movedTo_;
};

}  // namespace norlaplan
