#pragma once

namespace norlaplan::cli {

/// Ctrl+C or a request to end, met where nothing was half done.
class Interrupted {
  public:
    explicit Interrupted(int signal) : signal_(signal) {}
    /// Ends the program as the signal would have, so that a shell knows.
    [[noreturn]] void endProgram() const;

  private:
    int signal_;
};

/// While it lives, Ctrl+C and requests to end don't end the program at once, so that an unfinished file can
/// be taken away.
class Interrupts {
  public:
    Interrupts();
    ~Interrupts();
    Interrupts(const Interrupts&) = delete;
    Interrupts& operator=(const Interrupts&) = delete;

    static bool requested();
    /// Error: `Interrupted` once there was such a request.
    static void check();
};

}  // namespace norlaplan::cli
