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
    {0x253, "b...d........g.......i.........n..o..................t..v"},
    {0x1E00,
     "aabbbbbbccddddddddddeeeeeeeeeeffgghhhhhhhhhhiiiikkkkkkllllllllmm"
     "mmmmnnnnnnnnoooooooopppprrrrrrrrssssssssssttttttttuuuuuuuuuuvvvv"
     "wwwwwwwwwwxxxxyyzzzzzzhtwyasssS.aaaaaaaaaaaaaaaaaaaaaaaaeeeeeeee"
     "eeeeeeeeiiiioooooooooooooooooooooooouuuuuuuuuuuuuuyyyyyyyy....yy"},
    {0x2C65, "at"},
};
constexpr std::pair<char, std::u32string_view> Pairs[] = {{'A', U"ae"}, {'D', U"dz"}, {'I', U"ij"},
                                                          {'L', U"lj"}, {'N', U"nj"}, {'O', U"oe"},
                                                          {'S', U"ss"}, {'T', U"th"}};

/// Accented letters of other scripts above their plain ones.
constexpr std::u32string_view Accented = U"άέήίόύώϊϋΐΰё";
constexpr std::u32string_view Plain = U"αεηιουωιυιυе";

/// Letters in upper case, and the final sigma, in order, with the distance to the same in lower case. Where
/// it is 1, upper and lower case alternate.
struct UpperCase {
  char32_t First, Last;
  int Distance;
};
constexpr UpperCase UpperCases[] = {
    {0x41, 0x5A, 32},        {0xC0, 0xD6, 32},      {0xD8, 0xDE, 32},        {0x100, 0x12E, 1},
    {0x132, 0x136, 1},       {0x139, 0x147, 1},     {0x14A, 0x176, 1},       {0x178, 0x178, -121},
    {0x179, 0x17D, 1},       {0x181, 0x181, 210},   {0x182, 0x184, 1},       {0x186, 0x186, 206},
    {0x187, 0x187, 1},       {0x189, 0x18A, 205},   {0x18B, 0x18B, 1},       {0x18E, 0x18E, 79},
    {0x18F, 0x18F, 202},     {0x190, 0x190, 203},   {0x191, 0x191, 1},       {0x193, 0x193, 205},
    {0x194, 0x194, 207},     {0x196, 0x196, 211},   {0x197, 0x197, 209},     {0x198, 0x198, 1},
    {0x19C, 0x19C, 211},     {0x19D, 0x19D, 213},   {0x19F, 0x19F, 214},     {0x1A0, 0x1A4, 1},
    {0x1A6, 0x1A6, 218},     {0x1A7, 0x1A7, 1},     {0x1A9, 0x1A9, 218},     {0x1AC, 0x1AC, 1},
    {0x1AE, 0x1AE, 218},     {0x1AF, 0x1AF, 1},     {0x1B1, 0x1B2, 217},     {0x1B3, 0x1B5, 1},
    {0x1B7, 0x1B7, 219},     {0x1B8, 0x1B8, 1},     {0x1BC, 0x1BC, 1},       {0x1C4, 0x1C4, 2},
    {0x1C5, 0x1C5, 1},       {0x1C7, 0x1C7, 2},     {0x1C8, 0x1C8, 1},       {0x1CA, 0x1CA, 2},
    {0x1CB, 0x1DB, 1},       {0x1DE, 0x1EE, 1},     {0x1F1, 0x1F1, 2},       {0x1F2, 0x1F4, 1},
    {0x1F6, 0x1F6, -97},     {0x1F7, 0x1F7, -56},   {0x1F8, 0x21E, 1},       {0x220, 0x220, -130},
    {0x222, 0x232, 1},       {0x23A, 0x23A, 10795}, {0x23B, 0x23B, 1},       {0x23D, 0x23D, -163},
    {0x23E, 0x23E, 10792},   {0x241, 0x241, 1},     {0x243, 0x243, -195},    {0x244, 0x244, 69},
    {0x245, 0x245, 71},      {0x246, 0x24E, 1},     {0x370, 0x372, 1},       {0x376, 0x376, 1},
    {0x37F, 0x37F, 116},     {0x386, 0x386, 38},    {0x388, 0x38A, 37},      {0x38C, 0x38C, 64},
    {0x38E, 0x38F, 63},      {0x391, 0x3A1, 32},    {0x3A3, 0x3AB, 32},      {0x3C2, 0x3C2, 1},
    {0x3CF, 0x3CF, 8},       {0x3D8, 0x3EE, 1},     {0x3F4, 0x3F4, -60},     {0x3F7, 0x3F7, 1},
    {0x3F9, 0x3F9, -7},      {0x3FA, 0x3FA, 1},     {0x3FD, 0x3FF, -130},    {0x400, 0x40F, 80},
    {0x410, 0x42F, 32},      {0x460, 0x480, 1},     {0x48A, 0x4BE, 1},       {0x4C0, 0x4C0, 15},
    {0x4C1, 0x4CD, 1},       {0x4D0, 0x52E, 1},     {0x531, 0x556, 48},      {0x1E00, 0x1E94, 1},
    {0x1E9E, 0x1E9E, -7615}, {0x1EA0, 0x1EFE, 1},   {0x2C7E, 0x2C7F, -10815}};

char32_t Lower(char32_t c) {
  for (const auto& [first, last, distance] : UpperCases) {
    if (c < first) break;
    if (c > last) continue;
    const bool isLower = distance == 1 && (c - first) % 2 == 1;
    return isLower ? c : static_cast<char32_t>(static_cast<int>(c) + distance);
  }
  return c;
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
  key += place != std::u32string_view::npos ? Plain[place] : c;
}

}  // namespace

std::u32string OrderKey(std::string_view name) {
  std::u32string letters = ToCodePoints(name);
  for (char32_t& c : letters) c = Lower(c);
  std::u32string key;
  for (const char32_t c : letters) AppendPlain(key, c);
  return key + U'\0' + letters;
}

bool ListedBefore(std::string_view a, std::string_view b) {
  return std::pair(OrderKey(a), a) < std::pair(OrderKey(b), b);
}

}  // namespace kickwell
