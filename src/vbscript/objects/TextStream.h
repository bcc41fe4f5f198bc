#pragma once

// TextStream: a text file opened by OpenTextFile, CreateTextFile or OpenAsTextStream.
//
// Reading loads and decodes the whole file when it opens: a byte-order mark decides (UTF-16LE,
// UTF-16BE, UTF-8); without one, a Unicode request means UTF-16LE, otherwise the bytes are UTF-8
// when they are valid UTF-8 and Windows-1252 (ANSI, what Windows writes) when not. ReadLine ends a
// line at CRLF or LF; a lone CR stays in the text. Writing goes out as Windows does it: ANSI
// (Windows-1252, '?' for what it lacks) with CRLF after WriteLine, or UTF-16LE with a byte-order
// mark when Unicode is asked for. Appending keeps the encoding the file already has (a mark, or
// UTF-8 text), so a file that an editor saved as UTF-8 does not become a mixture. What is written
// is buffered and reaches the disk at Close, when the buffer fills, or when the last reference
// to the stream goes.
//
// Only regular files are read or written: a device or a pipe is refused at once (75 to read, 70 to
// write) rather than read for ever or waited on; a file larger than 256 MB is not read (7).
//
// Errors: 54 bad file mode (reading a stream open for writing, or writing one open for reading,
// or using a closed one), 62 input past end of file.

#include <cstdio>
#include <filesystem>

#include "vbscript/FileAccessPolicy.h"
#include "vbscript/HostObject.h"

namespace vbs {

enum class IoMode { Reading = 1, Writing = 2, Appending = 8 };
// The Format argument: -2 the system default (ANSI), -1 Unicode, 0 ASCII (ANSI too).
enum class TextFormat { Ansi, Unicode };
// Argument i of OpenTextFile or OpenAsTextStream read as a Format (0 when missing); error 5 for a
// value other than -2, -1 and 0.
Result<TextFormat> FormatArgument(const CallArgs& args, size_t i);
// What opening `path` in `mode` asks of the policy: reading, and writing as well when the stream
// writes or creates the file.
[[nodiscard]] Status CheckTextStreamAccess(const FileAccessPolicy* policy, const std::filesystem::path& path,
                                           IoMode mode, bool create, std::string_view function);

class TextStream final : public HostObject<TextStream> {
 public:
  // Opens `path` (native); a missing file is created when `create` says so, else error 53
  // (76 when its folder is missing).
  static Result<Ref<TextStream>> Open(const Locale& locale, const std::filesystem::path& path, IoMode mode, bool create,
                                      TextFormat format);
  // Creates or empties `path` for writing; error 58 when it exists and `overwrite` is false.
  static Result<Ref<TextStream>> Create(const Locale& locale, const std::filesystem::path& path, bool overwrite,
                                        TextFormat format);
  ~TextStream() override;

  static std::span<const Member> Members();
  std::u16string ClassName() const override { return u"TextStream"; }

 private:
  enum class Encoding { Ansi, Utf8, Utf16 };
  explicit TextStream(const Locale& locale);

  Result<Variant> Read(CallArgs& args);
  Result<Variant> ReadLine(CallArgs& args);
  Result<Variant> ReadAll(CallArgs& args);
  Result<Variant> Skip(CallArgs& args);
  Result<Variant> SkipLine(CallArgs& args);
  Result<Variant> AtEndOfStream(CallArgs& args);
  Result<Variant> AtEndOfLine(CallArgs& args);
  Result<Variant> Write(CallArgs& args);
  Result<Variant> WriteLine(CallArgs& args);
  Result<Variant> WriteBlankLines(CallArgs& args);
  Result<Variant> Line(CallArgs& args);
  Result<Variant> Column(CallArgs& args);
  Result<Variant> Close(CallArgs& args);

  static Result<Ref<TextStream>> OpenForWriting(const Locale& locale, const std::filesystem::path& path, bool append,
                                                TextFormat format);
  // Error 54 unless the stream is open for reading; 62 also when nothing is left.
  [[nodiscard]] Status CanRead(bool need_more) const;
  [[nodiscard]] Status CanWrite() const;
  // Moves over `count` characters of the text read, counting lines and columns.
  std::u16string_view Take(size_t count);
  [[nodiscard]] Status Put(std::u16string_view text);
  [[nodiscard]] Status Flush();

  // Reading: the whole text and the position in it.
  bool m_reading = false;
  std::u16string m_text;
  size_t m_pos = 0;
  // Writing: the open file, its encoding and what is not yet written.
  std::FILE* m_file = nullptr;
  Encoding m_encoding = Encoding::Ansi;
  std::u16string m_pending;
  int32_t m_line = 1;
  int32_t m_column = 1;
};

}  // namespace vbs
