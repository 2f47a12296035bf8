#include "data/file_names.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <utility>

#include "data/name_order.h"
#include "data/text_encoding.h"

namespace kickwell {
namespace {

/// CON, NUL and their like, which some systems take for devices whatever extension follows.
bool IsDeviceName(std::string_view name) {
  std::string base(name.substr(0, name.find('.')));
  while (base.ends_with(' ')) base.pop_back();
  std::ranges::transform(base, base.begin(),
                         [](unsigned char c) { return static_cast<char>(std::toupper(c)); });
  constexpr std::array Devices = {"CON", "PRN", "AUX", "NUL", "CONIN$", "CONOUT$"};
  if (std::ranges::find(Devices, base) != Devices.end()) return true;
  if (!base.starts_with("COM") && !base.starts_with("LPT")) return false;
  const std::string_view port = std::string_view(base).substr(3);
  constexpr std::array<std::string_view, 3> Superscripts = {"\u00B9", "\u00B2", "\u00B3"};
  return (port.size() == 1 && port[0] >= '0' && port[0] <= '9') ||
         std::ranges::find(Superscripts, port) != Superscripts.end();
}

}  // namespace

bool IsFileName(std::string_view name) {
  constexpr std::size_t LongestName = 255;
  if (name.empty() || name.size() > LongestName || name.ends_with('.') || name.ends_with(' ')) return false;
  const std::u32string points = ToCodePoints(name);
  const auto forbidden = [](char32_t c) {
    return c < 0x20 || (c >= 0x7F && c < 0xA0) ||
           std::u32string_view(U"/\\:*?\"<>|").find(c) != std::u32string::npos;
  };
  return std::ranges::none_of(points, forbidden) && !IsDeviceName(name);
}

std::string FileNameRefusal(std::string_view name) {
  return std::string(name) + " can't be used as a file name.";
}

bool StaysInFolder(std::string_view name) {
  return name != "." && name != ".." && name.find('\0') == std::string_view::npos &&
         std::filesystem::path(name).has_filename() && std::filesystem::path(name).filename() == name;
}

FileResult FoldersCanBeRead(const ProgramFolder& folder) {
  for (const std::filesystem::path& kept : {folder.Teams(), folder.Leagues(), folder.Tournies()}) {
    std::vector<std::string> names;
    if (const std::error_code error = folder.Files().List(kept, names))
      return {"The folder " + kept.string() + " can't be read: " + error.message() + "."};
  }
  return {};
}

std::vector<std::string> ListFiles(FileSystem& files, const std::filesystem::path& folder,
                                   std::string_view extension) {
  std::vector<std::pair<std::u32string, std::string>> found;  // With its key, made once for each.
  std::vector<std::string> listed;
  files.List(folder, listed);
  for (std::string& name : listed) {
    if (name.ends_with(extension)) found.emplace_back(OrderKey(name), std::move(name));
  }
  std::ranges::sort(found);
  std::vector<std::string> names;
  names.reserve(found.size());
  for (auto& [key, name] : found) names.push_back(std::move(name));
  return names;
}

}  // namespace kickwell
