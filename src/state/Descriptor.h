#pragma once

#include <utility>

#include <unistd.h>

namespace norlaplan {

/// A file descriptor that closes itself.
class Descriptor {
  public:
    explicit Descriptor(int number = -1) : number_(number) {}
    ~Descriptor() { close(); }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    Descriptor& operator=(Descriptor&& other) noexcept {
        close();
        number_ = std::exchange(other.number_, -1);
        return *this;
    }

    int number() const { return number_; }
    void close() {
        if (number_ >= 0) ::close(number_);
        number_ = -1;
    }

  private:
    int number_;
};

}  // namespace norlaplan
