#include "vbscript/objects/FileSystem.h"

#include <algorithm>

#include "text/Utf.h"
#include "text/Wildcard.h"
#include "vbscript/objects/TextStream.h"
#include "vbscript/runtime/Interpreter.h"

namespace vbs {

namespace fs = std::filesystem;

namespace {

bool IsSeparator(char16_t c) { return c == u'\\' || c == u'/'; }
bool IsLetter(char16_t c) { return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z'); }
bool HasDrive(std::u16string_view path) { return path.size() >= 2 && IsLetter(path[0]) && path[1] == u':'; }

std::u16string NameOf(const fs::path& path) { return text::Utf8ToUtf16(path.filename().string()); }

// ---- Names as text ----

// The length of the part no name function takes apart: "C:", "C:\", "\", or "\\server\share".
size_t RootLength(std::u16string_view path) {
  if (HasDrive(path)) return path.size() > 2 && IsSeparator(path[2]) ? 3 : 2;
  if (path.size() >= 2 && IsSeparator(path[0]) && IsSeparator(path[1])) {
    size_t end = 2;
    for (int parts = 0; parts < 2 && end < path.size(); ++parts) {
      while (end < path.size() && !IsSeparator(path[end])) ++end;
      if (parts == 0 && end < path.size()) ++end;
    }
    return end;
  }
  return !path.empty() && IsSeparator(path[0]) ? 1 : 0;
}

std::u16string_view TrimTrailingSeparators(std::u16string_view path) {
  const size_t root = RootLength(path);
  while (path.size() > root && IsSeparator(path.back())) path.remove_suffix(1);
  return path;
}

std::u16string_view FileNameOf(std::u16string_view path) {
  const size_t root = RootLength(path);
  path = TrimTrailingSeparators(path);
  if (path.size() <= root) return {};
  size_t start = path.size();
  while (start > root && !IsSeparator(path[start - 1])) --start;
  return path.substr(start);
}

std::u16string_view ParentFolderOf(std::u16string_view path) {
  const size_t root = RootLength(path);
  path = TrimTrailingSeparators(path);
  if (path.size() <= root) return {};
  size_t end = path.size();
  while (end > root && !IsSeparator(path[end - 1])) --end;
  while (end > root && IsSeparator(path[end - 1])) --end;
  return path.substr(0, std::max(end, root));
}

// ---- Wildcards ----

bool HasWildcards(const fs::path& path) {
  const std::string name = path.filename().string();
  return name.find_first_of("*?") != std::string::npos;
}

enum class EntryKind { File, Folder };

// What a path names when its last part may hold wildcards: the matching files or folders, sorted.
// Error `missing` when nothing matches, 76 when the folder itself is missing.
Result<std::vector<fs::path>> Matching(const fs::path& wanted, EntryKind kind, int32_t missing) {
  std::error_code ec;
  if (!HasWildcards(wanted)) {
    const fs::file_status status = fs::status(wanted, ec);
    if (!fs::exists(status) || fs::is_directory(status) != (kind == EntryKind::Folder)) {
      const fs::path parent = wanted.parent_path();
      return MakeError(parent.empty() || fs::is_directory(parent, ec) ? missing : err::kPathNotFound);
    }
    return std::vector<fs::path>{wanted};
  }
  const fs::path folder = wanted.parent_path().empty() ? fs::path(".") : wanted.parent_path();
  if (!fs::is_directory(folder, ec)) return MakeError(err::kPathNotFound);
  const std::u16string pattern = NameOf(wanted);
  VBS_TRY_ASSIGN(auto entries, ListFolder(folder));
  std::vector<fs::path> found;
  for (const FolderEntry& entry : entries) {
    if (entry.is_folder == (kind == EntryKind::Folder) && text::MatchesWildcard(pattern, NameOf(entry.path)))
      found.push_back(entry.path);
  }
  if (found.empty()) return MakeError(missing);
  std::sort(found.begin(), found.end());
  return found;
}

bool EndsWithSeparator(std::u16string_view path) { return !path.empty() && IsSeparator(path.back()); }

// Where an entry goes when moved or copied to `to`: into it when it is a folder or written with a
// trailing separator (error 76 when that folder is missing), else to `to` itself.
Result<fs::path> TargetFor(const fs::path& from, const fs::path& to, bool folder_meant) {
  std::error_code ec;
  if (fs::is_directory(to, ec)) return to / from.filename();
  if (folder_meant) return MakeError(err::kPathNotFound);
  return to;
}

bool IsReadOnly(const fs::path& path) {
  std::error_code ec;
  return (fs::status(path, ec).permissions() & fs::perms::owner_write) == fs::perms::none;
}

fs::path TempFolder() {
  std::error_code ec;
  fs::path temp = fs::temp_directory_path(ec);
  return ec ? fs::path("/tmp") : temp;
}

// A drive designation: a letter, "C:" with or without a path, or a rooted path.
bool NamesDrive(std::u16string_view wanted) {
  if (wanted.size() == 1 && IsLetter(wanted[0])) return true;
  return HasDrive(wanted) || (!wanted.empty() && IsSeparator(wanted[0]));
}

}  // namespace

// ---- Paths ----

fs::path NativePath(std::u16string_view script_path) {
  std::u16string text(script_path);
  std::replace(text.begin(), text.end(), u'\\', u'/');
  if (HasDrive(text)) {
    text.erase(0, 2);
    if (text.empty() || text[0] != u'/') text.insert(0, 1, u'/');
  }
  const fs::path path(text::Utf16ToUtf8(text));
  std::error_code ec;
  if (path.empty() || fs::exists(fs::symlink_status(path, ec))) return path;
  // Folder by folder, a name missing as written is looked for in any case.
  fs::path resolved = path.root_path();
  bool lost = false;
  for (const fs::path& part : path.relative_path()) {
    fs::path next = resolved / part;
    if (!lost && !part.empty() && part != "." && part != ".." && !fs::exists(fs::symlink_status(next, ec))) {
      const std::u16string wanted = text::Utf8ToUtf16(part.string());
      lost = true;
      if (auto entries = ListFolder(resolved.empty() ? fs::path(".") : resolved)) {
        auto found = std::find_if(entries->begin(), entries->end(), [&](const FolderEntry& entry) {
          return text::EqualsIgnoringCase(NameOf(entry.path), wanted);
        });
        if (found != entries->end()) {
          next = resolved / found->path.filename();
          lost = false;
        }
      }
    }
    resolved = std::move(next);
  }
  return resolved;
}

std::u16string ScriptPath(const fs::path& path) { return text::Utf8ToUtf16(path.string()); }

fs::path FullPath(const fs::path& path) {
  std::error_code ec;
  fs::path full = (path.is_absolute() ? path : fs::current_path(ec) / path).lexically_normal();
  std::string text = full.string();
  while (text.size() > 1 && text.back() == '/') text.pop_back();
  return text;
}

ScriptError FileError(const std::error_code& error, int32_t missing) {
  const std::errc code = static_cast<std::errc>(error.value());
  if (error.category() != std::generic_category() && error.category() != std::system_category())
    return MakeError(err::kPathFileAccess);
  switch (code) {
    case std::errc::no_such_file_or_directory: return MakeError(missing);
    case std::errc::not_a_directory: return MakeError(err::kPathNotFound);
    case std::errc::file_exists:
    case std::errc::directory_not_empty: return MakeError(err::kFileExists);
    case std::errc::permission_denied:
    case std::errc::operation_not_permitted:
    case std::errc::read_only_file_system:
    case std::errc::is_a_directory:
    case std::errc::device_or_resource_busy:
    case std::errc::text_file_busy: return MakeError(err::kPermissionDenied);
    case std::errc::no_space_on_device: return MakeError(err::kDiskFull);
    case std::errc::too_many_files_open:
    case std::errc::too_many_files_open_in_system: return MakeError(err::kTooManyFiles);
    default: return MakeError(err::kPathFileAccess);
  }
}

// ---- Operations ----

Status CopyOneFile(const fs::path& from, const fs::path& to, Overwrite overwrite) {
  std::error_code ec;
  if (fs::exists(to, ec) && fs::equivalent(from, to, ec)) return MakeError(err::kPermissionDenied);
  const fs::file_status status = fs::status(to, ec);
  if (fs::exists(status)) {
    if (overwrite == Overwrite::No) return MakeError(err::kFileExists);
    if (fs::is_directory(status)) return MakeError(err::kPermissionDenied);
  }
  fs::copy_file(from, to, fs::copy_options::overwrite_existing, ec);
  if (ec) return FileError(ec, err::kPathNotFound);
  return Ok();
}

Status CopyTree(const fs::path& from, const fs::path& to, Overwrite overwrite) {
  const fs::path source = FullPath(from);
  const fs::path target = FullPath(to);
  // A folder copied into itself would never end.
  if (target == source || target.string().starts_with(source.string() + "/")) return MakeError(err::kPermissionDenied);
  std::error_code ec;
  fs::create_directories(target, ec);
  if (ec) return FileError(ec, err::kPathNotFound);
  VBS_TRY_ASSIGN(auto entries, ListFolder(source));
  for (const FolderEntry& entry : entries) {
    const fs::path inside = target / entry.path.filename();
    if (entry.is_link) {
      if (fs::exists(fs::symlink_status(inside, ec))) {
        if (overwrite == Overwrite::No) return MakeError(err::kFileExists);
        fs::remove(inside, ec);
      }
      fs::copy_symlink(entry.path, inside, ec);
      if (ec) return FileError(ec, err::kPathNotFound);
    } else if (entry.is_folder) {
      VBS_TRY(CopyTree(entry.path, inside, overwrite));
    } else {
      VBS_TRY(CopyOneFile(entry.path, inside, overwrite));
    }
  }
  return Ok();
}

Status MoveEntry(const fs::path& from, const fs::path& to) {
  std::error_code ec;
  if (fs::exists(fs::symlink_status(to, ec))) return MakeError(err::kFileExists);
  fs::rename(from, to, ec);
  if (ec == std::errc::cross_device_link) {
    if (fs::is_directory(from, ec))
      VBS_TRY(CopyTree(from, to, Overwrite::No));
    else
      VBS_TRY(CopyOneFile(from, to, Overwrite::No));
    fs::remove_all(from, ec);
  }
  if (ec) return FileError(ec, err::kPathNotFound);
  return Ok();
}

Status DeleteOneFile(const fs::path& path, Force force) {
  if (force == Force::No && IsReadOnly(path)) return MakeError(err::kPermissionDenied);
  std::error_code ec;
  fs::remove(path, ec);
  if (ec) return FileError(ec, err::kFileNotFound);
  return Ok();
}

// Whether a folder holds a read-only file at any depth, which DeleteFolder without Force refuses.
Result<bool> HoldsReadOnlyFile(const fs::path& folder) {
  VBS_TRY_ASSIGN(auto entries, ListFolder(folder));
  for (const FolderEntry& entry : entries) {
    if (entry.is_link) continue;
    auto inside = entry.is_folder ? HoldsReadOnlyFile(entry.path) : Result<bool>(IsReadOnly(entry.path));
    if (!inside || *inside) return inside;
  }
  return false;
}

Status DeleteTree(const fs::path& path, Force force) {
  if (force == Force::No) {
    VBS_TRY_ASSIGN(auto read_only, HoldsReadOnlyFile(path));
    if (read_only) return MakeError(err::kPermissionDenied);
  }
  std::error_code ec;
  fs::remove_all(path, ec);
  if (ec) return FileError(ec, err::kPathNotFound);
  return Ok();
}

Result<std::vector<FolderEntry>> ListFolder(const fs::path& folder) {
  std::error_code ec;
  std::vector<FolderEntry> entries;
  for (fs::directory_iterator it(folder, ec), end; !ec && it != end; it.increment(ec)) {
    std::error_code ignored;
    entries.push_back(FolderEntry{it->path(), it->is_directory(ignored), it->is_symlink(ignored)});
  }
  if (ec) return FileError(ec, err::kPathNotFound);
  return entries;
}

// ---- FileSystemObject ----

FileSystemObject::FileSystemObject(const Locale& locale, FilePolicyRef policy)
    : HostObject(locale), m_random(std::random_device{}()), m_policy(std::move(policy)) {}

std::span<const FileSystemObject::Member> FileSystemObject::Members() {
  using F = FileSystemObject;
  static const Member kMembers[] = {
      {"BuildPath", 2, 2, &F::BuildPath, nullptr,
       "Path, Name: the path with the name appended, with one separator between"},
      {"CopyFile", 2, 3, &F::CopyFile, nullptr,
       "Source, Destination[, Overwrite = True]: copies files; wildcards allowed"},
      {"CopyFolder", 2, 3, &F::CopyFolder, nullptr,
       "Source, Destination[, Overwrite = True]: copies folders with their content"},
      {"CreateFolder", 1, 1, &F::CreateFolder, nullptr,
       "Path: creates the folder and returns it; error 58 when it exists"},
      {"CreateTextFile", 1, 3, &F::CreateTextFile, nullptr,
       "FileName[, Overwrite = True, Unicode = False]: a TextStream to write"},
      {"DeleteFile", 1, 2, &F::DeleteFile, nullptr, "FileSpec[, Force = False]: deletes files; wildcards allowed"},
      {"DeleteFolder", 1, 2, &F::DeleteFolder, nullptr,
       "FolderSpec[, Force = False]: deletes folders with their content"},
      {"DriveExists", 1, 1, &F::DriveExists, nullptr,
       "DriveSpec: whether the drive exists (every letter names the root)"},
      {"Drives", 0, 0, &F::Drives, nullptr, "the drives: the root alone"},
      {"FileExists", 1, 1, &F::FileExists, nullptr, "FileSpec: whether the file exists"},
      {"FolderExists", 1, 1, &F::FolderExists, nullptr, "FolderSpec: whether the folder exists"},
      {"GetAbsolutePathName", 1, 1, &F::GetAbsolutePathName, nullptr, "Path: the full native path"},
      {"GetBaseName", 1, 1, &F::GetBaseName, nullptr, "Path: the last name without its extension"},
      {"GetDrive", 1, 1, &F::GetDrive, nullptr, "DriveSpec: the Drive"},
      {"GetDriveName", 1, 1, &F::GetDriveName, nullptr, "Path: the drive part (\"C:\"), or \"\""},
      {"GetExtensionName", 1, 1, &F::GetExtensionName, nullptr,
       "Path: the extension of the last name, without the dot"},
      {"GetFile", 1, 1, &F::GetFile, nullptr, "FilePath: the File; error 53 when missing"},
      {"GetFileName", 1, 1, &F::GetFileName, nullptr, "Path: the last name of the path"},
      {"GetFolder", 1, 1, &F::GetFolder, nullptr, "FolderPath: the Folder; error 76 when missing"},
      {"GetParentFolderName", 1, 1, &F::GetParentFolderName, nullptr, "Path: the path without its last name"},
      {"GetSpecialFolder", 1, 1, &F::GetSpecialFolder, nullptr, "FolderSpec: 2 the temporary folder; 0 and 1 the root"},
      {"GetTempName", 0, 0, &F::GetTempName, nullptr, "a random file name, radXXXXX.tmp"},
      {"MoveFile", 2, 2, &F::MoveFile, nullptr, "Source, Destination: moves files; wildcards allowed"},
      {"MoveFolder", 2, 2, &F::MoveFolder, nullptr, "Source, Destination: moves folders"},
      {"OpenTextFile", 1, 4, &F::OpenTextFile, nullptr,
       "FileName[, IOMode = 1, Create = False, Format = 0]: a TextStream; IOMode 1 read, 2 write, 8 append"},
  };
  return kMembers;
}

Result<Variant> FileSystemObject::BuildPath(CallArgs& args) {
  VBS_TRY_ASSIGN(auto path, args.String(0));
  VBS_TRY_ASSIGN(auto name, args.String(1));
  if (path.empty() || (path.size() == 2 && HasDrive(path))) return Variant::String(path + name);
  std::u16string_view rest = name;
  if (EndsWithSeparator(path)) {
    while (!rest.empty() && IsSeparator(rest[0])) rest.remove_prefix(1);
    return Variant::String(path + std::u16string(rest));
  }
  if (!rest.empty() && IsSeparator(rest[0])) return Variant::String(path + name);
  const char16_t separator =
      path.find(u'/') != std::u16string::npos && path.find(u'\\') == std::u16string::npos ? u'/' : u'\\';
  return Variant::String(path + separator + name);
}

Result<Variant> FileSystemObject::CopyFile(CallArgs& args) {
  VBS_TRY_ASSIGN(auto from, args.String(0));
  VBS_TRY_ASSIGN(auto to, args.String(1));
  VBS_TRY_ASSIGN(auto overwrite, args.Boolean(2, true));
  const fs::path source = NativePath(from);
  VBS_TRY_ASSIGN(auto sources, Matching(source, EntryKind::File, err::kFileNotFound));
  const fs::path destination = NativePath(to);
  const bool into_folder = HasWildcards(source) || EndsWithSeparator(to);
  for (const fs::path& one : sources) {
    VBS_TRY_ASSIGN(auto target, TargetFor(one, destination, into_folder));
    VBS_TRY(CheckAccess(m_policy.get(), FileAccess::Read, one, "CopyFile"));
    VBS_TRY(CheckAccess(m_policy.get(), FileAccess::Write, target, "CopyFile"));
    VBS_TRY(CopyOneFile(one, target, overwrite ? Overwrite::Yes : Overwrite::No));
  }
  return Variant();
}

Result<Variant> FileSystemObject::CopyFolder(CallArgs& args) {
  VBS_TRY_ASSIGN(auto from, args.String(0));
  VBS_TRY_ASSIGN(auto to, args.String(1));
  VBS_TRY_ASSIGN(auto overwrite, args.Boolean(2, true));
  const fs::path source = NativePath(from);
  VBS_TRY_ASSIGN(auto sources, Matching(source, EntryKind::Folder, err::kPathNotFound));
  const fs::path destination = NativePath(to);
  const bool into_folder = HasWildcards(source) || EndsWithSeparator(to);
  for (const fs::path& one : sources) {
    fs::path target = destination;
    if (into_folder) {
      std::error_code ec;
      if (!fs::is_directory(destination, ec)) return MakeError(err::kPathNotFound);
      target = destination / one.filename();
    }
    VBS_TRY(CheckAccess(m_policy.get(), FileAccess::Read, one, "CopyFolder"));
    VBS_TRY(CheckAccess(m_policy.get(), FileAccess::Write, target, "CopyFolder"));
    VBS_TRY(CopyTree(one, target, overwrite ? Overwrite::Yes : Overwrite::No));
  }
  return Variant();
}

Result<Variant> FileSystemObject::CreateFolder(CallArgs& args) {
  VBS_TRY_ASSIGN(auto name, args.String(0));
  const fs::path path = NativePath(name);
  VBS_TRY(CheckAccess(m_policy.get(), FileAccess::Write, path, "CreateFolder"));
  std::error_code ec;
  if (fs::exists(fs::symlink_status(path, ec))) return MakeError(err::kFileExists);
  fs::create_directory(path, ec);
  if (ec) return FileError(ec, err::kPathNotFound);
  return Variant::Object(MakeRef<FolderObject>(locale(), FullPath(path), m_policy));
}

Result<Variant> FileSystemObject::CreateTextFile(CallArgs& args) {
  VBS_TRY_ASSIGN(auto name, args.String(0));
  VBS_TRY_ASSIGN(auto overwrite, args.Boolean(1, true));
  VBS_TRY_ASSIGN(auto unicode, args.Boolean(2, false));
  const fs::path path = NativePath(name);
  VBS_TRY(CheckAccess(m_policy.get(), FileAccess::Write, path, "CreateTextFile"));
  VBS_TRY_ASSIGN(auto stream,
                 TextStream::Create(locale(), path, overwrite, unicode ? TextFormat::Unicode : TextFormat::Ansi));
  return Variant::Object(stream);
}

Result<Variant> FileSystemObject::DeleteFile(CallArgs& args) {
  VBS_TRY_ASSIGN(auto wanted, args.String(0));
  VBS_TRY_ASSIGN(auto force, args.Boolean(1, false));
  VBS_TRY_ASSIGN(auto files, Matching(NativePath(wanted), EntryKind::File, err::kFileNotFound));
  for (const fs::path& file : files) {
    VBS_TRY(CheckAccess(m_policy.get(), FileAccess::Delete, file, "DeleteFile"));
    VBS_TRY(DeleteOneFile(file, force ? Force::Yes : Force::No));
  }
  return Variant();
}

Result<Variant> FileSystemObject::DeleteFolder(CallArgs& args) {
  VBS_TRY_ASSIGN(auto wanted, args.String(0));
  VBS_TRY_ASSIGN(auto force, args.Boolean(1, false));
  VBS_TRY_ASSIGN(auto folders, Matching(NativePath(wanted), EntryKind::Folder, err::kPathNotFound));
  for (const fs::path& folder : folders) {
    VBS_TRY(CheckAccess(m_policy.get(), FileAccess::Delete, folder, "DeleteFolder"));
    VBS_TRY(DeleteTree(folder, force ? Force::Yes : Force::No));
  }
  return Variant();
}

Result<Variant> FileSystemObject::DriveExists(CallArgs& args) {
  VBS_TRY_ASSIGN(auto wanted, args.String(0));
  return Variant::Boolean(NamesDrive(wanted));
}

Result<Variant> FileSystemObject::Drives(CallArgs&) { return Variant::Object(MakeRef<DriveList>(locale(), m_policy)); }

Result<Variant> FileSystemObject::FileExists(CallArgs& args) {
  VBS_TRY_ASSIGN(auto wanted, args.String(0));
  std::error_code ec;
  const fs::file_status status = fs::status(NativePath(wanted), ec);
  return Variant::Boolean(fs::exists(status) && !fs::is_directory(status));
}

Result<Variant> FileSystemObject::FolderExists(CallArgs& args) {
  VBS_TRY_ASSIGN(auto wanted, args.String(0));
  std::error_code ec;
  return Variant::Boolean(fs::is_directory(NativePath(wanted), ec));
}

Result<Variant> FileSystemObject::GetAbsolutePathName(CallArgs& args) {
  VBS_TRY_ASSIGN(auto path, args.String(0));
  return Variant::String(ScriptPath(FullPath(NativePath(path))));
}

Result<Variant> FileSystemObject::GetBaseName(CallArgs& args) {
  VBS_TRY_ASSIGN(auto path, args.String(0));
  const std::u16string_view name = FileNameOf(path);
  return Variant::String(name.substr(0, name.rfind(u'.')));
}

Result<Variant> FileSystemObject::GetDrive(CallArgs& args) {
  VBS_TRY_ASSIGN(auto wanted, args.String(0));
  if (!NamesDrive(wanted)) return MakeError(err::kDeviceUnavailable);
  return Variant::Object(MakeRef<DriveObject>(locale(), m_policy));
}

Result<Variant> FileSystemObject::GetDriveName(CallArgs& args) {
  VBS_TRY_ASSIGN(auto path, args.String(0));
  if (HasDrive(path)) return Variant::String(path.substr(0, 2));
  if (RootLength(path) > 2)
    return Variant::String(TrimTrailingSeparators(std::u16string_view(path).substr(0, RootLength(path))));
  return Variant::String(u"");
}

Result<Variant> FileSystemObject::GetExtensionName(CallArgs& args) {
  VBS_TRY_ASSIGN(auto path, args.String(0));
  const std::u16string_view name = FileNameOf(path);
  const size_t dot = name.rfind(u'.');
  return Variant::String(dot == std::u16string_view::npos ? std::u16string_view() : name.substr(dot + 1));
}

Result<Variant> FileSystemObject::GetFile(CallArgs& args) {
  VBS_TRY_ASSIGN(auto path, args.String(0));
  VBS_TRY_ASSIGN(auto files, Matching(NativePath(path), EntryKind::File, err::kFileNotFound));
  if (files.size() != 1) return MakeError(err::kFileNotFound);
  return Variant::Object(MakeRef<FileObject>(locale(), FullPath(files.front()), m_policy));
}

Result<Variant> FileSystemObject::GetFileName(CallArgs& args) {
  VBS_TRY_ASSIGN(auto path, args.String(0));
  return Variant::String(FileNameOf(path));
}

Result<Variant> FileSystemObject::GetFolder(CallArgs& args) {
  VBS_TRY_ASSIGN(auto path, args.String(0));
  std::error_code ec;
  const fs::path folder = NativePath(path);
  if (!fs::is_directory(folder, ec)) return MakeError(err::kPathNotFound);
  return Variant::Object(MakeRef<FolderObject>(locale(), FullPath(folder), m_policy));
}

Result<Variant> FileSystemObject::GetParentFolderName(CallArgs& args) {
  VBS_TRY_ASSIGN(auto path, args.String(0));
  return Variant::String(ParentFolderOf(path));
}

Result<Variant> FileSystemObject::GetSpecialFolder(CallArgs& args) {
  VBS_TRY_ASSIGN(auto which, args.Long(0));
  if (which < 0 || which > 2) return MakeError(err::kInvalidCall);
  return Variant::Object(
      MakeRef<FolderObject>(locale(), which == 2 ? FullPath(TempFolder()) : fs::path("/"), m_policy));
}

Result<Variant> FileSystemObject::GetTempName(CallArgs&) {
  static constexpr char16_t kHex[] = u"0123456789ABCDEF";
  std::u16string name = u"rad";
  uint32_t bits = m_random();
  for (int i = 0; i < 5; ++i, bits >>= 4) name += kHex[bits & 0xF];
  return Variant::String(name + u".tmp");
}

Result<Variant> FileSystemObject::MoveFile(CallArgs& args) {
  VBS_TRY_ASSIGN(auto from, args.String(0));
  VBS_TRY_ASSIGN(auto to, args.String(1));
  const fs::path source = NativePath(from);
  VBS_TRY_ASSIGN(auto sources, Matching(source, EntryKind::File, err::kFileNotFound));
  const bool into_folder = HasWildcards(source) || EndsWithSeparator(to);
  for (const fs::path& one : sources) {
    VBS_TRY_ASSIGN(auto target, TargetFor(one, NativePath(to), into_folder));
    VBS_TRY(CheckAccess(m_policy.get(), FileAccess::Delete, one, "MoveFile"));
    VBS_TRY(CheckAccess(m_policy.get(), FileAccess::Write, target, "MoveFile"));
    VBS_TRY(MoveEntry(one, target));
  }
  return Variant();
}

Result<Variant> FileSystemObject::MoveFolder(CallArgs& args) {
  VBS_TRY_ASSIGN(auto from, args.String(0));
  VBS_TRY_ASSIGN(auto to, args.String(1));
  const fs::path source = NativePath(from);
  VBS_TRY_ASSIGN(auto sources, Matching(source, EntryKind::Folder, err::kPathNotFound));
  const bool into_folder = HasWildcards(source) || EndsWithSeparator(to);
  for (const fs::path& one : sources) {
    fs::path target = NativePath(to);
    if (into_folder) {
      std::error_code ec;
      if (!fs::is_directory(target, ec)) return MakeError(err::kPathNotFound);
      target /= one.filename();
    }
    VBS_TRY(CheckAccess(m_policy.get(), FileAccess::Delete, one, "MoveFolder"));
    VBS_TRY(CheckAccess(m_policy.get(), FileAccess::Write, target, "MoveFolder"));
    VBS_TRY(MoveEntry(one, target));
  }
  return Variant();
}

Result<Variant> FileSystemObject::OpenTextFile(CallArgs& args) {
  VBS_TRY_ASSIGN(auto name, args.String(0));
  VBS_TRY_ASSIGN(auto mode, args.Long(1, 1));
  if (mode != 1 && mode != 2 && mode != 8) return MakeError(err::kInvalidCall);
  VBS_TRY_ASSIGN(auto create, args.Boolean(2, false));
  VBS_TRY_ASSIGN(auto format, FormatArgument(args, 3));
  const fs::path path = NativePath(name);
  VBS_TRY(CheckTextStreamAccess(m_policy.get(), path, static_cast<IoMode>(mode), create, "OpenTextFile"));
  VBS_TRY_ASSIGN(auto stream, TextStream::Open(locale(), path, static_cast<IoMode>(mode), create, format));
  return Variant::Object(stream);
}

}  // namespace vbs
