#include <vector>

#include <gtest/gtest.h>

#include "documents/ApplicationFile.h"
#include "documents/SampleApplication.h"

namespace norlaplan {
namespace {

using testing::filledApplication;

std::vector<std::string> linesOf(std::string text) {
    std::vector<std::string> lines;
    for (std::size_t end = text.find("\r\n"); end != std::string::npos; end = text.find("\r\n")) {
        lines.push_back(text.substr(0, end));
        text.erase(0, end + 2);
    }
    EXPECT_EQ(text, "");
    return lines;
}

/// Why a text is refused; nothing when it is taken.
std::string refusal(const std::string& text) {
    try {
        readApplicationFile(text);
    } catch (const BadApplicationFile& bad) {
        return bad.what();
    }
    return "";
}

std::string joined(const std::vector<std::string>& lines) {
    std::string text;
    for (const std::string& line : lines)
        text += line + "\r\n";
    return text;
}

TEST(ApplicationFile, HasItsSixtySixLinesInTheStatedOrder) {
    const std::vector<std::string> wanted = {"NORLAPLAN-MM version 1.00",
                                             "K19013XP0",
                                             "US",
                                             " 1200",
                                             "-.5",
                                             " 0",
                                             "4-POINT CONTACT",
                                             "Text1",
                                             "Text2",
                                             "Text3",
                                             "Text4",
                                             "Text5",
                                             "Text6",
                                             "Text7",
                                             "Text8",
                                             "Text9",
                                             "Text10",
                                             "OTHER",
                                             "REPLACEMENT",
                                             "Text11",
                                             "Text12",
                                             "Text13",
                                             "Text14",
                                             "Text15",
                                             "Text16",
                                             "YES",
                                             "Text17",
                                             "Text18",
                                             "IS NOT",
                                             "Text19",
                                             "Text20",
                                             "NO",
                                             "Text21",
                                             "Text22",
                                             "8",
                                             "Text23",
                                             "Text24",
                                             "Text25",
                                             "Text26",
                                             "Text27",
                                             "Text28",
                                             "Text29",
                                             "Text30",
                                             "Text31",
                                             "Text32",
                                             "Text33",
                                             "Text34",
                                             "Text35",
                                             "Text36",
                                             "Text37",
                                             "Text38",
                                             "Text39",
                                             "Text40",
                                             "Text41",
                                             "Text42",
                                             "Text43",
                                             "Text44",
                                             "HORIZONTAL",
                                             "OUTER",
                                             "Text45",
                                             "Text46",
                                             "Text47",
                                             "Text48",
                                             "Text49",
                                             "Text50",
                                             "Text51"};
    ASSERT_EQ(wanted.size(), 66U);
    EXPECT_EQ(linesOf(applicationFile(filledApplication())), wanted);
}

TEST(ApplicationFile, KeepsTheContactFieldsWithTheUserInformation) {
    ProgramState state;
    state.user = {"Ann", "Engineer", "Mill", "1 Road", "Town", "123", "456", "suffix"};
    const std::vector<std::string> lines = linesOf(applicationFile(state));
    // Name, company, two lines of address, title, phone, fax.
    EXPECT_EQ((std::vector<std::string>(lines.begin() + 7, lines.begin() + 14)),
              (std::vector<std::string>{"Ann", "Mill", "1 Road", "Town", "Engineer", "123", "456"}));
}

TEST(ApplicationFile, OfAnEmptyFormHasItsLinesAllTheSame) {
    ProgramState state;
    setApplicationDefaults(state.application.data);
    const std::vector<std::string> lines = linesOf(applicationFile(state));
    ASSERT_EQ(lines.size(), 66U);
    EXPECT_EQ(lines[25], "NO");
    EXPECT_EQ(lines[34], "0");
    for (const std::size_t place : {1U, 7U, 17U, 28U, 65U})
        EXPECT_EQ(lines[place], "") << place + 1;
}

TEST(ApplicationFile, ComesBackAsItWasEntered) {
    ProgramState state = filledApplication();
    const std::string tenThousand(10000, 'x');
    const std::vector<std::string> texts = {
        "{\\rtf1 \\par}",
        "C:\\new\\table",
        "line one\nline two\n\nline four\n",
        "\n",
        "a\r\nb\rc",
        "\v\x1b"
        "e\x1b"
        "v\x1b",
        "\"quoted\", and a comma",
        "Z\xc3\xbcrich \xce\xa9 \xe8\xbb\xb8\xe5\x8f\x97 \xf0\x9f\x94\xa9",
        "  blanks  ",
        "\t",
        std::string("nul\0inside", 10),
        tenThousand,
        ""};
    std::size_t next = 0;
    for (const ApplicationField& field : applicationFields()) {
        if (field.isText()) valueOf(field, state.application.data, state.user) = texts[next++ % texts.size()];
    }
    const std::string file = applicationFile(state);
    EXPECT_EQ(linesOf(file).size(), 66U);
    const ReadApplication read = readApplicationFile(file);
    EXPECT_EQ(read.unitSystem, "US");
    for (const ApplicationField& field : applicationFields()) {
        EXPECT_EQ(valueOf(field, read.data, read.contact), valueOf(field, state.application.data, state.user))
            << field.control;
    }
}

TEST(ApplicationFile, WritesATextWithoutLineBreaksAsItStands) {
    ProgramState state;
    state.application.data.remarks = "{a} \\par Z\xc3\xbcrich \xce\xa9";
    EXPECT_EQ(linesOf(applicationFile(state)).back(), "{a} \\par Z\xc3\xbcrich \xce\xa9");
}

TEST(ApplicationFile, IsReadWithPlainLineEndsToo) {
    std::string file = applicationFile(filledApplication());
    std::erase(file, '\r');
    EXPECT_EQ(readApplicationFile(file).data, filledApplication().application.data);
}

TEST(ApplicationFile, OfAnotherKindIsRefusedWithTheReason) {
    const std::string begin = "The file is no data file of the application form: ";
    const std::vector<std::string> lines = linesOf(applicationFile(filledApplication()));
    const std::string whole = joined(lines);
    ASSERT_EQ(refusal(whole), "");
    const std::string otherHead = begin + "its first line is not \"NORLAPLAN-MM version 1.00\".";
    EXPECT_EQ(refusal(""), otherHead);
    EXPECT_EQ(refusal("{\\rtf1 }\r\n"), otherHead);
    EXPECT_EQ(refusal(std::string(100000, '\0')), otherHead);
    EXPECT_EQ(refusal("NORLAPLAN-MM version 1.00\r\n"), begin + "it has 1 lines in place of 66.");
    EXPECT_EQ(refusal(whole + "more\r\n"), begin + "it has 67 lines in place of 66.");
    auto changed = lines;
    changed[17] = "PROTOTYPES";
    EXPECT_EQ(refusal(joined(changed)), begin + "line 18 is none of the form's options.");
    changed = lines;
    changed[25] = "MAYBE";
    EXPECT_EQ(refusal(joined(changed)), begin + "line 26 is none of the form's options.");
    changed = lines;
    changed[34] = "5";
    EXPECT_EQ(refusal(joined(changed)), begin + "line 35 is none of the form's options.");
}

TEST(ApplicationFile, CutAnywhereIsRefused) {
    const std::string whole = applicationFile(filledApplication());
    for (std::size_t length = 0; length < whole.size(); ++length)
        ASSERT_NE(refusal(whole.substr(0, length)), "") << length;
}

TEST(ApplicationFile, TakenIntoTheFormLeavesTheRestOfTheUserInformation) {
    ProgramState state;
    state.user.userMailSuffix = "mine";
    state.application.unsaved = true;
    takeApplication(state, readApplicationFile(applicationFile(filledApplication())));
    EXPECT_EQ(state.user.userName, "Text1");
    EXPECT_EQ(state.user.userMailSuffix, "mine");
    EXPECT_EQ(state.application.data, filledApplication().application.data);
    EXPECT_FALSE(state.application.unsaved);
    // Every tab is complete but the loads, whose flag 22 nothing sets.
    for (int tab = 1; tab <= kApplicationTabs; ++tab)
        EXPECT_EQ(statusLight(state.application, tab), tab == 2 ? Light::Yellow : Light::Green) << tab;
}

TEST(ApplicationFile, StandsBesideTheDocumentWithADoubledPoint) {
    EXPECT_EQ(applicationFilePath("/save/Application Form.rtf"), "/save/Application Form..KDN");
    EXPECT_EQ(applicationFilePath("/save/form.html"), "/save/form.h.KDN");
    EXPECT_EQ(applicationFilePath("/save/f\xc3\xb6rm\xc3\xa4\xc3\xb6\xc3\xbc"), "/save/f\xc3\xb6rm.KDN");
    EXPECT_EQ(applicationFilePath("ab"), ".KDN");
}

}  // namespace
}  // namespace norlaplan
