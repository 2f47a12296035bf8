#include "data/text_encoding.h"

#include <algorithm>
#include <cstdint>
#include <cstring>

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

/// How many UTF-16 little-endian units at the beginning of `bytes` are ASCII, four at a time.
std::size_t AsciiUnits(std::string_view bytes) {
  constexpr std::size_t Four = 8;  // Bytes.
  constexpr char NotAscii[] = "\x80\xFF\x80\xFF\x80\xFF\x80\xFF";
  std::uint64_t mask = 0;
  std::memcpy(&mask, NotAscii, Four);
  std::size_t run = 0;
  while (2 * run + Four <= bytes.size()) {
    std::uint64_t units = 0;
    std::memcpy(&units, bytes.data() + 2 * run, Four);
    if ((units & mask) != 0) break;
    run += 4;
  }
  return run;
}

std::string DecodeUtf16(std::string_view bytes, bool bigEndian) {
  std::string text(bytes.size() / 2 * LongestOfUnit, '\0');
  char* out = text.data();
  const auto unit = [&](std::size_t i) {
    const auto first = static_cast<unsigned char>(bytes[i]);
    const auto second = static_cast<unsigned char>(bytes[i + 1]);
    return static_cast<char32_t>(bigEndian ? first << 8 | second : second << 8 | first);
  };
  for (std::size_t i = 0; i + 1 < bytes.size(); i += 2) {
    if (!bigEndian) {  // Long runs of ASCII are what files are made of, and what a processor copies at once.
      const std::size_t run = AsciiUnits(bytes.substr(i));
      for (std::size_t k = 0; k < run; ++k) out[k] = bytes[i + 2 * k];
      out += run;
      i += 2 * run;
      if (i + 1 >= bytes.size()) break;
    }
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

Lines Split(std::string_view text) {
  Lines lines;
  lines.reserve(static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n')) + 1);
  while (!text.empty()) {
    const std::size_t end = text.find('\n');
    std::string_view line = text.substr(0, end);
    text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
    if (line.ends_with('\r')) line.remove_suffix(1);
    lines.emplace_back(line);
  }
  return lines;
}

/// Whether these are the bytes of whole lines as Encode writes them, so that more can simply follow.
bool IsAsEncoded(std::string_view bytes) {
  if (!bytes.starts_with(Mark) || bytes.size() % 2 != 0 || !bytes.ends_with(LineEnd)) return false;
  for (std::size_t place = bytes.find('\n'); place != std::string_view::npos;
       place = bytes.find('\n', place + 1)) {
    if (place % 2 != 0 || bytes[place + 1] != 0) continue;  // Half of another character.
    if (place < Mark.size() + 2 || bytes.substr(place - 2, LineEnd.size()) != LineEnd) return false;
  }
  return true;
}

}  // namespace

Lines Decode(std::string_view bytes) {
  return Split(ToUtf8(bytes));
}

std::string Encode(const Lines& lines) {
  std::size_t most = 2;  // Bytes: the mark, and a unit of two for each byte of UTF-8 at the most.
  for (const std::string& line : lines) most += 2 * line.size() + 4;
  std::string bytes(most, '\0');
  char* out = bytes.data();
  const auto unit = [&out](char32_t value) {
    *out++ = static_cast<char>(value & 0xFF);
    *out++ = static_cast<char>(value >> 8);
  };
  unit(0xFEFF);
  for (const std::string& line : lines) {
    for (std::size_t place = 0; place < line.size();) {
      std::size_t run = 0;
      while (place + run < line.size() && line[place + run] > '\n') ++run;
      for (std::size_t k = 0; k < run; ++k) {
        out[2 * k] = line[place + k];
        out[2 * k + 1] = 0;
      }
      out += 2 * run;
      place += run;
      if (place == line.size()) break;
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
  }
  bytes.resize(static_cast<std::size_t>(out - bytes.data()));
  return bytes;
}

std::string EncodeBehind(std::string bytes, const Lines& block) {
  if (IsAsEncoded(bytes)) {
    const std::string more = Encode(block);
    bytes += LineEnd;
    bytes += std::string_view(more).substr(Mark.size());
    return bytes;
  }
  Lines lines = Decode(bytes);
  if (!lines.empty()) lines.emplace_back();
  lines.insert(lines.end(), block.begin(), block.end());
  return Encode(lines);
}

std::u32string ToCodePoints(std::string_view text) {
  std::u32string points;
  points.reserve(text.size());
  for (std::size_t place = 0; place < text.size();) points.push_back(NextCodePoint(text, place));
  return points;
}

}  // namespace kickwell
