// The program's identity.
#pragma once

#include <string_view>

namespace kickwell {

inline constexpr std::string_view ProgramTitle = "Kickwell";
inline constexpr int MajorVersion = 4;
inline constexpr int MinorVersion = 0;
inline constexpr std::string_view Credits = "The Kickwell developers";
inline constexpr std::string_view MakerAddress = "http://www.kickwell.example";

}  // namespace kickwell
