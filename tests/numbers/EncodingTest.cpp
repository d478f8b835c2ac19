#include <string>
#include <string_view>
#include <utility>

#include <gtest/gtest.h>

#include "numbers/Encoding.h"

namespace norlaplan {
namespace {

TEST(Utf8Text, KeepsWhatIsUtf8AndOfAFileNotTheMarkAtItsHead) {
    for (const char* const text : {"", "plain", "M\xC3\xBCller", "\xE2\x82\xAC", "\xF0\x9F\x98\x80",
                                   "\xED\x9F\xBF", "\xEE\x80\x80", "\xF4\x8F\xBF\xBF"}) {
        EXPECT_EQ(utf8Text(text), text);
        EXPECT_EQ(fileText(std::string("\xEF\xBB\xBF") + text), text);
        EXPECT_EQ(fileText(std::string("\xEF\xBB\xBF\xEF\xBB\xBF") + text), text) << "as if saved twice";
        EXPECT_EQ(fileText(text), text);
        EXPECT_EQ(utf8Text(std::string(text) + "\xEF\xBB\xBF"), std::string(text) + "\xEF\xBB\xBF");
    }
    EXPECT_EQ(utf8Text(std::string("a\0b", 3)), std::string("a\0b", 3));
}

TEST(Utf8Text, ReadsOtherBytesAsLettersOfWindows1252) {
    const std::pair<const char*, const char*> rows[] = {
        {"M\xFCller", "M\xC3\xBCller"},                    // u umlaut of Latin-1
        {"\xA0\xFF", "\xC2\xA0\xC3\xBF"},                  // its first and last letter
        {"\x80 5", "\xE2\x82\xAC 5"},                      // the euro of Windows
        {"\x9F", "\xC5\xB8"},                              // Y diaeresis
        {"\x81", "\xC2\x81"},                              // free in Windows-1252
        {"\xC3", "\xC3\x83"},                              // a lead with nothing behind it
        {"\xE2\x82", "\xC3\xA2\xE2\x80\x9A"},              // a euro of UTF-8 that is cut short
        {"\xC0\xAF", "\xC3\x80\xC2\xAF"},                  // a slash, longer than needed
        {"\xED\xA0\x80", "\xC3\xAD\xC2\xA0\xE2\x82\xAC"},  // half of a pair
        {"\xF5\x80\x80\x80", "\xC3\xB5\xE2\x82\xAC\xE2\x82\xAC\xE2\x82\xAC"},  // beyond the last character
        {"\xC3\xBC \xFC", "\xC3\xBC \xC3\xBC"}};                               // both in one text
    for (const auto& [bytes, text] : rows)
        EXPECT_EQ(utf8Text(bytes), text);
}

TEST(Utf8Text, KeepsTheFirstAndTheLastOfEachLengthAndNothingBeyondThem) {
    // The table of RFC 3629, section 4.
    for (const char* const character :
         {"\x7F", "\xC2\x80", "\xDF\xBF", "\xE0\xA0\x80", "\xE0\xBF\xBF", "\xE1\x80\x80", "\xEC\xBF\xBF",
          "\xED\x80\x80", "\xED\x9F\xBF", "\xEE\x80\x80", "\xEF\xBF\xBF", "\xF0\x90\x80\x80",
          "\xF0\xBF\xBF\xBF", "\xF1\x80\x80\x80", "\xF3\xBF\xBF\xBF", "\xF4\x80\x80\x80", "\xF4\x8F\xBF\xBF"})
        EXPECT_EQ(utf8Text(character), character);
    for (const char* const bytes :
         {"\x80", "\xBF", "\xC1\xBF", "\xC2\x7F", "\xDF\xC0", "\xE0\x9F\xBF", "\xE0\xC0\x80", "\xE1\x80\xC0",
          "\xED\xA0\x80", "\xEF\xBF\x7F", "\xF0\x8F\xBF\xBF", "\xF0\x90\x80\x7F", "\xF4\x90\x80\x80",
          "\xF5\x80\x80\x80"})
        EXPECT_NE(utf8Text(bytes), bytes) << "these bytes are no character";
    EXPECT_EQ(utf8Text(std::string_view("\xC3\xBC").substr(0, 1)), "\xC3\x83")
        << "whatever stands behind the text";
}

}  // namespace
}  // namespace norlaplan
