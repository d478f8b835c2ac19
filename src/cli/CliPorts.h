#pragma once

#include <string>
#include <utility>
#include <vector>

#include "state/Ports.h"

namespace norlaplan::cli {

/// Keeps the program's messages for the end of the command and answers No to every question.
class CollectedMessages : public MessagePort {
  public:
    void show(const Message& message) override { messages_.push_back(message); }
    Answer ask(const Message&, Buttons) override { return Answer::No; }

    const std::vector<Message>& messages() const { return messages_; }
    void set(std::vector<Message> messages) { messages_ = std::move(messages); }
    /// Takes the last message out: the one that ended the action.
    Message takeLast();

  private:
    std::vector<Message> messages_;
};

/// Date and time of this machine, in the user's locale.
class SystemClock : public ClockPort {
  public:
    std::string date() override;
    std::string time() override;
    std::string longDate() override;
};

}  // namespace norlaplan::cli
