#pragma once

#include <cstdint>
#include <string>

#include "framework/files/folder_item.h"

namespace framework {

/// An open text file that is read by lines. A line ends with LF, CR LF or CR; a UTF-8 byte-order
/// mark at the start of the file is dropped; other bytes come as they stand. It writes nothing.
class TextInputStream final : public Object {
 public:
  static constexpr int kNoFile = -1;

  /// Raises NilObjectException for a nil item, and IOException with the item's LastErrorCode as
  /// ErrorNumber for one that cannot be opened.
  static Ref<TextInputStream> Open(const Ref<FolderItem>& item);

  /// Takes over an open file of the system, or kNoFile. An error other than 0 is the next
  /// ReadLine's to tell.
  explicit TextInputStream(int file, int error = 0) : file_(file), pending_error_(error) {}
  ~TextInputStream() override { Close(); }

  /// The next line, without its line end; empty past the end of the file. Raises IOException with
  /// LastErrorCode as ErrorNumber if reading failed and UseIOExceptions is on. A line of more than
  /// 1 MiB is a failure too, after which the file is not read any further.
  String ReadLine();
  /// True as soon as the last line has been read, also when the file ends in a line end. It raises
  /// no IOException: a failure that it runs into is the next ReadLine's.
  bool EOF_();
  /// Closes the file; the rest of it is not read. Closing twice is no error.
  void Close();

  bool UseIOExceptions() const { return use_io_exceptions_; }
  void UseIOExceptions(bool value) { use_io_exceptions_ = value; }
  /// The system's error number of the last ReadLine; 0 when it went well.
  std::int64_t LastErrorCode() const { return last_error_code_; }

 private:
  /// True when a byte stands ready at position_. False at the end of the file and after a failure.
  bool Ready();
  void Fill();
  void CheckForError() const;

  int file_;
  std::string block_;         ///< what was read last
  std::size_t position_ = 0;  ///< in block_
  bool started_ = false;
  int pending_error_ = 0;  ///< of the system, met but not yet told to a caller of ReadLine
  std::int64_t last_error_code_ = 0;
  bool use_io_exceptions_ = false;
};

}  // namespace framework
