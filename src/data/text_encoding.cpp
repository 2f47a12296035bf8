#include "data/text_encoding.h"

#include <optional>

#include "base/at.h"

namespace kickwell {
namespace {

constexpr char32_t Replacement = 0xFFFD;
constexpr std::string_view LineEnd("\r\0\n\0", 4);  ///< In UTF-16 little-endian.
constexpr std::string_view Mark = "\xFF\xFE";       ///< Of UTF-16 little-endian.
constexpr std::string_view Utf8Mark = "\xEF\xBB\xBF";

bool IsHighSurrogate(char32_t c) {
  return c >= 0xD800 && c <= 0xDBFF;
}
bool IsLowSurrogate(char32_t c) {
  return c >= 0xDC00 && c <= 0xDFFF;
}

void AppendUtf8(std::string& text, char32_t c) {
  const auto byte = [&text](char32_t value) { text += static_cast<char>(value); };
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
}

/// The code point that starts at `place`, which moves behind it; none for a bad byte, which is passed over
/// alone.
std::optional<char32_t> TakeCodePoint(std::string_view text, std::size_t& place) {
  const auto at = [&text](std::size_t i) { return static_cast<unsigned char>(text[i]); };
  const unsigned char lead = at(place++);
  if (lead < 0x80) return lead;
  const std::size_t more = lead >= 0xF0 ? 3 : lead >= 0xE0 ? 2 : 1;
  if (lead < 0xC2 || lead > 0xF4 || text.size() - place < more) return std::nullopt;
  char32_t c = lead & (0x3FU >> more);
  for (std::size_t i = 0; i < more; ++i) {
    if ((at(place + i) & 0xC0U) != 0x80) return std::nullopt;
    c = c << 6 | (at(place + i) & 0x3FU);
  }
  constexpr char32_t Shortest[] = {0, 0x80, 0x800, 0x10000};  // Longer forms of a code point are refused.
  if (c < Shortest[more] || c > 0x10FFFF) return std::nullopt;
  place += more;
  return c;
}

char32_t NextCodePoint(std::string_view text, std::size_t& place) {
  return TakeCodePoint(text, place).value_or(Replacement);
}

/// A byte as Windows-1252 has it. The five bytes that it does not use become control characters, so that no
/// two bytes read alike.
char32_t FromWindows1252(char byte) {
  constexpr char32_t Own[] = {0x20AC, 0x81,   0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                              0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x8D,   0x017D, 0x8F,
                              0x90,   0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                              0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x9D,   0x017E, 0x0178};
  const auto value = static_cast<unsigned char>(byte);
  return value >= 0x80 && value < 0xA0 ? At(Own, value - 0x80) : value;
}

enum class ByteOrder { Little, Big };

/// The byte order of UTF-16 without a mark; none for other text, since only UTF-16 holds zero bytes: the high
/// bytes of digits and of line ends.
std::optional<ByteOrder> GuessByteOrder(std::string_view bytes) {
  std::size_t zeros[2] = {0, 0};
  for (std::size_t i = 0; i < bytes.size(); ++i) zeros[i % 2] += bytes[i] == '\0' ? 1 : 0;
  if (zeros[0] == 0 && zeros[1] == 0) return std::nullopt;
  return zeros[0] > zeros[1] ? ByteOrder::Big : ByteOrder::Little;
}

std::string DecodeUtf16(std::string_view bytes, ByteOrder order) {
  const std::size_t low = order == ByteOrder::Little ? 0 : 1;
  const auto byte = [&bytes](std::size_t i) { return static_cast<unsigned char>(bytes[i]); };
  const auto unit = [&](std::size_t i) {
    return static_cast<char32_t>(byte(i + low) | byte(i + 1 - low) << 8);
  };
  std::string text;
  text.reserve(bytes.size() / 2);
  for (std::size_t i = 0; i + 1 < bytes.size(); i += 2) {
    char32_t c = unit(i);
    if (IsHighSurrogate(c) && i + 3 < bytes.size() && IsLowSurrogate(unit(i + 2))) {
      i += 2;
      c = 0x10000 + ((c - 0xD800) << 10) + (unit(i) - 0xDC00);
    }
    AppendUtf8(text, c);
  }
  return text;
}

std::string DecodeWindows1252(std::string_view bytes) {
  std::string text;
  text.reserve(bytes.size());
  for (const char byte : bytes) AppendUtf8(text, FromWindows1252(byte));
  return text;
}

/// Without a mark, bytes that are not UTF-8 throughout are Windows-1252, where two of them can look like
/// UTF-8. With one, only those that fit nowhere are.
std::string DecodeUtf8(std::string_view bytes, bool marked) {
  std::string text;
  text.reserve(bytes.size());
  for (std::size_t place = 0; place < bytes.size();) {
    const char byte = bytes[place];
    const std::optional<char32_t> c = TakeCodePoint(bytes, place);
    if (!c && !marked) return DecodeWindows1252(bytes);
    AppendUtf8(text, c ? *c : FromWindows1252(byte));
  }
  return text;
}

std::string ToUtf8(std::string_view bytes) {
  if (bytes.starts_with(Mark)) return DecodeUtf16(bytes.substr(2), ByteOrder::Little);
  if (bytes.starts_with("\xFE\xFF")) return DecodeUtf16(bytes.substr(2), ByteOrder::Big);
  if (bytes.starts_with(Utf8Mark)) return DecodeUtf8(bytes.substr(Utf8Mark.size()), true);
  const std::optional<ByteOrder> order = GuessByteOrder(bytes);
  return order ? DecodeUtf16(bytes, *order) : DecodeUtf8(bytes, false);
}

void AppendUnit(std::string& bytes, char32_t unit) {
  bytes += static_cast<char>(unit & 0xFF);
  bytes += static_cast<char>(unit >> 8);
}

void AppendUtf16(std::string& bytes, std::string_view text) {
  for (std::size_t i = 0; i < text.size();) {
    const char32_t c = NextCodePoint(text, i);
    if (c >= 0x10000) {
      AppendUnit(bytes, 0xD800 + ((c - 0x10000) >> 10));
      AppendUnit(bytes, 0xDC00 + ((c - 0x10000) & 0x3FF));
    } else {
      AppendUnit(bytes, c);
    }
  }
}

}  // namespace

std::string Decode(std::string_view bytes) {
  std::string text;
  text.reserve(bytes.size());
  for (const char c : ToUtf8(bytes)) {
    if (c == '\n' && !text.ends_with('\r')) text += '\r';
    text += c;
  }
  if (!text.empty() && !text.ends_with('\n')) text += text.ends_with('\r') ? "\n" : "\r\n";
  return text;
}

EncodedText::EncodedText() : bytes_(Mark) {}

void EncodedText::Add(std::string_view line) {
  for (std::size_t end = line.find('\n'); end != std::string_view::npos; end = line.find('\n')) {
    AppendUtf16(bytes_, line.substr(0, end));
    AppendUtf16(bytes_, " ");
    line.remove_prefix(end + 1);
  }
  AppendUtf16(bytes_, line);
  bytes_ += LineEnd;
}

void EncodedText::AddLines(std::string_view lines) {
  AppendUtf16(bytes_, lines);
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
