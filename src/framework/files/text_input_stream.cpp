#include "framework/files/text_input_stream.h"

#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <span>
#include <string>
#include <string_view>

#include "framework/values/failures.h"

namespace framework {

namespace {

constexpr std::size_t kBlock = 65536;
constexpr std::size_t kLongestLine = std::size_t{1024} * 1024;
constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

/// read() that goes on when a signal came between.
ssize_t ReadSome(int file, std::span<char> to) {
  while (true) {
    const ssize_t count = read(file, to.data(), to.size());
    if (count >= 0 || errno != EINTR) return count;
  }
}

bool EndsLine(char byte) { return byte == '\n' || byte == '\r'; }

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
    const std::string_view rest = std::string_view(block_).substr(position_);
    const auto end = std::find_if(rest.begin(), rest.end(), &EndsLine);
    line.append(rest.begin(), end);
    position_ += static_cast<std::size_t>(end - rest.begin());
    ended = end != rest.end();
    if (line.size() <= kLongestLine) continue;
    Close();
    pending_error_ = EMSGSIZE;
    ended = false;
  }
  if (ended && block_[position_++] == '\r' && Ready() && block_[position_] == '\n') ++position_;
  // A line that came whole is given out; a failure met behind it waits for the next call.
  last_error_code_ = ended ? 0 : std::exchange(pending_error_, 0);
  CheckForError();
  return line;
}

bool TextInputStream::EOF_() { return !Ready() && pending_error_ == 0; }

void TextInputStream::Close() {
  if (file_ != kNoFile) close(file_);
  file_ = kNoFile;
  position_ = block_.size();
}

bool TextInputStream::Ready() {
  if (position_ == block_.size() && pending_error_ == 0 && file_ != kNoFile) Fill();
  return position_ < block_.size();
}

void TextInputStream::Fill() {
  block_.resize(kBlock);
  // The first bytes may come in pieces, over a network say. They must hold a whole byte-order mark
  // and a byte behind it, or the file would seem to end there.
  const std::size_t wanted = started_ ? 1 : kByteOrderMark.size() + 1;
  std::size_t size = 0;
  while (size < wanted) {
    const ssize_t count = ReadSome(file_, std::span(block_).subspan(size));
    if (count < 0) pending_error_ = errno;
    if (count <= 0) break;
    size += static_cast<std::size_t>(count);
  }
  block_.resize(size);
  const bool marked = !std::exchange(started_, true) && block_.starts_with(kByteOrderMark);
  position_ = marked ? kByteOrderMark.size() : 0;
}

void TextInputStream::CheckForError() const {
  if (!use_io_exceptions_ || last_error_code_ == 0) return;
  IOException failure;
  failure.ErrorNumber(last_error_code_);
  RuntimeRaiseException(failure);
}

}  // namespace framework
