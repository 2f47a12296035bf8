#include "data/journal.h"

#include <algorithm>
#include <array>
#include <sstream>

#include "data/file_names.h"
#include "data/text_file.h"

namespace kickwell {
namespace {

constexpr std::string_view FirstLine = "Kickwell journal 1", LastLine = "End";
constexpr std::string_view Deleted = "-";  ///< In the place of a temporary file's name.

struct Step {
  std::string Temporary;  ///< In the program folder; or Deleted.
  std::string File;       ///< From the program folder.
};

std::filesystem::path JournalOf(const ProgramFolder& folder) {
  return folder.Root / JournalName;
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
    if (!known || !IsChampionshipFile(folder, step.File)) return std::nullopt;
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

/// Deletes the journal for good: if it came back after a power cut, it could apply to files of a later one.
FileResult EndJournal(const ProgramFolder& folder) {
  FileResult ended = DeleteFile(folder.Files(), JournalOf(folder));
  folder.Files().FlushFolderOf(JournalOf(folder));
  return ended;
}

/// Makes the steps that no earlier attempt has made, and ends the journal. `made` counts them.
FileResult Follow(const ProgramFolder& folder, const std::vector<Step>& steps, std::size_t& made) {
  for (made = 0; made < steps.size(); ++made) {
    FileResult result = Make(folder, steps[made]);
    if (!result.Ok() && !WasMade(folder, steps[made])) return result;
  }
  for (const Step& step : steps) folder.Files().FlushFolderOf(folder.Root / step.File);
  return EndJournal(folder);
}

FileResult MayBeDeleted(const ProgramFolder& folder, const Step& step) {
  const std::filesystem::path file = folder.Root / step.File;
  const FileKind kind = folder.Files().Ask(file);
  if (kind == FileKind::Missing || kind == FileKind::File) return {};
  return {"The file " + file.string() + " can't be deleted: It is not a file."};
}

/// The first half of a change: everything but the renaming, and then the journal.
FileResult Prepare(const ProgramFolder& folder, const std::vector<Step>& steps,
                   const std::vector<ChangedFile>& changes) {
  FileSystem& files = folder.Files();
  for (std::size_t i = 0; i < steps.size(); ++i) {
    const Step& step = steps[i];
    FileResult result = changes[i].Bytes ? PrepareFile(files, folder.Root / step.Temporary, *changes[i].Bytes,
                                                       folder.Root / step.File)
                                         : MayBeDeleted(folder, step);
    if (!result.Ok()) return result;
  }
  files.FlushFolderOf(JournalOf(folder));  // The temporary files must be on the disk when the journal is.
  return ReplaceFile(files, JournalOf(folder), ToText(steps), folder.Root);
}

/// Takes back a change of which nothing has been renamed. A temporary file that stays is deleted by a later
/// start.
void TakeBack(const ProgramFolder& folder, const std::vector<Step>& steps) {
  if (!EndJournal(folder).Ok()) return;
  for (const Step& step : steps) {
    if (step.Temporary != Deleted) folder.Files().Delete(folder.Root / step.Temporary);
  }
}

/// A name for a damaged journal that no other file has.
std::filesystem::path PlaceAside(const ProgramFolder& folder) {
  std::filesystem::path aside = folder.Root / "unfinished.bad";
  for (int i = 2; FileExists(folder.Files(), aside); ++i) {
    aside = folder.Root / ("unfinished-" + std::to_string(i) + ".bad");
  }
  return aside;
}

}  // namespace

FileResult ChangeFiles(const ProgramFolder& folder, const std::vector<ChangedFile>& changes) {
  std::vector<Step> steps;
  for (const ChangedFile& change : changes) {
    if (!IsChampionshipFile(folder, change.File)) return {FileNameRefusal(change.File)};
    const int number = static_cast<int>(steps.size()) + 1;
    steps.push_back(
        {change.Bytes ? TemporaryName(folder.Files(), number) : std::string(Deleted), change.File});
  }
  if (!FileIsMissing(folder.Files(), JournalOf(folder))) {
    return {"Nothing can be saved until the changes in " + JournalOf(folder).string() + " are finished."};
  }
  std::size_t made = 0;
  FileResult result = Prepare(folder, steps, changes);
  if (result.Ok()) result = Follow(folder, steps, made);
  if (result.Ok()) return result;
  if (made == 0) {
    TakeBack(folder, steps);
  } else {
    result.Failure += " The rest will be saved when you next start the program.";
  }
  return result;
}

FileResult FinishChanges(const ProgramFolder& folder) {
  const std::filesystem::path journal = JournalOf(folder);
  const auto [text, result] = ReadBytesOf(folder.Files(), journal);
  if (!text) return result;
  std::size_t made = 0;
  if (const std::optional<std::vector<Step>> steps = FromText(folder, *text))
    return Follow(folder, *steps, made);
  const std::filesystem::path aside = PlaceAside(folder);
  FileResult moved = MoveIntoPlace(folder.Files(), journal, aside);
  if (!moved.Ok()) return moved;
  return {"The file " + journal.string() + " is damaged. It was ignored and renamed to " +
          aside.filename().string() + "."};
}

FileResult CleanUp(const ProgramFolder& folder) {
  FileResult finished = FinishChanges(folder);
  if (FileIsMissing(folder.Files(), JournalOf(folder))) DeleteLeftovers(folder.Files(), folder.Root);
  return finished;
}

}  // namespace kickwell
