#pragma once

#include <algorithm>
#include <utility>
#include <vector>

#include "search/StopLatch.h"
#include "state/Ports.h"

namespace norlaplan {

/// The messages of one search: each is passed on once and the answer to each question is remembered, since
/// many rows raise the same one. Where the remembered answer lets a row go on and on, the watch may still
/// stop the search.
class SearchMessages : public MessagePort {
  public:
    SearchMessages(MessagePort& messages, StopLatch& watch) : messages_(messages), watch_(watch) {}

    void show(const Message& message) override {
        if (std::find(shown_.begin(), shown_.end(), message) != shown_.end()) return;
        shown_.push_back(message);
        messages_.show(message);
    }

    Answer ask(const Message& question, Buttons buttons) override {
        for (const auto& [asked, answer] : answers_) {
            if (asked == question) return counted(watch_.goOn() ? answer : Answer::No);
        }
        answers_.emplace_back(question, messages_.ask(question, buttons));
        return counted(answers_.back().second);
    }

    bool stillWanted() override { return watch_.goOn(); }

    /// How often the answer was No.
    int refusals() const { return refusals_; }

  private:
    Answer counted(Answer answer) {
        if (answer == Answer::No) ++refusals_;
        return answer;
    }

    MessagePort& messages_;
    StopLatch& watch_;
    std::vector<Message> shown_;
    std::vector<std::pair<Message, Answer>> answers_;
    int refusals_ = 0;
};

}  // namespace norlaplan
