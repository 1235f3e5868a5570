#include "framework/text_input_stream.h"

#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <string>
#include <string_view>

#include "framework/failures.h"

namespace framework {

namespace {

constexpr std::size_t kBlock = 65536;
constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

/// read() that goes on when a signal came between.
ssize_t ReadSome(int file, char* to, std::size_t size) {
  ssize_t count = 0;
  do {
    count = read(file, to, size);
  } while (count < 0 && errno == EINTR);
  return count;
}

}  // namespace

Ref<TextInputStream> TextInputStream::Open(const Ref<FolderItem>& item) {
  if (!item) RuntimeRaiseException(NilObjectException());
  Ref<TextInputStream> stream = FolderItemOpenTextFile(*item);
  if (!stream) {
    IOException failure;
    failure.ErrorNumber(item->LastErrorCode());
    RuntimeRaiseException(failure);
  }
  stream->UseIOExceptions(true);
  return stream;
}

String TextInputStream::ReadLine() {
  std::string line;
  bool ended = false;
  while (!ended && Ready()) {
    const auto begin = buffer_.begin() + static_cast<std::ptrdiff_t>(position_);
    const auto end =
        std::find_if(begin, buffer_.end(), [](char c) { return c == '\n' || c == '\r'; });
    line.append(begin, end);
    position_ += static_cast<std::size_t>(end - begin);
    if (end == buffer_.end()) continue;
    ended = true;
    const bool carriage_return = *end == '\r';
    ++position_;
    if (carriage_return && Ready() && buffer_[position_] == '\n') ++position_;
  }
  // A line that came whole is given out; a failure met behind it waits for the next call.
  last_error_code_ = ended ? 0 : std::exchange(pending_error_, 0);
  CheckForError();
  return line;
}

bool TextInputStream::EOF_() { return !Ready() && pending_error_ == 0; }

void TextInputStream::Close() {
  if (file_ >= 0) close(file_);
  file_ = -1;
  position_ = buffer_.size();
}

bool TextInputStream::Ready() {
  if (position_ == buffer_.size() && pending_error_ == 0 && file_ >= 0) Fill();
  return position_ < buffer_.size();
}

void TextInputStream::Fill() {
  buffer_.resize(kBlock);
  position_ = 0;
  const ssize_t count = ReadSome(file_, buffer_.data(), buffer_.size());
  if (count < 0) pending_error_ = errno;
  buffer_.resize(count < 0 ? 0 : static_cast<std::size_t>(count));
  if (!std::exchange(started_, true)) SkipByteOrderMark();
}

void TextInputStream::SkipByteOrderMark() {
  // The file's first bytes may come in pieces, from a file system over a network say.
  while (!buffer_.empty() && buffer_.size() < kByteOrderMark.size()) {
    char next = 0;
    if (ReadSome(file_, &next, 1) != 1) break;
    buffer_.push_back(next);
  }
  if (std::string_view(buffer_.data(), buffer_.size()).starts_with(kByteOrderMark)) {
    position_ = kByteOrderMark.size();
    if (position_ == buffer_.size()) Fill();
  }
}

void TextInputStream::CheckForError() const {
  if (!use_io_exceptions_ || last_error_code_ == 0) return;
  IOException failure;
  failure.ErrorNumber(last_error_code_);
  RuntimeRaiseException(failure);
}

}  // namespace framework
