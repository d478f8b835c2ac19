#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "state/Drawing.h"

namespace norlaplan {

enum class Icon { None, Information, Warning, Question, Critical };
enum class Buttons { Ok, YesNo, YesNoCancel };
enum class Answer { Ok, Yes, No, Cancel };

/// A message box. Title and prompt are the program's own texts, UTF-8.
struct Message {
    std::string title;
    std::string prompt;
    Icon icon = Icon::None;

    bool operator==(const Message&) const = default;
};

/// Shows messages and asks questions. The window program shows boxes; the command line prints messages and
/// answers No.
class MessagePort {
  public:
    virtual ~MessagePort() = default;
    virtual void show(const Message& message) = 0;
    virtual Answer ask(const Message& question, Buttons buttons) = 0;
    /// Asked now and then by a calculation that takes long: false when the user has stopped what it is for.
    virtual bool stillWanted() { return true; }
};

struct FileFilter {
    std::string label;    ///< as the dialog shows it: "Rich Text Files (*.rtf)"
    std::string pattern;  ///< "*.rtf"
};

struct SaveRequest {
    std::string title;
    std::vector<FileFilter> filters;
    std::string defaultExtension;  ///< ".rtf"
    std::filesystem::path folder;
    std::string name;
};

struct SaveChoice {
    std::filesystem::path path;
    int filterIndex = 1;  ///< counted from 1
};

/// The save dialog, with its question before an existing file is replaced. Nothing when the user cancels.
class SaveDialogPort {
  public:
    virtual ~SaveDialogPort() = default;
    virtual std::optional<SaveChoice> askWhereToSave(const SaveRequest& request) = 0;
};

struct OpenRequest {
    std::string title;
    FileFilter filter;
    std::filesystem::path folder;
};

/// The dialog for a file that is read. Nothing when the user cancels.
class OpenDialogPort {
  public:
    virtual ~OpenDialogPort() = default;
    virtual std::optional<std::filesystem::path> askWhatToOpen(const OpenRequest& request) = 0;
};

/// The printer, on paper of the drawing's size and orientation. False when the user cancels.
class PrinterPort {
  public:
    virtual ~PrinterPort() = default;
    virtual bool print(const std::string& documentName, const Drawing& drawing) = 0;
};

/// Date and time as texts in the user's locale, short form.
class ClockPort {
  public:
    virtual ~ClockPort() = default;
    virtual std::string date() = 0;
    virtual std::string time() = 0;
    virtual std::string longDate() = 0;  ///< with the month in letters: "Saturday, March 14, 2026"
};

/// What is attached to a mail.
struct MailAttachment {
    std::filesystem::path file;
    int type = 1;  ///< 1: the file itself
    int position = 2;
    std::string displayName;

    bool operator==(const MailAttachment&) const = default;
};

/// The mail program, asked step by step for one new mail, in the order of these operations. Each raises a
/// `RuntimeError` when it fails: 429 when there is no mail program.
class MailPort {
  public:
    virtual ~MailPort() = default;
    virtual void createApplication() = 0;
    virtual void createItem(int kind) = 0;  ///< 0: a mail
    virtual void saveItem() = 0;
    virtual void attach(const MailAttachment& attachment) = 0;
    virtual void setSubject(const std::string& subject) = 0;
    virtual void display() = 0;  ///< leaves the mail open for the user
};

/// The two files that a decode writes: the sheet as RTF and the same drawing as records.
struct SheetFiles {
    std::string rtf;
    std::string records;
};

/// Where a decode puts its data sheet: the program folder, or memory for the command line.
class SheetStorePort {
  public:
    virtual ~SheetStorePort() = default;
    virtual void store(const SheetFiles& sheet) = 0;
};

/// Small texts of the user's own, kept from one run of the program to the next.
class UserFilesPort {
  public:
    virtual ~UserFilesPort() = default;
    /// The text that is kept under the name. Error 53 when there is none, else as `readWholeFile`.
    virtual std::string read(const std::string& name) = 0;
    /// Replaces it, whole or not at all. Errors as `writeWholeFile`.
    virtual void write(const std::string& name, const std::string& content) = 0;
};

}  // namespace norlaplan
