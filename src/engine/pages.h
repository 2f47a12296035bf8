// Matches as HTML pages.
#pragma once

#include <filesystem>
#include <string>

#include "data/file_result.h"
#include "data/program_folder.h"
#include "data/text_encoding.h"
#include "engine/match_session.h"

namespace kickwell {

/// The page of the match summary, with venue, attendance and match facts, line by line.
Lines SummaryPage(const MatchSession& session);

/// The page of the match commentary, line by line.
Lines CommentaryPage(const MatchSession& session);

/// The page of a championship's results, headed `heading`, line by line.
Lines ResultsPage(const std::string& heading, const ItemList& results);

/// The file that the user meant by `name`: ".htm" is added unless the name ends in it or in ".html".
std::filesystem::path PageFile(const std::string& name);

/// Writes the page, over an existing file without a question, but not over the guide or into its folder.
FileResult WritePage(const ProgramFolder& folder, const std::filesystem::path& file, const Lines& page);

}  // namespace kickwell
