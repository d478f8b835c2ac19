#pragma once

#include <exception>
#include <optional>
#include <string>
#include <utility>

#include "cli/Json.h"
#include "state/Ports.h"

namespace norlaplan::cli {

/// What ends a command. The kind decides the exit status.
enum class ErrorKind { Message, Usage, Runtime };

/// An error as it is told: `TITLE: PROMPT`, or an object of the same texts.
class CommandError : public std::exception {
  public:
    CommandError(ErrorKind kind, std::string title, std::string prompt,
                 std::optional<int> number = std::nullopt)
        : kind_(kind), title_(std::move(title)), prompt_(std::move(prompt)), number_(number) {}

    const char* what() const noexcept override { return prompt_.c_str(); }

    /// 1 for a message of the program, 2 for wrong usage, 3 for a run-time error.
    int exitStatus() const;
    std::string text() const { return title_ + ": " + prompt_; }
    Json json() const;

    ErrorKind kind() const { return kind_; }
    const std::string& title() const { return title_; }
    const std::string& prompt() const { return prompt_; }
    std::optional<int> number() const { return number_; }

  private:
    ErrorKind kind_;
    std::string title_, prompt_;
    std::optional<int> number_;
};

/// The exception in hand as the command line tells it: run-time errors, calculations that a guard has ended,
/// and whatever else. For the handlers of `catch (...)`.
CommandError currentError();

/// Ends the command with the message, where there is one.
void refuse(const std::optional<Message>& refusal);

}  // namespace norlaplan::cli
