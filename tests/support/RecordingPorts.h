#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "numbers/RuntimeError.h"
#include "state/Canvas.h"
#include "state/ColourDialogPort.h"
#include "state/Ports.h"

/// Ports that record what they are told and answer what the test has laid down.
namespace norlaplan::testing {

class RecordingMessages : public MessagePort {
  public:
    std::vector<Message> shown;
    std::vector<Message> asked;
    std::vector<Answer> answers;                   ///< taken from the front; No once they are used up
    std::function<Answer(const Message&)> decide;  ///< answers in their place, when it is there

    void show(const Message& message) override { shown.push_back(message); }
    Answer ask(const Message& question, Buttons) override {
        asked.push_back(question);
        if (decide) return decide(question);
        if (answers.empty()) return Answer::No;
        const Answer answer = answers.front();
        answers.erase(answers.begin());
        return answer;
    }
};

class FixedClock : public ClockPort {
  public:
    std::string date() override { return "3/14/26"; }
    std::string time() override { return "9:26 AM"; }
    std::string longDate() override { return "Saturday, March 14, 2026"; }
};

class MemorySheets : public SheetStorePort {
  public:
    std::vector<SheetFiles> stored;
    void store(const SheetFiles& sheet) override { stored.push_back(sheet); }
};

/// The user's own texts in memory, or a store that can be neither read nor written.
class MemoryUserFiles : public UserFilesPort {
  public:
    std::map<std::string, std::string> texts;
    bool broken = false;
    std::string read(const std::string& name) override {
        if (broken) raise(fault::kPermissionDenied);
        const auto found = texts.find(name);
        if (found == texts.end()) raise(fault::kFileNotFound);
        return found->second;
    }
    void write(const std::string& name, const std::string& content) override {
        if (broken) raise(fault::kDiskFull);
        texts[name] = content;
    }
};

class PresetSaveDialog : public SaveDialogPort {
  public:
    std::optional<SaveChoice> choice;  ///< nothing: the user cancels
    std::vector<SaveRequest> requests;
    std::optional<SaveChoice> askWhereToSave(const SaveRequest& request) override {
        requests.push_back(request);
        return choice;
    }
};

class PresetColourDialog : public ColourDialogPort {
  public:
    std::optional<Colour> choice;  ///< nothing: the user cancels
    std::vector<std::string> titles;
    std::vector<Colour> opened;  ///< the colours that it was opened on
    std::optional<Colour> askColour(const std::string& title, Colour now) override {
        titles.push_back(title);
        opened.push_back(now);
        return choice;
    }
};

class PresetOpenDialog : public OpenDialogPort {
  public:
    std::optional<std::filesystem::path> choice;  ///< nothing: the user cancels
    std::vector<OpenRequest> requests;
    std::optional<std::filesystem::path> askWhatToOpen(const OpenRequest& request) override {
        requests.push_back(request);
        return choice;
    }
};

/// A mail program that keeps each step it was asked for, as a line of words, and fails at those laid down.
class RecordingMail : public MailPort {
  public:
    std::vector<std::string> steps;
    std::map<std::string, int> faults;  ///< by the step's first word

    void createApplication() override { take("application"); }
    void createItem(int kind) override { take("item", std::to_string(kind)); }
    void saveItem() override { take("save"); }
    void attach(const MailAttachment& file) override {
        take("attach", file.file.string() + " " + std::to_string(file.type) + " " +
                           std::to_string(file.position) + " \"" + file.displayName + "\"");
    }
    void setSubject(const std::string& subject) override { take("subject", subject); }
    void display() override { take("display"); }

  private:
    void take(const std::string& step, const std::string& what = "") {
        steps.push_back(what.empty() ? step : step + " " + what);
        if (faults.contains(step)) raise(faults.at(step));
    }
};

/// What was drawn, call by call.
class RecordingCanvas : public Canvas {
  public:
    struct Line {
        PagePoint from, to;
        PagePen pen;
    };
    struct Rectangle {
        PageBox box;
        std::optional<Colour> fill;
        std::optional<PagePen> frame;
    };
    struct Circle {
        PagePoint centre;
        double radius;
        PagePen pen;
    };
    struct Text {
        PageBox box;
        std::string text;
        TextLook look;
    };
    std::vector<Line> lines;
    std::vector<Rectangle> rectangles;
    std::vector<Circle> circles;
    std::vector<Text> texts;
    int pages = 1;

    void line(PagePoint from, PagePoint to, const PagePen& pen) override { lines.push_back({from, to, pen}); }
    void rectangle(const PageBox& box, std::optional<Colour> fill,
                   const std::optional<PagePen>& frame) override {
        rectangles.push_back({box, fill, frame});
    }
    void circle(PagePoint centre, double radius, const PagePen& pen) override {
        circles.push_back({centre, radius, pen});
    }
    void text(const PageBox& box, std::string_view text, const TextLook& look) override {
        texts.push_back({box, std::string(text), look});
    }
    /// Half the type size a character: a plain stand-in for real font metrics.
    double textWidth(std::string_view text, const TextLook& look) override {
        return static_cast<double>(text.size()) * look.points / 144.0;
    }
    void newPage() override { ++pages; }

    bool hasText(const std::string& wanted) const {
        for (const Text& drawn : texts) {
            if (drawn.text == wanted) return true;
        }
        return false;
    }
};

class RecordingPrinter : public PrinterPort {
  public:
    bool accepts = true;  ///< false: the user cancels the print dialog
    std::vector<std::string> documents;
    std::vector<Paper> papers;  ///< one for each document
    RecordingCanvas canvas;
    bool print(const std::string& documentName, const Drawing& drawing) override {
        if (!accepts) return false;
        documents.push_back(documentName);
        papers.push_back(drawing.paper);
        drawing.draw(canvas);
        return true;
    }
};

/// A folder of the test's own, removed with all it holds at the end.
class TemporaryFolder {
  public:
    TemporaryFolder() {
        std::string name = (std::filesystem::temp_directory_path() / "norlaplan-XXXXXX").string();
        path_ = mkdtemp(name.data());
    }
    ~TemporaryFolder() {
        std::error_code ignored;
        std::filesystem::permissions(path_, std::filesystem::perms::owner_all, ignored);
        std::filesystem::remove_all(path_, ignored);
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    const std::filesystem::path& path() const { return path_; }

    /// Writes a file into the folder, with the folders on the way to it.
    void write(const std::filesystem::path& name, const std::string& content) const {
        std::filesystem::create_directories((path_ / name).parent_path());
        std::ofstream(path_ / name, std::ios::binary) << content;
    }
    std::string read(const std::filesystem::path& name) const {
        std::ifstream file(path_ / name, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }

  private:
    std::filesystem::path path_;
};

}  // namespace norlaplan::testing
