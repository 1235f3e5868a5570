#pragma once

#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <optional>
#include <string>
#include <vector>

#include "target.h"

namespace fuzz {

/// A file as an input describes it, its bytes and how the system gives them out. The low six bits
/// of the first byte are the most that one read gives, 0 for no limit; of the second byte, bit 0
/// makes the read behind the last byte fail, and bit 1 lets a signal interrupt each read first.
/// '@' stands for nothing special in both. As long as the object lives, read() reads from it.
class ScriptedFile {
 public:
  static constexpr int kError = EIO;

  explicit ScriptedFile(std::string_view input)
      : piece_(input[0] & 0x3F),
        fails_((input[1] & 1) != 0),
        interrupts_((input[1] & 2) != 0),
        bytes_(input.substr(2)) {
    current = this;
  }
  ScriptedFile(const ScriptedFile&) = delete;
  ScriptedFile& operator=(const ScriptedFile&) = delete;
  ~ScriptedFile() { current = nullptr; }

  std::string_view Bytes() const { return bytes_; }
  bool Fails() const { return fails_; }

  ssize_t Read(char* to, std::size_t size) {
    interrupted_ = interrupts_ && !interrupted_;
    if (interrupted_) errno = EINTR;
    if (at_ == bytes_.size() && fails_ && !interrupted_) errno = kError;
    if (interrupted_ || (at_ == bytes_.size() && fails_)) return -1;
    const std::size_t count =
        bytes_.substr(at_).copy(to, piece_ == 0 ? size : std::min(size, piece_));
    at_ += count;
    return static_cast<ssize_t>(count);
  }

  static inline ScriptedFile* current = nullptr;

 private:
  std::size_t piece_;
  bool fails_;
  bool interrupts_;
  std::string_view bytes_;
  std::size_t at_ = 0;
  bool interrupted_ = false;
};

/// The lines of a file, found byte by byte. Of a file that fails, the last line counts only if its
/// end was seen.
inline std::vector<std::string> PlainLines(std::string_view bytes, bool fails) {
  if (bytes.substr(0, 3) == "\xEF\xBB\xBF") bytes.remove_prefix(3);
  std::vector<std::string> lines;
  std::string line;
  bool open = false;
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    if (bytes[i] == '\n' && i > 0 && bytes[i - 1] == '\r') continue;
    open = bytes[i] != '\n' && bytes[i] != '\r';
    if (open) {
      line += bytes[i];
    } else {
      lines.push_back(line);
      line.clear();
    }
  }
  if (open && !fails) lines.push_back(line);
  return lines;
}

}  // namespace fuzz

extern "C" {
ssize_t __real_read(int file, void* to, std::size_t size);
ssize_t __wrap_read(int file, void* to, std::size_t size);
ssize_t __wrap_read(int file, void* to, std::size_t size) {
  fuzz::ScriptedFile* const script = fuzz::ScriptedFile::current;
  return script == nullptr ? __real_read(file, to, size)
                           : script->Read(static_cast<char*>(to), size);
}
}
