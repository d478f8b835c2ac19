#pragma once

#include <filesystem>
#include <optional>

#include "documents/Document.h"
#include "screens/Form.h"
#include "state/Ports.h"

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
    /// The sheet is moved, not copied: the program keeps one only until it has been saved.
    void moveSheet(const std::filesystem::path& path);

    // The files of the program folder are another bearing's when a second program in that folder has decoded
    // one, and gone when it has ended. They are used only when they are those of the bearing in hand, and
    // made again otherwise.

    /// The sheet as a document. A record that nobody can draw ends the program: nothing then.
    std::optional<Document> document();
    std::optional<std::string> soundRecords();
    /// The sheet as RTF. Error 53 with the place that it was moved to by this program.
    std::string sheetText();
    /// Nothing when there is no such file.
    std::optional<std::string> readFile(const char* name) const;
    SheetFiles makeAgain();

    DrawingView* sheet_;
    Document shown_;
    int shownDecode_ = 0;  ///< the decode that the sheet on the screen is of
    std::filesystem::path movedTo_;
    int moved_ = 0;  ///< the decode whose sheet was moved there
};

}  // namespace norlaplan
