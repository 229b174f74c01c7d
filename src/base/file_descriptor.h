#pragma once

#include <string_view>
#include <utility>

#include <unistd.h>

namespace nocturo {

/// Owns a file descriptor; -1 is none.
class FileDescriptor {
  public:
    FileDescriptor() = default;
    explicit FileDescriptor(int descriptor) : descriptor_(descriptor) {}
    FileDescriptor(FileDescriptor&& other) noexcept
        : descriptor_(std::exchange(other.descriptor_, -1)) {}
    FileDescriptor& operator=(FileDescriptor&& other) noexcept {
        std::swap(descriptor_, other.descriptor_);
        return *this;
    }
    ~FileDescriptor() { close(); }

    int get() const { return descriptor_; }
    void close() {
        if (descriptor_ >= 0) {
            ::close(std::exchange(descriptor_, -1));
        }
    }

  private:
    int descriptor_ = -1;
};

/// Writes all of it, however often that takes; 0, or the errno of what went wrong on the way.
int writeAll(int descriptor, std::string_view bytes);

} // namespace nocturo
