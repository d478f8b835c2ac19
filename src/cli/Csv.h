#pragma once

#include <cstdio>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace norlaplan::cli {

/// The lines of a CSV file, one after the other, whatever its size. A byte order mark is passed over; lines
/// end with LF or CR LF. Errors: 53, 70, 75 and 57 for a file that is missing, may not be read, is a folder,
/// or fails, and what else the system says when it is opened; their texts name the file.
class CsvReader {
  public:
    explicit CsvReader(const std::filesystem::path& path);

    /// The next line that isn't empty; false at the end. Of a line that is longer than any case the rest is
    /// passed over.
    bool nextLine(std::string& line);
    /// The part of the file that is read, 0 to 1; 0 for a pipe.
    double partRead() const;

  private:
    struct Closer {
        void operator()(std::FILE* file) const { std::fclose(file); }
    };
    bool readLine(std::string& line);

    std::filesystem::path path_;
    std::unique_ptr<std::FILE, Closer> file_;
    double size_ = 0.0, read_ = 0.0;
};

/// The fields of a line, blanks around them left out; a quoted one may hold commas and doubled quotes. Error:
/// `CommandError` for a quote that isn't closed.
std::vector<std::string> csvFields(std::string_view line);

/// Writes fields behind a text, parted by commas, each quoted where it has to be. A case stays on one line: a
/// line end inside a field becomes a blank.
class CsvLine {
  public:
    explicit CsvLine(std::string& text) : line_(text) {}
    void field(std::string_view field);
    void end() { line_ += '\n'; }

  private:
    std::string& line_;
    int fields_ = 0;
};

}  // namespace norlaplan::cli
