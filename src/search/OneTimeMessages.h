#pragma once

#include <algorithm>
#include <utility>
#include <vector>

#include "state/Ports.h"

namespace norlaplan {

/// Passes each message on once and remembers the answer to each question, for a search in which many rows
/// raise the same one.
class OneTimeMessages : public MessagePort {
  public:
    explicit OneTimeMessages(MessagePort& messages) : messages_(messages) {}

    void show(const Message& message) override {
        if (std::find(shown_.begin(), shown_.end(), message) != shown_.end()) return;
        shown_.push_back(message);
        messages_.show(message);
    }

    Answer ask(const Message& question, Buttons buttons) override {
        for (const auto& [asked, answer] : answers_) {
            if (asked == question) return answer;
        }
        answers_.emplace_back(question, messages_.ask(question, buttons));
        return answers_.back().second;
    }

  private:
    MessagePort& messages_;
    std::vector<Message> shown_;
    std::vector<std::pair<Message, Answer>> answers_;
};

}  // namespace norlaplan
