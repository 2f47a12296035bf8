#include "data/journal.h"

#include <algorithm>
#include <array>
#include <sstream>
#include <utility>

#include "data/file_names.h"
#include "data/text_file.h"

namespace kickwell {
namespace {

constexpr std::string_view FirstLine = "Kickwell journal 1", LastLine = "End";
constexpr std::string_view SetAsideLine = "Kickwell set aside 1\n";
constexpr std::string_view Deleted = "-";  ///< Instead of a temporary file's name, or of a size.

struct Step {
  std::string Temporary;  ///< In the program folder; or Deleted.
  std::string File;       ///< From the program folder.
};

std::filesystem::path JournalOf(const ProgramFolder& folder) {
  return folder.Root / JournalName;
}

std::filesystem::path SetAsideOf(const ProgramFolder& folder) {
  return folder.Root / SetAsideName;
}

/// Whether `file` is "Leagues/" or "Tournies/" and the name of a championship's file in it.
bool IsChampionshipFile(const ProgramFolder& folder, std::string_view file) {
  const std::size_t slash = file.find('/');
  if (slash == std::string_view::npos) return false;
  const std::string_view place = file.substr(0, slash), name = file.substr(slash + 1);
  constexpr std::array<std::string_view, 5> Extensions = {".leg", ".trn", ".rec", ".sco", ".lrs"};
  const auto ends = [name](std::string_view extension) { return name.ends_with(extension); };
  return (place == folder.Leagues().filename() || place == folder.Tournies().filename()) &&
         StaysInFolder(name) && name.find('\n') == std::string_view::npos &&
         std::ranges::any_of(Extensions, ends);
}

bool MayChange(const ProgramFolder& folder, const Step& step) {
  return IsChampionshipFile(folder, step.File) || (step.File == SetAsideName && step.Temporary == Deleted);
}

/// The journal's text is bytes, not encoded as other files are: a name must come back exactly.
std::string ToText(const std::vector<Step>& steps) {
  std::string text = std::string(FirstLine) + "\n";
  for (const Step& step : steps) text += step.Temporary + "\n" + step.File + "\n";
  return text + std::string(LastLine) + "\n";
}

/// The steps of a journal; none when it is damaged.
std::optional<std::vector<Step>> FromText(const ProgramFolder& folder, const std::string& text) {
  std::vector<Step> steps;
  std::istringstream lines(text);
  std::string line;
  if (!std::getline(lines, line) || line != FirstLine) return std::nullopt;
  while (std::getline(lines, line) && line != LastLine) {
    Step step{line, {}};
    std::getline(lines, step.File);
    const bool known = step.Temporary == Deleted || IsTemporaryName(step.Temporary);
    if (!known || !MayChange(folder, step)) return std::nullopt;
    steps.push_back(std::move(step));
  }
  if (line != LastLine || ToText(steps) != text) return std::nullopt;
  return steps;
}

FileResult Make(const ProgramFolder& folder, const Step& step) {
  if (step.Temporary == Deleted) return DeleteFile(folder.Files(), folder.Root / step.File);
  return MoveIntoPlace(folder.Files(), folder.Root / step.Temporary, folder.Root / step.File);
}

/// Whether a step that fails was made before an interruption.
bool WasMade(const ProgramFolder& folder, const Step& step) {
  return step.Temporary != Deleted && FileIsMissing(folder.Files(), folder.Root / step.Temporary);
}

/// Deletes a journal for good: if it came back after a power cut, it could apply to files of a later one.
FileResult EndJournal(const ProgramFolder& folder, const std::filesystem::path& journal) {
  FileResult ended = DeleteFile(folder.Files(), journal);
  folder.Files().FlushFoldersOf({journal});
  return ended;
}

/// Makes the steps that no earlier attempt has made, and ends their journal. `made` counts them.
FileResult Follow(const ProgramFolder& folder, const std::filesystem::path& journal,
                  const std::vector<Step>& steps, std::size_t& made) {
  for (made = 0; made < steps.size(); ++made) {
    FileResult result = Make(folder, steps[made]);
    if (!result.Ok() && !WasMade(folder, steps[made])) return result;
  }
  std::vector<std::filesystem::path> changed;
  changed.reserve(steps.size());
  for (const Step& step : steps) changed.push_back(folder.Root / step.File);
  // What was set aside goes last, so that it is there until all else is on the disk.
  folder.Files().FlushFoldersOf(changed);
  return EndJournal(folder, journal);
}

FileResult MayBeDeleted(const ProgramFolder& folder, const Step& step) {
  const std::filesystem::path file = folder.Root / step.File;
  const FileKind kind = folder.Files().Ask(file);
  if (kind == FileKind::Missing || kind == FileKind::File) return {};
  return {"The file " + file.string() + " can't be deleted: It is not a file."};
}

/// The first half of a change: everything but the renaming, and then its journal.
FileResult Prepare(const ProgramFolder& folder, const std::filesystem::path& journal,
                   const std::vector<Step>& steps, const std::vector<ChangedFile>& changes) {
  FileSystem& files = folder.Files();
  for (std::size_t i = 0; i < steps.size(); ++i) {
    const Step& step = steps[i];
    FileResult result = changes[i].Bytes ? PrepareFile(files, folder.Root / step.Temporary, *changes[i].Bytes,
                                                       folder.Root / step.File)
                                         : MayBeDeleted(folder, step);
    if (!result.Ok()) return result;
  }
  files.FlushFoldersOf({journal});  // The temporary files must be on the disk when the journal is.
  return ReplaceFile(files, journal, ToText(steps), folder.Root);
}

/// Undoes a change of which nothing has been renamed. A temporary file that stays is deleted by a later
/// start.
void Undo(const ProgramFolder& folder, const std::filesystem::path& journal, const std::vector<Step>& steps) {
  if (!EndJournal(folder, journal).Ok()) return;
  for (const Step& step : steps) {
    if (step.Temporary != Deleted) folder.Files().Delete(folder.Root / step.Temporary);
  }
}

/// Renames a damaged journal to a name that no other file has.
FileResult PutAwayDamaged(const ProgramFolder& folder, const std::filesystem::path& journal) {
  std::filesystem::path bad = folder.Root / "unfinished.bad";
  for (int i = 2; FileExists(folder.Files(), bad); ++i)
    bad = folder.Root / ("unfinished-" + std::to_string(i) + ".bad");
  FileResult moved = MoveIntoPlace(folder.Files(), journal, bad);
  if (!moved.Ok()) return moved;
  return {"The file " + journal.string() + " is damaged. It was ignored and renamed to " +
          bad.filename().string() + "."};
}

/// A file and its content as it was set aside; the content is none if the file was missing.
std::optional<ChangedFile> FromSetAside(const ProgramFolder& folder, std::string_view text) {
  if (!text.starts_with(SetAsideLine)) return std::nullopt;
  text.remove_prefix(SetAsideLine.size());
  const auto takeLine = [&text] {
    std::string line(text.substr(0, text.find('\n')));
    text.remove_prefix(std::min(line.size() + 1, text.size()));
    return line;
  };
  ChangedFile file{takeLine(), {}};
  const std::string size = takeLine();
  if (!IsChampionshipFile(folder, file.File)) return std::nullopt;
  if (size == std::to_string(text.size())) file.Bytes = text;
  return file.Bytes || (size == Deleted && text.empty()) ? std::optional(file) : std::nullopt;
}

/// Makes the changes that a journal lists, if there is one.
FileResult FollowJournal(const ProgramFolder& folder, const std::filesystem::path& journal) {
  const auto [text, result] = ReadBytesOf(folder.Files(), journal);
  if (!text) return result;
  std::size_t made = 0;
  const std::optional<std::vector<Step>> steps = FromText(folder, *text);
  return steps ? Follow(folder, journal, *steps, made) : PutAwayDamaged(folder, journal);
}

FileResult RestoreSetAside(const ProgramFolder& folder) {
  const std::filesystem::path journal = SetAsideOf(folder);
  const auto [text, result] = ReadBytesOf(folder.Files(), journal);
  if (!text) return result;
  if (text->starts_with(FirstLine)) return FollowJournal(folder, journal);  // As earlier versions set aside.
  const std::optional<ChangedFile> former = FromSetAside(folder, *text);
  if (!former) return PutAwayDamaged(folder, journal);
  const std::filesystem::path file = folder.Root / former->File;
  FileResult restored = former->Bytes ? ReplaceFile(folder.Files(), file, *former->Bytes, folder.Root)
                                      : DeleteFile(folder.Files(), file);
  if (!restored.Ok()) return restored;
  folder.Files().FlushFoldersOf({file});
  return EndJournal(folder, journal);
}

}  // namespace

FileResult ChangeFiles(const ProgramFolder& folder, const std::vector<ChangedFile>& changes) {
  const std::filesystem::path journal = JournalOf(folder);
  std::vector<Step> steps;
  for (const ChangedFile& change : changes) {
    const int number = static_cast<int>(steps.size()) + 1;
    steps.push_back(
        {change.Bytes ? TemporaryName(folder.Files(), number) : std::string(Deleted), change.File});
    if (!MayChange(folder, steps.back())) return {FileNameRefusal(change.File)};
  }
  if (ChangesAreUnfinished(folder))
    return {"Nothing can be saved until the changes in " + journal.string() + " are finished."};
  std::size_t made = 0;
  FileResult result = Prepare(folder, journal, steps, changes);
  if (result.Ok()) result = Follow(folder, journal, steps, made);
  if (result.Ok()) return result;
  if (made == 0) Undo(folder, journal, steps);
  if (ChangesAreUnfinished(folder))
    result.Failure += " The rest will be saved when you next start the program.";
  return result;
}

FileResult FinishChanges(const ProgramFolder& folder) {
  return FollowJournal(folder, JournalOf(folder));
}

bool ChangesAreUnfinished(const ProgramFolder& folder) {
  return !FileIsMissing(folder.Files(), JournalOf(folder));
}

FileResult SetAside(const ProgramFolder& folder, const std::string& file) {
  if (!IsChampionshipFile(folder, file)) return {FileNameRefusal(file)};
  FileResult restored = Restore(folder);
  if (!restored.Ok()) return restored;
  const auto [bytes, reading] = ReadBytesOf(folder.Files(), folder.Root / file);
  if (!reading.Ok()) return reading;
  const std::string size = bytes ? std::to_string(bytes->size()) : std::string(Deleted);
  return ReplaceFile(folder.Files(), SetAsideOf(folder),
                     std::string(SetAsideLine) + file + "\n" + size + "\n" + bytes.value_or(""), folder.Root);
}

FileResult Restore(const ProgramFolder& folder) {
  FileResult finished = FinishChanges(folder);
  return finished.Ok() ? RestoreSetAside(folder) : finished;
}

FileResult CleanUp(const ProgramFolder& folder) {
  FileResult restored = Restore(folder);
  const bool nothingIsLeft =
      !ChangesAreUnfinished(folder) && FileIsMissing(folder.Files(), SetAsideOf(folder));
  if (nothingIsLeft) DeleteLeftovers(folder.Files(), folder.Root);
  return restored;
}

}  // namespace kickwell
