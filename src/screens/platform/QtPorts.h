#pragma once

#include <filesystem>
#include <utility>

#include "state/ColourDialogPort.h"
#include "state/DesktopPort.h"
#include "state/OfficePort.h"
#include "state/Ports.h"
#include "state/ProgramFolder.h"

namespace norlaplan {

/// Message boxes over the window in front.
class QtMessages : public MessagePort {
  public:
    void show(const Message& message) override;
    Answer ask(const Message& question, Buttons buttons) override;
};

/// Qt's own save dialog, the same on every desktop, which asks before it replaces a file. The first one opens
/// in the folder asked for, later ones where the user saved last.
class QtSaveDialog : public SaveDialogPort {
  public:
    std::optional<SaveChoice> askWhereToSave(const SaveRequest& request) override;

  private:
    std::filesystem::path lastFolder_;
};

/// Qt's own colour dialog.
class QtColourDialog : public ColourDialogPort {
  public:
    std::optional<Colour> askColour(const std::string& title, Colour now) override;
};

/// Qt's own dialog for a file that is read, the same on every desktop.
class QtOpenDialog : public OpenDialogPort {
  public:
    std::optional<std::filesystem::path> askWhatToOpen(const OpenRequest& request) override;
};

/// The preview of the pages, and from there the printer or a PDF file.
class QtPrinter : public PrinterPort {
  public:
    QtPrinter(SaveDialogPort& saveDialog, DesktopPort& desktop)
        : saveDialog_(saveDialog), desktop_(desktop) {}
    bool print(const std::string& documentName, const Drawing& drawing) override;

  private:
    SaveDialogPort& saveDialog_;
    DesktopPort& desktop_;
};

/// Date and time of now in the user's locale, short form.
class LocalClock : public ClockPort {
  public:
    std::string date() override;
    std::string time() override;
    std::string longDate() override;
};

/// The desktop's programs by the desktop's own choice.
class QtDesktop : public DesktopPort {
  public:
    bool open(const std::filesystem::path& path) override;
};

/// Keeps the data sheet as DATA.RTF and CONDENSED.DAT in the program folder. Neither is replaced before both
/// are written, so that a full disk leaves the two of the bearing before. Errors as `writeWholeFile`.
class FolderSheets : public SheetStorePort {
  public:
    explicit FolderSheets(const ProgramFolder& folder) : folder_(folder) {}
    void store(const SheetFiles& sheet) override;

  private:
    const ProgramFolder& folder_;
};

/// The user's own texts, in a folder that is made when the first of them is written. A file too large to be
/// one of them is error 321.
class UserFiles : public UserFilesPort {
  public:
    explicit UserFiles(std::filesystem::path folder) : folder_(std::move(folder)) {}
    /// This program's folder in the user's configuration, as the desktop has it.
    static std::filesystem::path usualFolder();

    std::string read(const std::string& name) override;
    void write(const std::string& name, const std::string& content) override;

  private:
    std::filesystem::path folder_;
};

/// LibreOffice where it is installed, else what the desktop opens the document with by `xdg-open`. The file
/// is an argument of its own, so that no shell ever reads its name. The desktop's program may go on showing
/// after its opener has ended; the show then counts as over.
class DesktopOffice : public OfficePort {
  public:
    void startShow(const std::filesystem::path& show, Ended ended) override;
    void open(const std::filesystem::path& document) override;
};

/// The desktop's mail program, started by `xdg-email` with the subject and the file as arguments of their
/// own, so that no shell ever reads them. It keeps no drafts: a mail that is left is lost with its window.
class DesktopMail : public MailPort {
  public:
    void createApplication() override;
    void createItem(int kind) override;
    void saveItem() override {}
    void attach(const MailAttachment& attachment) override;
    void setSubject(const std::string& subject) override;
    void display() override;

  private:
    std::string program_, subject_;
    std::filesystem::path file_;
};

}  // namespace norlaplan
