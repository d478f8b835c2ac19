#include "documents/ApplicationFile.h"

#include <algorithm>
#include <vector>

#include "documents/DataSheet.h"
#include "numbers/DecimalText.h"
#include "numbers/Encoding.h"
#include "numbers/Text.h"
#include "state/ApplicationFields.h"

namespace norlaplan {
namespace {

constexpr std::size_t kHeadLines = 7;
constexpr std::size_t kUnitLine = 2;  // counted from 0
constexpr char kEscape = '\x1b';
constexpr char kLineBreak = '\v';

/// The characters that would break a line of the file, or be taken for a break, with their escapes.
struct Escaped {
    char character, letter;
};
constexpr Escaped kEscapes[] = {{kEscape, 'e'}, {kLineBreak, 'v'}, {'\r', 'r'}};

std::string onOneLine(const std::string& value) {
    std::string line;
    for (const char character : value) {
        const auto* const found = std::find_if(std::begin(kEscapes), std::end(kEscapes),
                                               [&](Escaped entry) { return entry.character == character; });
        if (found != std::end(kEscapes))
            line += {kEscape, found->letter};
        else
            line += character == '\n' ? kLineBreak : character;
    }
    return line;
}

std::string fromOneLine(std::string_view line) {
    std::string value;
    for (std::size_t at = 0; at < line.size(); ++at) {
        const auto* const found = std::find_if(std::begin(kEscapes), std::end(kEscapes), [&](Escaped entry) {
            return line[at] == kEscape && at + 1 < line.size() && line[at + 1] == entry.letter;
        });
        if (found != std::end(kEscapes)) {
            value += found->character;
            ++at;
        } else {
            value += line[at] == kLineBreak ? '\n' : line[at];
        }
    }
    return value;
}

std::vector<std::string_view> linesOf(std::string_view text) {
    std::vector<std::string_view> lines;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        std::string_view line = text.substr(0, end);
        if (line.ends_with('\r')) line.remove_suffix(1);
        lines.push_back(line);
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return lines;
}

bool isValueOf(const ApplicationGroup& group, const std::string& value) {
    return std::any_of(group.options.begin(), group.options.end(),
                       [&](const ApplicationOption& option) { return value == option.value; });
}

/// Whether the form can show the value: any text in a field, a known one of options, none at all anywhere.
bool isPossible(const ApplicationField& field, const std::string& value) {
    if (field.isText() || value.empty()) return true;
    for (const ApplicationGroup& group : applicationGroups()) {
        if (group.value == field.own) return isValueOf(group, value);
    }
    return value == kYes || value == kNo;
}

[[noreturn]] void refuse(const std::string& why) {
    throw BadApplicationFile("The file is no data file of the application form: " + why);
}

}  // namespace

std::string applicationFile(const ProgramState& state) {
    std::string text;
    const auto write = [&text](const std::string& line) { text += onOneLine(line) + "\r\n"; };
    write(kProgramVersion);
    write(state.bearing.partNumber);
    write(state.unitSystem);
    write(printedNumber(state.loads.radialLoad));
    write(printedNumber(state.loads.axialLoad));
    write(printedNumber(state.loads.momentLoad));
    write(state.style.searchStyleCaption);
    for (const ApplicationField& field : applicationFields())
        write(valueOf(field, state.application.data, state.user));
    return text;
}

ReadApplication readApplicationFile(std::string_view bytes) {
    const std::string text = fileText(bytes);
    const std::vector<std::string_view> lines = linesOf(text);
    if (lines.empty() || lines.front() != kProgramVersion)
        refuse("its first line is not \"" + std::string(kProgramVersion) + "\".");
    if (!text.ends_with('\n')) refuse("its last line is cut short.");
    const std::size_t wanted = kHeadLines + applicationFields().size();
    if (lines.size() != wanted)
        refuse("it has " + std::to_string(lines.size()) + " lines in place of " + std::to_string(wanted) +
               ".");
    ReadApplication read;
    read.unitSystem = fromOneLine(lines[kUnitLine]);
    std::size_t at = kHeadLines;
    for (const ApplicationField& field : applicationFields()) {
        const std::string value = fromOneLine(lines[at++]);
        if (!isPossible(field, value))
            refuse("line " + std::to_string(at) + " is none of the form's options.");
        valueOf(field, read.data, read.contact) = value;
    }
    return read;
}

void takeApplication(ProgramState& state, const ReadApplication& read) {
    ApplicationForm& form = state.application;
    form.data = read.data;
    for (const ApplicationField& field : applicationFields()) {
        if (field.isContact()) state.user.*field.contact = read.contact.*field.contact;
    }
    setApplicationDefaults(form.data);
    noteAllEntries(form, state.user);
    form.unsaved = false;
}

std::string applicationFilePath(const std::string& documentPath) {
    const auto isContinued = [](char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80; };
    std::size_t end = documentPath.size();
    // Three characters, each of which may have several bytes.
    for (int character = 0; character < 3 && end > 0; ++character) {
        do {
            --end;
        } while (end > 0 && isContinued(documentPath[end]));
    }
    return documentPath.substr(0, end) + ".KDN";
}

}  // namespace norlaplan
