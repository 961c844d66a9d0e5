#include "codegen/resources.h"

#include <string>

namespace tarnwick {

namespace {

/// The path of a file in the generated text. The test of the drive is exact here, so that a drive
/// letter in the other case counts as relative to the project.
std::string PathOf(const Generation& gen, std::string_view file) {
  return ResolveProjectPath(gen.Tables, file, false);
}

void WriteIcon(Generation& gen) {
  if (gen.Record().ImageFile != kDefaultFile) {
    gen.Out.Line("$Resource Form", gen.State.i, "_Icon As ",
                 Quoted{PathOf(gen, gen.Record().ImageFile)});
  } else if (!gen.State.DefaultIconDone) {
    gen.Out.Line("$Resource Default_Icon As \"", gen.Tables.ProgramFolder, "\\IconApp.ico\"");
    gen.State.DefaultIconDone = true;
  }
}

/// The pictures of one kind. The walk goes over the records: the object a record belongs to may
/// be at another index of its array by now.
void WritePictures(Generation& gen, Kind kind, ImageIndex& images) {
  const RecordArray<ObjectRec>& records = *gen.Record().Objects(kind);
  const int highest = gen.User().UBound(kind);
  for (int j = 1; j <= highest; ++j) {
    const std::string& file = RecordOrEmpty(records, j).ImageFile;
    if (!HasPicturePath(file) || images.FindEarlierImage(file, j) != 0) continue;
    gen.Out.Line("$Resource Frm", gen.NumeroText(), InfoOf(kind).PictureWord, j, "_Bmp As ",
                 Quoted{PathOf(gen, file)});
  }
}

}  // namespace

void WriteResources(Generation& gen) {
  WriteIcon(gen);
  WritePictures(gen, Kind::Button, gen.ButtonImages());
  WritePictures(gen, Kind::Image, gen.PictureImages());
}

}  // namespace tarnwick
