#include "data/name_order.h"

#include <utility>

#include "data/text_encoding.h"

namespace kickwell {
namespace {

/// The plain letters of Latin ones from a code point on, in lower case: a capital stands for two, as Pairs
/// says, and a dot for a letter that has no plain one.
struct PlainLetters {
  char32_t First;
  std::string_view Letters;
};
constexpr PlainLetters Latin[] = {
    {0x00C0,
     "aaaaaaAceeeeiiiidnooooo.ouuuuyTSaaaaaaAceeeeiiiidnooooo.ouuuuyTyaaaaaaccccccccdd"
     "ddeeeeeeeeeegggggggghhhhiiiiiiiiiiIIjjkkkllllllllllnnnnnnnnnooooooOOrrrrrrssssss"
     "ssttttttuuuuuuuuuuuuwwyyyzzzzzzsbbbb...cc.ddd....ffg...ikkl..nnooo..pp.....ttttu"
     "u.vyyzz.............DDDLLLNNNaaiioouuuuuuuuuu.aaaaAAggggkkoooo..jDDDgg..nnaaAAoo"
     "aaaaeeeeiiiioooorrrruuuusstt..hhnd..zzaaeeooooooooyylntj..accltsz..b..eejj.qrryy"},
    {0x1E00,
     "aabbbbbbccddddddddddeeeeeeeeeeffgghhhhhhhhhhiiiikkkkkkllllllllmm"
     "mmmmnnnnnnnnoooooooopppprrrrrrrrssssssssssttttttttuuuuuuuuuuvvvv"
     "wwwwwwwwwwxxxxyyzzzzzzhtwyasssS.aaaaaaaaaaaaaaaaaaaaaaaaeeeeeeee"
     "eeeeeeeeiiiioooooooooooooooooooooooouuuuuuuuuuuuuuyyyyyyyy....yy"},
};
constexpr std::pair<char, std::u32string_view> Pairs[] = {{'A', U"ae"}, {'D', U"dz"}, {'I', U"ij"},
                                                          {'L', U"lj"}, {'N', U"nj"}, {'O', U"oe"},
                                                          {'S', U"ss"}, {'T', U"th"}};

/// Accented letters of other scripts, and the final sigma, above their plain ones.
constexpr std::u32string_view Accented = U"ΆΈΉΊΌΎΏΪΫάέήίόύώϊϋΐΰςЁё";
constexpr std::u32string_view Plain = U"αεηιουωιυαεηιουωιυιυσее";

/// Letters in upper case, and the distance to the same in lower case.
struct UpperCase {
  char32_t First, Last, Distance;
};
constexpr UpperCase UpperCases[] = {
    {U'A', U'Z', 32},    {0x186, 0x186, 206}, {0x18E, 0x18E, 79},  {0x18F, 0x18F, 202},
    {0x190, 0x190, 203}, {0x194, 0x194, 207}, {0x196, 0x196, 211}, {0x19C, 0x19C, 211},
    {0x19F, 0x19F, 214}, {0x1A9, 0x1A9, 218}, {0x1B1, 0x1B1, 217}, {0x1B7, 0x1B7, 219},
    {0x391, 0x3A9, 32},  {0x400, 0x40F, 80},  {0x410, 0x42F, 32},  {0x531, 0x556, 48}};

/// Cyrillic letters that are not Russian alternate between upper and lower case.
bool IsAlternating(char32_t c) {
  return (c >= 0x460 && c <= 0x481) || (c >= 0x48A && c <= 0x4BF) || (c >= 0x4D0 && c <= 0x52F);
}

void AppendPlain(std::u32string& key, char32_t c) {
  constexpr char32_t FirstCombining = 0x300, LastCombining = 0x36F;
  if (c >= FirstCombining && c <= LastCombining) return;
  for (const auto& [first, letters] : Latin) {
    if (c < first || c - first >= letters.size() || letters[c - first] == '.') continue;
    const char letter = letters[c - first];
    for (const auto& [pair, two] : Pairs) {
      if (pair == letter) key += two;
    }
    if (letter >= 'a') key += static_cast<char32_t>(letter);
    return;
  }
  const std::size_t place = Accented.find(c);
  if (place != std::u32string_view::npos) c = Plain[place];
  for (const auto& [first, last, distance] : UpperCases) {
    if (c >= first && c <= last) {
      key += c + distance;
      return;
    }
  }
  key += IsAlternating(c) ? c | 1U : c;
}

}  // namespace

std::u32string OrderKey(std::string_view name) {
  std::u32string key;
  for (const char32_t c : ToCodePoints(name)) AppendPlain(key, c);
  return key;
}

bool ListedBefore(std::string_view a, std::string_view b) {
  return std::pair(OrderKey(a), a) < std::pair(OrderKey(b), b);
}

}  // namespace kickwell
