// Where the program keeps its files.
#pragma once

#include <filesystem>
#include <utility>

#include "data/file_system.h"

namespace kickwell {

/// The folder that holds the program and everything it keeps. Nothing in it need exist. `files` must outlive
/// it.
class ProgramFolder {
 public:
  ProgramFolder(std::filesystem::path root, FileSystem& files) : Root(std::move(root)), files_(&files) {}

  FileSystem& Files() const { return *files_; }

  std::filesystem::path Teams() const { return Root / "Teams"; }        ///< One file per team.
  std::filesystem::path Leagues() const { return Root / "Leagues"; }    ///< A league's files share its name.
  std::filesystem::path Tournies() const { return Root / "Tournies"; }  ///< Knock-outs likewise.
  std::filesystem::path Sounds() const { return Root / "Sounds"; }      ///< Three wave files.
  std::filesystem::path Stadiums() const { return Root / "stadiums.sim"; }  ///< The stadium list.
  std::filesystem::path Settings() const { return Root / "settings.cfg"; }  ///< Only ever deleted.

  std::filesystem::path Root;

 private:
  FileSystem* files_;
};

}  // namespace kickwell
