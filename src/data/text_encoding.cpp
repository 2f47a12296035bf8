#include "data/text_encoding.h"

#include <algorithm>
#include <utility>

namespace kickwell {
namespace {

constexpr char32_t Replacement = 0xFFFD;
constexpr std::string_view Mark = "\xFF\xFE";  ///< Of UTF-16 little-endian.
constexpr std::string_view LineEnd("\r\0\n\0", 4);

bool IsHighSurrogate(char32_t c) {
  return c >= 0xD800 && c <= 0xDBFF;
}
bool IsLowSurrogate(char32_t c) {
  return c >= 0xDC00 && c <= 0xDFFF;
}

/// Writes UTF-8 to `out` and gives the place behind it.
char* WriteUtf8(char* out, char32_t c) {
  const auto byte = [&out](char32_t value) { *out++ = static_cast<char>(value); };
  if (c < 0x80) {
    byte(c);
  } else if (c < 0x800) {
    byte(0xC0 | c >> 6);
    byte(0x80 | (c & 0x3F));
  } else if (c < 0x10000) {
    byte(0xE0 | c >> 12);
    byte(0x80 | (c >> 6 & 0x3F));
    byte(0x80 | (c & 0x3F));
  } else {
    byte(0xF0 | c >> 18);
    byte(0x80 | (c >> 12 & 0x3F));
    byte(0x80 | (c >> 6 & 0x3F));
    byte(0x80 | (c & 0x3F));
  }
  return out;
}

/// The code point that starts at `place`, which moves behind it; a bad byte is passed over alone.
char32_t NextCodePoint(std::string_view text, std::size_t& place) {
  const auto at = [&text](std::size_t i) { return static_cast<unsigned char>(text[i]); };
  const unsigned char lead = at(place++);
  if (lead < 0x80) return lead;
  const std::size_t more = lead >= 0xF0 ? 3 : lead >= 0xE0 ? 2 : 1;
  if (lead < 0xC2 || lead > 0xF4 || text.size() - place < more) return Replacement;
  char32_t c = lead & (0x3FU >> more);
  for (std::size_t i = 0; i < more; ++i) {
    if ((at(place + i) & 0xC0U) != 0x80) return Replacement;
    c = c << 6 | (at(place + i) & 0x3FU);
  }
  constexpr char32_t Shortest[] = {0, 0x80, 0x800, 0x10000};  // Longer forms of a code point are refused.
  if (c < Shortest[more] || c > 0x10FFFF) return Replacement;
  place += more;
  return c;
}

enum class Encoding { Utf8, Utf16Little, Utf16Big };

/// Without a mark only UTF-16 holds zero bytes: the high bytes of digits and of line ends.
Encoding GuessEncoding(std::string_view bytes) {
  std::size_t zeros[2] = {0, 0};
  for (std::size_t i = 0; i < bytes.size(); ++i) zeros[i % 2] += bytes[i] == '\0' ? 1 : 0;
  if (zeros[0] == 0 && zeros[1] == 0) return Encoding::Utf8;
  return zeros[0] > zeros[1] ? Encoding::Utf16Big : Encoding::Utf16Little;
}

constexpr std::size_t LongestOfUnit = 3;  ///< UTF-8 bytes that a UTF-16 unit or a bad byte can become.

/// Copies the ASCII characters that `units`, UTF-16 in either byte order, begins with to `out`, in whole
/// blocks that a processor copies at once; `low` is the place of a unit's low byte. Returns how many there
/// were.
std::size_t CopyAscii(std::string_view units, std::size_t low, char* out) {
  constexpr std::size_t Block = 16;
  std::size_t copied = 0;
  while (units.size() - 2 * copied >= 2 * Block) {
    const char* const block = units.data() + 2 * copied;
    int others = 0;
    for (std::size_t i = 0; i < Block; ++i) {
      out[copied + i] = block[2 * i + low];
      others |= (block[2 * i + low] & 0x80) | block[2 * i + 1 - low];
    }
    if (others != 0) break;
    copied += Block;
  }
  return copied;
}

std::string DecodeUtf16(std::string_view bytes, bool bigEndian) {
  const std::size_t low = bigEndian ? 1 : 0;
  std::string text(bytes.size() / 2 * LongestOfUnit, '\0');
  char* out = text.data();
  const auto unit = [&](std::size_t i) {
    const auto byte = [&](std::size_t place) { return static_cast<unsigned char>(bytes[place]); };
    return static_cast<char32_t>(byte(i + 1 - low) << 8 | byte(i + low));
  };
  for (std::size_t i = 0; i + 1 < bytes.size(); i += 2) {
    const std::size_t run = CopyAscii(bytes.substr(i), low, out);
    out += run;
    i += 2 * run;
    if (i + 1 >= bytes.size()) break;
    char32_t c = unit(i);
    if (IsHighSurrogate(c) && i + 3 < bytes.size() && IsLowSurrogate(unit(i + 2))) {
      c = 0x10000 + ((c - 0xD800) << 10) + (unit(i + 2) - 0xDC00);
      i += 2;
    }
    out = WriteUtf8(out, c);
  }
  text.resize(static_cast<std::size_t>(out - text.data()));
  return text;
}

std::string DecodeUtf8(std::string_view bytes) {
  std::string text(bytes.size() * LongestOfUnit, '\0');
  char* out = text.data();
  for (std::size_t place = 0; place < bytes.size();) out = WriteUtf8(out, NextCodePoint(bytes, place));
  text.resize(static_cast<std::size_t>(out - text.data()));
  return text;
}

std::string ToUtf8(std::string_view bytes) {
  Encoding encoding = Encoding::Utf8;
  if (bytes.starts_with(Mark)) {
    encoding = Encoding::Utf16Little;
    bytes.remove_prefix(2);
  } else if (bytes.starts_with("\xFE\xFF")) {
    encoding = Encoding::Utf16Big;
    bytes.remove_prefix(2);
  } else if (bytes.starts_with("\xEF\xBB\xBF")) {
    bytes.remove_prefix(3);
  } else {
    encoding = GuessEncoding(bytes);
  }
  if (encoding != Encoding::Utf8) return DecodeUtf16(bytes, encoding == Encoding::Utf16Big);
  return DecodeUtf8(bytes);
}

}  // namespace

TextLines::TextLines(std::string text) : text_(std::make_shared<const std::string>(std::move(text))) {
  std::string_view rest = *text_;
  lines_.reserve(static_cast<std::size_t>(std::ranges::count(rest, '\n')) + 1);
  while (!rest.empty()) {
    const std::size_t end = rest.find('\n');
    std::string_view line = rest.substr(0, end);
    rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + 1);
    if (line.ends_with('\r')) line.remove_suffix(1);
    lines_.push_back(line);
  }
}

