#include "vbscript/objects/TextStream.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>

#include "text/Utf.h"
#include "vbscript/objects/FileSystem.h"
#include "vbscript/runtime/Interpreter.h"

namespace vbs {

namespace fs = std::filesystem;

namespace {

// How much written text waits before it goes to the disk.
constexpr size_t kFlushAt = 32768;
// How much of a file appending looks at to learn its encoding.
constexpr size_t kSniffBytes = 65536;
// The largest file a stream reads: its text must fit a string, and a script must not exhaust memory.
constexpr size_t kMaxReadBytes = size_t{256} << 20;
constexpr size_t kBlankLinesAtOnce = 8192;

ScriptError ErrnoError(int32_t missing) { return FileError(std::error_code(errno, std::generic_category()), missing); }

// 53 for a missing file in an existing folder, 76 when the folder is missing too.
ScriptError MissingFile(const fs::path& path) {
  std::error_code ec;
  const fs::path parent = path.parent_path();
  return MakeError(parent.empty() || fs::is_directory(parent, ec) ? err::kFileNotFound : err::kPathNotFound);
}

// Up to `limit` bytes of a regular file. A device, a pipe or a socket would never end or would
// wait for a writer: it is refused (75) without waiting, as is a file larger than kMaxReadBytes (7)
// when the whole of it is wanted.
Result<std::string> ReadBytes(const fs::path& path, size_t limit) {
  const int fd = ::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
  if (fd < 0) return ErrnoError(err::kFileNotFound);
  struct stat info {};
  if (::fstat(fd, &info) != 0 || !S_ISREG(info.st_mode)) {
    ::close(fd);
    return MakeError(err::kPathFileAccess);
  }
  if (limit == SIZE_MAX && static_cast<uintmax_t>(info.st_size) > kMaxReadBytes) {
    ::close(fd);
    return MakeError(err::kOutOfMemory);
  }
  limit = std::min(limit, kMaxReadBytes);
  std::string bytes;
  char buffer[65536];
  bool failed = false;
  while (bytes.size() < limit) {
    const ssize_t got = ::read(fd, buffer, std::min(sizeof buffer, limit - bytes.size()));
    if (got < 0 && errno == EINTR) continue;
    if (got <= 0) {
      failed = got < 0;
      break;
    }
    bytes.append(buffer, static_cast<size_t>(got));
  }
  ::close(fd);
  if (failed) return MakeError(err::kPermissionDenied);
  return bytes;
}

// Writing to a device or a pipe could wait for ever: only regular files, new or existing.
bool WritableKind(const fs::file_status& status) { return !fs::exists(status) || fs::is_regular_file(status); }

std::u16string Utf16LeToText(std::string_view bytes) {
  std::u16string text;
  text.reserve(bytes.size() / 2);
  for (size_t i = 0; i + 1 < bytes.size(); i += 2)
    text +=
        static_cast<char16_t>(static_cast<unsigned char>(bytes[i]) | (static_cast<unsigned char>(bytes[i + 1]) << 8));
  return text;
}

std::u16string Decode(std::string_view bytes, TextFormat format) {
  const text::TextEncoding found = text::DetectEncoding(bytes);
  const bool has_mark = found == text::TextEncoding::Utf8Bom || found == text::TextEncoding::Utf16LeBom ||
                        found == text::TextEncoding::Utf16BeBom;
  if (format == TextFormat::Unicode && !has_mark) return Utf16LeToText(bytes);
  return text::DecodeScriptFile(bytes);
}

bool HasNonAscii(std::string_view bytes) {
  return std::any_of(bytes.begin(), bytes.end(), [](char b) { return static_cast<unsigned char>(b) >= 0x80; });
}

}  // namespace

Status CheckTextStreamAccess(const FileAccessPolicy* policy, const fs::path& path, IoMode mode, bool create,
                             std::string_view function) {
  std::error_code ec;
  const bool creates = create && !fs::exists(path, ec);
  if (mode == IoMode::Reading && !creates) return CheckAccess(policy, FileAccess::Read, path, function);
  if (mode == IoMode::Reading) VBS_TRY(CheckAccess(policy, FileAccess::Read, path, function));
  return CheckAccess(policy, FileAccess::Write, path, function);
}

Result<TextFormat> FormatArgument(const CallArgs& args, size_t i) {
  VBS_TRY_ASSIGN(auto value, args.Long(i, 0));
  if (value == -1) return TextFormat::Unicode;
  if (value == 0 || value == -2) return TextFormat::Ansi;
  return MakeError(err::kInvalidCall);
}

TextStream::TextStream(const Locale& locale) : HostObject(locale) {}

TextStream::~TextStream() {
  if (m_file) {
    (void)Flush();
    std::fclose(m_file);
  }
}

std::span<const TextStream::Member> TextStream::Members() {
  static const Member kMembers[] = {
      {"Read", 1, 1, &TextStream::Read, nullptr, "Count: the next Count characters"},
      {"ReadLine", 0, 0, &TextStream::ReadLine, nullptr, "the rest of the line, without its line break"},
      {"ReadAll", 0, 0, &TextStream::ReadAll, nullptr, "everything left"},
      {"Skip", 1, 1, &TextStream::Skip, nullptr, "Count: passes over Count characters"},
      {"SkipLine", 0, 0, &TextStream::SkipLine, nullptr, "passes over the rest of the line"},
      {"AtEndOfStream", 0, 0, &TextStream::AtEndOfStream, nullptr, "whether everything has been read"},
      {"AtEndOfLine", 0, 0, &TextStream::AtEndOfLine, nullptr, "whether a line break or the end comes next"},
      {"Write", 1, 1, &TextStream::Write, nullptr, "Text: writes the text"},
      {"WriteLine", 0, 1, &TextStream::WriteLine, nullptr, "[Text]: writes the text and a line break (CRLF)"},
      {"WriteBlankLines", 1, 1, &TextStream::WriteBlankLines, nullptr, "Count: writes Count line breaks"},
      {"Line", 0, 0, &TextStream::Line, nullptr, "the current line number, from 1"},
      {"Column", 0, 0, &TextStream::Column, nullptr, "the current column, from 1"},
      {"Close", 0, 0, &TextStream::Close, nullptr, "writes what is pending and closes the file"},
  };
  return kMembers;
}

// ---- Opening ----

Result<Ref<TextStream>> TextStream::Open(const Locale& locale, const fs::path& path, IoMode mode, bool create,
                                         TextFormat format) {
  std::error_code ec;
  const fs::file_status status = fs::status(path, ec);
  if (fs::is_directory(status)) return MakeError(err::kPermissionDenied);
  const bool exists = fs::exists(status);
  if (!exists && !create) return MissingFile(path);
  if (!WritableKind(status)) return MakeError(mode == IoMode::Reading ? err::kPathFileAccess : err::kPermissionDenied);
  if (mode != IoMode::Reading) return OpenForWriting(locale, path, mode == IoMode::Appending, format);
  if (!exists) {
    std::FILE* file = std::fopen(path.c_str(), "wb");
    if (!file) return ErrnoError(err::kPathNotFound);
    std::fclose(file);
  }
  VBS_TRY_ASSIGN(auto bytes, ReadBytes(path, SIZE_MAX));
  Ref<TextStream> stream(new TextStream(locale));
  stream->m_reading = true;
  stream->m_text = Decode(bytes, format);
  return stream;
}

Result<Ref<TextStream>> TextStream::Create(const Locale& locale, const fs::path& path, bool overwrite,
                                           TextFormat format) {
  std::error_code ec;
  const fs::file_status status = fs::status(path, ec);
  if (fs::is_directory(status)) return MakeError(err::kPermissionDenied);
  if (fs::exists(status) && !overwrite) return MakeError(err::kFileExists);
  if (!WritableKind(status)) return MakeError(err::kPermissionDenied);
  return OpenForWriting(locale, path, false, format);
}

Result<Ref<TextStream>> TextStream::OpenForWriting(const Locale& locale, const fs::path& path, bool append,
                                                   TextFormat format) {
  Encoding encoding = format == TextFormat::Unicode ? Encoding::Utf16 : Encoding::Ansi;
  bool mark = format == TextFormat::Unicode;
  std::error_code ec;
  if (append && fs::exists(path, ec)) {
    VBS_TRY_ASSIGN(auto head, ReadBytes(path, kSniffBytes));
    std::string_view bytes = head;
    if (!bytes.empty()) {
      mark = false;
      // A sequence cut at the end of the sample would make UTF-8 text look like ANSI.
      if (bytes.size() == kSniffBytes) {
        while (!bytes.empty() && (static_cast<unsigned char>(bytes.back()) & 0xC0) == 0x80) bytes.remove_suffix(1);
        if (!bytes.empty() && static_cast<unsigned char>(bytes.back()) >= 0xC0) bytes.remove_suffix(1);
      }
      switch (text::DetectEncoding(bytes)) {
        case text::TextEncoding::Utf16LeBom: encoding = Encoding::Utf16; break;
        case text::TextEncoding::Utf8Bom: encoding = Encoding::Utf8; break;
        case text::TextEncoding::Utf8: encoding = HasNonAscii(bytes) ? Encoding::Utf8 : Encoding::Ansi; break;
        default: encoding = Encoding::Ansi; break;
      }
    }
  }
  std::FILE* file = std::fopen(path.c_str(), append ? "ab" : "wb");
  if (!file) return ErrnoError(err::kPathNotFound);
  Ref<TextStream> stream(new TextStream(locale));
  stream->m_file = file;
  stream->m_encoding = encoding;
  if (mark && std::fwrite("\xFF\xFE", 1, 2, file) != 2) return ErrnoError(err::kPathNotFound);
  return stream;
}

// ---- Reading ----

Status TextStream::CanRead(bool need_more) const {
  if (!m_reading) return MakeError(err::kBadFileMode);
  if (need_more && m_pos >= m_text.size()) return MakeError(err::kPastEndOfFile);
  return Ok();
}

std::u16string_view TextStream::Take(size_t count) {
  const std::u16string_view taken = std::u16string_view(m_text).substr(m_pos, count);
  for (char16_t c : taken) {
    if (c == u'\n') {
      ++m_line;
      m_column = 1;
    } else {
      ++m_column;
    }
  }
  m_pos += taken.size();
  return taken;
}

Result<Variant> TextStream::Read(CallArgs& args) {
  VBS_TRY(CanRead(true));
  VBS_TRY_ASSIGN(auto count, args.Long(0));
  if (count < 0) return MakeError(err::kInvalidCall);
  return Variant::String(Take(static_cast<size_t>(count)));
}

Result<Variant> TextStream::ReadLine(CallArgs&) {
  VBS_TRY(CanRead(true));
  const size_t feed = m_text.find(u'\n', m_pos);
  if (feed == std::u16string::npos) return Variant::String(Take(m_text.size() - m_pos));
  std::u16string_view line = Take(feed - m_pos + 1);
  line.remove_suffix(1);
  if (!line.empty() && line.back() == u'\r') line.remove_suffix(1);
  return Variant::String(line);
}

Result<Variant> TextStream::ReadAll(CallArgs&) {
  VBS_TRY(CanRead(true));
  return Variant::String(Take(m_text.size() - m_pos));
}

Result<Variant> TextStream::Skip(CallArgs& args) {
  VBS_TRY(CanRead(true));
  VBS_TRY_ASSIGN(auto count, args.Long(0));
  if (count < 0) return MakeError(err::kInvalidCall);
  Take(static_cast<size_t>(count));
  return Variant();
}

Result<Variant> TextStream::SkipLine(CallArgs&) {
  VBS_TRY(CanRead(true));
  const size_t feed = m_text.find(u'\n', m_pos);
  Take(feed == std::u16string::npos ? m_text.size() - m_pos : feed - m_pos + 1);
  return Variant();
}

Result<Variant> TextStream::AtEndOfStream(CallArgs&) {
  VBS_TRY(CanRead(false));
  return Variant::Boolean(m_pos >= m_text.size());
}

Result<Variant> TextStream::AtEndOfLine(CallArgs&) {
  VBS_TRY(CanRead(false));
  const std::u16string_view rest = std::u16string_view(m_text).substr(m_pos);
  return Variant::Boolean(rest.empty() || rest[0] == u'\n' || rest.starts_with(u"\r\n"));
}

// ---- Writing ----

Status TextStream::CanWrite() const {
  if (!m_file) return MakeError(err::kBadFileMode);
  return Ok();
}

Status TextStream::Put(std::u16string_view text) {
  VBS_TRY(CanWrite());
  for (char16_t c : text) {
    if (c == u'\n') {
      ++m_line;
      m_column = 1;
    } else {
      ++m_column;
    }
  }
  m_pending += text;
  if (m_pending.size() >= kFlushAt) return Flush();
  return Ok();
}

Status TextStream::Flush() {
  if (m_pending.empty()) return Ok();
  std::string bytes;
  switch (m_encoding) {
    case Encoding::Ansi: bytes = text::Utf16ToWindows1252(m_pending); break;
    case Encoding::Utf8: bytes = text::Utf16ToUtf8(m_pending); break;
    case Encoding::Utf16:
      bytes.reserve(m_pending.size() * 2);
      for (char16_t c : m_pending) {
        bytes += static_cast<char>(c & 0xFF);
        bytes += static_cast<char>(c >> 8);
      }
      break;
  }
  m_pending.clear();
  if (std::fwrite(bytes.data(), 1, bytes.size(), m_file) != bytes.size()) return ErrnoError(err::kPathNotFound);
  return Ok();
}

Result<Variant> TextStream::Write(CallArgs& args) {
  VBS_TRY_ASSIGN(auto text, args.String(0));
  VBS_TRY(Put(text));
  return Variant();
}

Result<Variant> TextStream::WriteLine(CallArgs& args) {
  VBS_TRY_ASSIGN(auto text, args.String(0, u""));
  text += u"\r\n";
  VBS_TRY(Put(text));
  return Variant();
}

Result<Variant> TextStream::WriteBlankLines(CallArgs& args) {
  VBS_TRY_ASSIGN(auto count, args.Long(0));
  if (count < 0) return MakeError(err::kInvalidCall);
  // In pieces, so that a huge count costs no more memory than a small one.
  std::u16string breaks;
  for (size_t i = 0; i < kBlankLinesAtOnce; ++i) breaks += u"\r\n";
  for (auto left = static_cast<size_t>(count); left > 0;) {
    const size_t now = std::min(left, kBlankLinesAtOnce);
    VBS_TRY(Put(std::u16string_view(breaks).substr(0, now * 2)));
    left -= now;
  }
  return Variant();
}

// ---- Either ----

Result<Variant> TextStream::Line(CallArgs&) { return Variant::Long(m_line); }

Result<Variant> TextStream::Column(CallArgs&) { return Variant::Long(m_column); }

Result<Variant> TextStream::Close(CallArgs&) {
  m_reading = false;
  m_text.clear();
  m_text.shrink_to_fit();
  m_pos = 0;
  if (!m_file) return Variant();
  Status flushed = Flush();
  const bool closed = std::fclose(m_file) == 0;
  m_file = nullptr;
  VBS_TRY(flushed);
  if (!closed) return ErrnoError(err::kPathNotFound);
  return Variant();
}

}  // namespace vbs
