// The layers of src/: each file includes its own folder's headers and those of lower layers, Qt is met in ui/
// alone, and only one file calls the operating system.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <map>
#include <regex>
#include <string>

namespace {

namespace fs = std::filesystem;

TEST(Layers, IncludesPointDownOnly) {
  const std::map<std::string, int> layers = {{"base", 0},         {"data", 1},    {"engine", 2}, {"setup", 3},
                                             {"championship", 3}, {"editors", 3}, {"ui", 4}};
  const std::regex own(R"(#include "([a-z]+)/[a-z_]+\.h")"),
      system("#include <([Qq]|unistd|fcntl|sys/|csignal|dirent).*");
  int files = 0, includes = 0;
  for (const auto& entry : fs::recursive_directory_iterator(KICKWELL_SOURCES)) {
    if (entry.path().extension() != ".h" && entry.path().extension() != ".cpp") continue;
    ++files;
    const std::string file = fs::relative(entry.path(), KICKWELL_SOURCES).string();
    const std::string folder = fs::path(file).begin()->string();
    ASSERT_TRUE(layers.contains(folder)) << file;
    std::ifstream stream(entry.path());
    std::smatch match;
    for (std::string line; std::getline(stream, line);) {
      if (std::regex_match(line, match, own)) {
        ++includes;
        const std::string other = match[1];
        ASSERT_TRUE(layers.contains(other)) << file << ": " << line;
        EXPECT_TRUE(other == folder || layers.at(other) < layers.at(folder)) << file << ": " << line;
      } else if (line.starts_with("#include \"")) {
        ADD_FAILURE() << file << ": " << line;  // A header is named by its folder.
      } else if (std::regex_match(line, match, system)) {
        const bool qt = match[1] == "Q" || match[1] == "q";
        EXPECT_TRUE(qt ? folder == "ui" : file == "data/text_file.cpp") << file << ": " << line;
      }
    }
  }
  EXPECT_GT(files, 90);
  EXPECT_GT(includes, 200);
}

}  // namespace
