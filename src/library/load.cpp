#include "library/load.h"

#include "framework/application/special_folder.h"
#include "framework/events/msg_box.h"
#include "framework/files/text_input_stream.h"
#include "framework/values/failures.h"
#include "framework/values/text.h"

namespace library {

using namespace framework;

void Load(const pitch::Scales& scales) {
  const Ref<FolderItem> file = SpecialFolder::Resources()->Child(kFileName);
  if (!file || !file->Exists()) return;

  Ref<TextInputStream> stream;
  try {
    stream = TextInputStream::Open(file);
    stream->ReadLine();
    stream->ReadLine();
    while (!stream->EOF_()) {
      const Array<String> fields = Split(stream->ReadLine(), ",");
      const auto scale = RuntimeNewObject<pitch::TScale>();
      scale->Constructor(fields);
      scales.Append(scale);
    }
  } catch (const IOException&) {
    // Closing comes first, and that is wanted: when it was Open that failed there is no stream, and
    // the NilObjectException tells of a file that cannot be opened at all.
    stream->Close();
    MsgBox("Error accessing file.");
  }
}

}  // namespace library
