#include "framework/files/text_input_stream.h"
#include "framework/values/failures.h"
#include "scripted_file.h"

// The line reader, on a file that comes in pieces, with interruptions and a failure at its end.

using namespace framework;
using namespace fuzz;

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size < 2) return 0;
  constexpr int kNoFile = 1'000'000;
  const ScriptedFile file(Text(data, size));
  const auto stream = RuntimeNewObject<TextInputStream>(kNoFile);
  stream->UseIOExceptions(true);
  for (const std::string& line : PlainLines(file.Bytes(), file.Fails())) {
    Expect("end before a line", stream->EOF_(), false);
    Expect<std::string>("line", std::string(stream->ReadLine()), line);
    Expect<std::int64_t>("error behind a line", stream->LastErrorCode(), 0);
  }
  for (int again = 0; again < 2; ++again) {
    Expect("end behind the last line", stream->EOF_(), !file.Fails());
    bool failed = false;
    try {
      Expect<std::string>("line behind the end", std::string(stream->ReadLine()), "");
    } catch (const IOException& failure) {
      failed = true;
      Expect<std::int64_t>("error number", failure.ErrorNumber(), ScriptedFile::kError);
    }
    Expect("failure at the end", failed, file.Fails());
  }
  return 0;
}
