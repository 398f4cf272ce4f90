#include "batch/row_steps.h"

#include "batch/file_routines.h"
#include "engine/operation_steps.h"
#include "engine/process_file_name.h"
#include "metadata/tag_text.h"
#include "metadata/tag_writing.h"

namespace vorlane {

namespace {

// Stands around the bars of a tag step while it is evaluated, so that a bar in a value doesn't
// break the fields apart.
constexpr TextView FieldSeparator = u"\x01|\x01";

const Text& Field(const std::vector<Text>& fields, std::size_t index) {
  if (index >= fields.size()) {
    throw RunError(ErrorNumber::SubscriptOutOfRange);
  }
  return fields[index];
}

Text BehindFirstBracket(const Text& field) {
  return field.substr(field.find(u'>') + 1);
}

Text BeforeFirstBracket(const Text& field) {
  const auto bracket = field.find(u'<');
  if (bracket == Text::npos) {
    throw RunError(ErrorNumber::InvalidArgument);
  }
  return field.substr(0, bracket);
}

// What both kinds of tag step have in the same places.
void TakeFields(ID3Tag& tag, const std::vector<Text>& fields) {
  tag.Present = true;
  tag.Artist = BehindFirstBracket(Field(fields, 0));
  tag.Title = Field(fields, 1);
  tag.Album = Field(fields, 2);
  tag.Comment = Field(fields, 3);
}

}  // namespace

StepResults RowSteps::Run(std::int32_t row, const ID3Tag& tagV1, const ID3Tag& tagV2) {
  const Text& name = form_.Rows.At(row).Name;
  const RowInHand in{row, form_.Rows.PathOf(row), name, HasMp3Extension(name), tagV1, tagV2};
  const Text code = form_.SelectedCode();
  StepResults results;
  std::size_t position = 0;
  while (const auto step = NextStep(code, position)) {
    RunStep(in, Text(*step), results);
  }
  return results;
}

void RowSteps::RunStep(const RowInHand& in, const Text& step, StepResults& results) {
  const bool isTagStep =
      in.IsMp3 && (Contains(step, u"<RemoveID3v1>") || Contains(step, u"<WriteID3v1>") ||
                   Contains(step, u"<WriteID3v2>"));
  if (isTagStep) {
    const bool done = Contains(step, u"<RemoveID3v1>")  ? RemoveTag(in)
                      : Contains(step, u"<WriteID3v1>") ? WriteTagV1(in, step)
                                                        : WriteTagV2(in, step);
    (done ? results.StepTagPresent : results.TagRefused) = true;
    results.Changed = results.Changed || done;
  } else if (Contains(step, u"<CREATEFOLDER>")) {
    MakeFolder(in, step, results);
  } else if (Contains(step, u"<MOVE>")) {
    Move(in, step, results);
  }
}

bool RowSteps::RemoveTag(const RowInHand& in) {
  if (!OpenTagLine(in, in.TagV1, 1)) {
    return false;
  }
  RemoveID3v1(services_.Files, services_.Report, in.Path + in.Name);
  form_.SetTagPresence(in.Row, Column::ID3v1, false);
  return true;
}

bool RowSteps::WriteTagV1(const RowInHand& in, const Text& step) {
  ID3Tag tag = in.TagV1;
  ID3Tag tagV2 = in.TagV2;
  const auto fields = TagFields(in, step, tag, tagV2);
  TakeFields(tag, fields);
  tag.Track = BeforeFirstBracket(Field(fields, 4));
  if (!OpenTagLine(in, in.TagV1, 1)) {
    return false;
  }
  WriteID3v1(services_.Files, services_.Report, in.Path + in.Name, tag);
  form_.SetArtistAndTitle(in.Row, tag);
  form_.SetTagPresence(in.Row, Column::ID3v1, true);
  return true;
}

bool RowSteps::WriteTagV2(const RowInHand& in, const Text& step) {
  ID3Tag tagV1 = in.TagV1;
  ID3Tag tag = in.TagV2;
  const auto fields = TagFields(in, step, tagV1, tag);
  TakeFields(tag, fields);
  tag.Track = Field(fields, 4);
  const bool removeV1 = Field(fields, 5).starts_with(u"1");
  if (!OpenTagLine(in, in.TagV2, 2)) {
    return false;
  }
  WriteID3v2({services_.Files, services_.Report, services_.Prompts, form_}, in.Path + in.Name, tag,
             removeV1);
  form_.SetArtistAndTitle(in.Row, tag);
  form_.SetTagPresence(in.Row, Column::ID3v2, true);
  if (removeV1) {
    form_.SetTagPresence(in.Row, Column::ID3v1, false);
  }
  return true;
}

void RowSteps::MakeFolder(const RowInHand& in, const Text& step, StepResults& results) {
  Text path = FolderOf(in, step);
  if (path.empty()) {
    return;
  }
  const std::int16_t created = CreatePath(services_.Files, path, form_.Paths);
  if (created >= 1) {
    journal_.UpdateUndoFile({.Kind = RecordKind::CreateFolder, .Folder = path, .Levels = created});
    results.Changed = true;
  }
}

void RowSteps::Move(const RowInHand& in, const Text& step, StepResults& results) {
  const Text destination = FolderOf(in, step);
  if (destination == in.Path) {
    return;  // it is there already
  }
  if (destination.empty() || !MoveFile(services_.Files, in.Path, in.Name, destination, in.Name)) {
    results.MoveRefused = true;
    return;
  }
  journal_.UpdateUndoFile({.Kind = RecordKind::Move,
                           .Folder = in.Path,
                           .OldName = in.Name,
                           .NewName = in.Name,
                           .Destination = destination});
  results.Changed = true;
  results.MovedTo = destination;
}

// The folder that a step stands for; empty if what it gives isn't rooted, which would mean some
// folder below the one that the process happens to work in.
Text RowSteps::FolderOf(const RowInHand& in, const Text& step) {
  if (!form_.DoAll) {
    form_.ReadBoxValues();  // so that the selected row's values count
  }
  ID3Tag copy = in.TagV2;
  const Text folder = Evaluate(in, step, in.TagV1, copy, false);
  // Pieces such as ".." are resolved first: undo counts levels by the text.
  return IsRooted(folder, form_.Paths) ? WithoutDotPieces(folder, form_.Paths) : Text();
}

// The evaluated fields of a tag step. The copies of the row's records are what the engine may
// change: without an ID3v2 tag it reads ID3v1's values, year and genre among them.
std::vector<Text> RowSteps::TagFields(const RowInHand& in, const Text& step, ID3Tag& copyV1,
                                      ID3Tag& copyV2) {
  form_.ReadBoxValues();
  Text guarded = step;
  ReplaceAll(guarded, u"|", FieldSeparator);
  return Split(Evaluate(in, guarded, copyV1, copyV2, true), FieldSeparator);
}

Text RowSteps::Evaluate(const RowInHand& in, const Text& step, const ID3Tag& tagV1, ID3Tag& tagV2,
                        bool tagStep) {
  EvaluationContext context{facts_, services_.Loop, form_.Paths};
  return ProcessFileName({.Code = step,
                          .FileName = in.Name,
                          .Path = in.Path,
                          .TagV1 = tagV1,
                          .TagV2 = tagV2,
                          .AutoNumber = in.Row,
                          .AllowTagSteps = tagStep,
                          .AllowFolderSteps = !tagStep,
                          .Boxes = form_.ShownBoxValues(),
                          .RowCount = form_.Rows.Count()},
                         context);
}

bool RowSteps::OpenTagLine(const RowInHand& in, const ID3Tag& asRead, int version) {
  return journal_.UpdateUndoFile({.Kind = RecordKind::OpenTag,
                                  .Folder = in.Path,
                                  .OldName = in.Name,
                                  .TagText = TagToString(asRead, version)});
}

}  // namespace vorlane
