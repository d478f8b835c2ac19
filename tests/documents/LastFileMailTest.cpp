#include <gtest/gtest.h>

#include "documents/LastFileMail.h"
#include "support/RecordingPorts.h"

namespace norlaplan {
namespace {

using testing::RecordingMail;
using testing::RecordingMessages;
using Steps = std::vector<std::string>;

const Message kNoMailProgram{"Unable to transfer file to MS Outlook", "Error linking to MS Outlook"};

struct Mailing {
    Mailing() {
        state.lastSavedFile = "C:\\NORLAPLAN\\save\\K19013XP0-load.rtf";
        state.user.userMailSuffix = "from Ann";
    }
    void send() { mailLastFile(state, mail, messages); }

    ProgramState state;
    RecordingMail mail;
    RecordingMessages messages;
};

TEST(LastFileMail, AsksTheMailProgramForSixStepsInTheirOrder) {
    Mailing mailing;
    mailing.send();
    EXPECT_EQ(mailing.mail.steps, (Steps{"application", "item 0", "save",
                                         "attach C:\\NORLAPLAN\\save\\K19013XP0-load.rtf 1 2 \"\"",
                                         "subject K19013XP0-load.rtf from Ann", "display"}));
    EXPECT_TRUE(mailing.messages.shown.empty());
}

TEST(LastFileMail, SentTwiceMakesTwoMails) {
    Mailing mailing;
    mailing.send();
    mailing.send();
    EXPECT_EQ(mailing.mail.steps.size(), 12U);
}

TEST(LastFileMail, WithoutASavedFileAsksForOneAndDoesNothingElse) {
    Mailing mailing;
    mailing.state.lastSavedFile.clear();
    mailing.send();
    EXPECT_TRUE(mailing.mail.steps.empty());
    EXPECT_EQ(
        mailing.messages.shown,
        (std::vector<Message>{{"No File Available to Send", "Please Save File First", Icon::Critical}}));
}

TEST(LastFileMail, WithoutAMailProgramSaysSoAndAsksForNothingMore) {
    Mailing mailing;
    mailing.mail.faults["application"] = 429;
    mailing.send();
    EXPECT_EQ(mailing.mail.steps, (Steps{"application"}));
    EXPECT_EQ(mailing.messages.shown, (std::vector<Message>{kNoMailProgram}));
}

TEST(LastFileMail, GoesOnAfterAFailedStepAndTellsTheFaultAtTheEnd) {
    Mailing mailing;
    mailing.mail.faults["save"] = 70;
    mailing.send();
    EXPECT_EQ(mailing.mail.steps.size(), 6U);
    EXPECT_EQ(mailing.messages.shown, (std::vector<Message>{{"Permission denied", "70"}}));
}

TEST(LastFileMail, TellsEachFaultOnce) {
    Mailing mailing;
    mailing.mail.faults = {{"save", 440}, {"attach", 53}, {"subject", 440}, {"display", 429}};
    mailing.send();
    EXPECT_EQ(mailing.mail.steps.size(), 6U);
    EXPECT_EQ(mailing.messages.shown,
              (std::vector<Message>{{"Automation error", "440"}, {"File not found", "53"}, kNoMailProgram}));
}

TEST(LastFileMail, NamesTheFileWithoutItsFoldersInTheSubject) {
    const struct {
        const char* path;
        const char* suffix;
        const char* subject;
    } rows[] = {{"C:\\save\\a.rtf", "Ann", "a.rtf Ann"},
                {"/home/ann/save/a.rtf", "Ann", "a.rtf Ann"},
                {"/home/ann/$(touch x);'a b'.rtf", "", "$(touch x);'a b'.rtf "},
                {"/home/ann/\xc3\xa4.rtf", " ", "\xc3\xa4.rtf  "},
                // A path without folders gives no name.
                {"a.rtf", "Ann", " Ann"}};
    for (const auto& row : rows) {
        ProgramState state;
        state.lastSavedFile = row.path;
        state.user.userMailSuffix = row.suffix;
        EXPECT_EQ(mailSubject(state), row.subject) << row.path;
    }
}

}  // namespace
}  // namespace norlaplan