TextLines Decode(std::string_view bytes) {
  return TextLines(ToUtf8(bytes));
}

EncodedText::EncodedText(std::size_t expectedBytes) {
  bytes_.reserve(expectedBytes);
  bytes_ = Mark;
}

void EncodedText::Add(std::string_view line) {
  const std::size_t before = bytes_.size();
  bytes_.resize(before + 2 * line.size() + LineEnd.size());  // A byte of UTF-8 is one unit at the most.
  char* out = bytes_.data() + before;
  const auto unit = [&out](char32_t value) {
    *out++ = static_cast<char>(value & 0xFF);
    *out++ = static_cast<char>(value >> 8);
  };
  for (std::size_t place = 0; place < line.size();) {
    const char32_t c = NextCodePoint(line, place);
    if (c >= 0x10000) {
      unit(0xD800 + ((c - 0x10000) >> 10));
      unit(0xDC00 + ((c - 0x10000) & 0x3FF));
    } else {
      unit(c == '\n' ? ' ' : c);
    }
  }
  unit('\r');
  unit('\n');
  bytes_.resize(static_cast<std::size_t>(out - bytes_.data()));
}

void EncodedText::Add(int number) {
  Add(std::to_string(number));
}

std::string Encode(const Lines& lines) {
  EncodedText text;
  for (const std::string& line : lines) text.Add(line);
  return text.Bytes();
}

std::u32string ToCodePoints(std::string_view text) {
  std::u32string points;
  points.reserve(text.size());
  for (std::size_t place = 0; place < text.size();) points.push_back(NextCodePoint(text, place));
  return points;
}

}  // namespace kickwell
