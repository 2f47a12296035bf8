// The program's identity and where it keeps its files.
#pragma once

#include <filesystem>
#include <string_view>

namespace kickwell {

inline constexpr std::string_view ProgramTitle = "Kickwell";
inline constexpr int MajorVersion = 4;
inline constexpr int MinorVersion = 0;
inline constexpr std::string_view Credits = "The Kickwell developers";
inline constexpr std::string_view MakerAddress = "http://www.kickwell.example";

/// The folder that holds the program and everything it keeps. Nothing in it need exist.
struct ProgramFolder {
  std::filesystem::path Root;

  std::filesystem::path Teams() const { return Root / "Teams"; }        ///< One file per team.
  std::filesystem::path Leagues() const { return Root / "Leagues"; }    ///< A league's files share its name.
  std::filesystem::path Tournies() const { return Root / "Tournies"; }  ///< Knock-outs likewise.
  std::filesystem::path Sounds() const { return Root / "Sounds"; }      ///< Three wave files.
  std::filesystem::path Stadiums() const { return Root / "stadiums.sim"; }  ///< The stadium list.
  std::filesystem::path Settings() const { return Root / "settings.cfg"; }  ///< Only ever deleted.
};

}  // namespace kickwell
