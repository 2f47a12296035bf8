// The order of names in lists: by the alphabet, the same on every machine.
#pragma once

#include <string>
#include <string_view>

namespace kickwell {

/// What decides the order: the letters in lower case, those of Latin and Greek without their accents, and
/// then the same with them. Letter case is known of Latin, Greek, Cyrillic and Armenian.
std::u32string OrderKey(std::string_view name);

/// Whether `a` comes before `b`: by OrderKey, then by exact text.
bool ListedBefore(std::string_view a, std::string_view b);

}  // namespace kickwell
