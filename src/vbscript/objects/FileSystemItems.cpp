// File, Folder, their collections and the drive: the objects FileSystemObject hands out.

#include <sys/stat.h>

#include <algorithm>
#include <ctime>

#include "text/AsciiCase.h"
#include "text/Utf.h"
#include "vbscript/objects/FileSystem.h"
#include "vbscript/objects/TextStream.h"
#include "vbscript/runtime/Interpreter.h"
#include "vbscript/value/DateTime.h"

namespace vbs {

namespace fs = std::filesystem;

namespace {

constexpr int32_t kAttributeReadOnly = 1;
constexpr int32_t kAttributeHidden = 2;
constexpr int32_t kAttributeDirectory = 16;
constexpr int32_t kAttributeArchive = 32;

std::u16string NameOf(const fs::path& path) { return text::Utf8ToUtf16(path.filename().string()); }

enum class Stamp { Created, Accessed, Modified };

// A time of the file as a local Date. Linux keeps no creation time everywhere: the earlier of the
// last change of content and of status stands for it.
Result<Variant> DateOf(const fs::path& path, Stamp stamp, int32_t missing) {
  struct stat info {};
  if (::stat(path.c_str(), &info) != 0) return FileError(std::error_code(errno, std::generic_category()), missing);
  std::time_t when = info.st_mtime;
  if (stamp == Stamp::Accessed) when = info.st_atime;
  if (stamp == Stamp::Created) when = std::min(info.st_mtime, info.st_ctime);
  std::tm local{};
  localtime_r(&when, &local);
  const auto day = SerialFromDate(local.tm_year + 1900, local.tm_mon + 1, local.tm_mday);
  const auto time = SerialFromTime(local.tm_hour, local.tm_min, std::min(local.tm_sec, 59));
  if (!day || !time) return MakeError(err::kOverflow);
  return Variant::Date(CombineDateAndTime(*day, *time));
}

// Sizes that fit a Long are Longs, larger ones Doubles, as Windows gives them.
Variant SizeValue(uintmax_t size) {
  if (size <= static_cast<uintmax_t>(INT32_MAX)) return Variant::Long(static_cast<int32_t>(size));
  return Variant::Double(static_cast<double>(size));
}

int32_t AttributesOf(const fs::path& path, bool folder) {
  std::error_code ec;
  int32_t attributes = folder ? kAttributeDirectory : kAttributeArchive;
  if ((fs::status(path, ec).permissions() & fs::perms::owner_write) == fs::perms::none)
    attributes |= kAttributeReadOnly;
  if (path.filename().string().starts_with('.')) attributes |= kAttributeHidden;
  return attributes;
}

// Renames in place: the new name must be a name, not a path.
Result<fs::path> Rename(const fs::path& path, const Variant& value, const Locale& locale,
                        const FileAccessPolicy* policy) {
  VBS_TRY_ASSIGN(auto name, value.to_string(locale));
  const std::u16string_view text = name.view();
  if (text.empty() || text.find_first_of(u"\\/") != std::u16string_view::npos) return MakeError(err::kBadFileName);
  const fs::path target = path.parent_path() / fs::path(text::Utf16ToUtf8(text));
  VBS_TRY(CheckAccess(policy, FileAccess::Delete, path, "Name"));
  VBS_TRY(CheckAccess(policy, FileAccess::Write, target, "Name"));
  VBS_TRY(MoveEntry(path, target));
  return target;
}

// For Each over values taken when the loop starts.
class SnapshotEnumerator final : public Enumerator {
 public:
  explicit SnapshotEnumerator(std::vector<Variant> values) : m_values(std::move(values)) {}
  Result<bool> Next(Variant& out) override {
    if (m_next >= m_values.size()) return false;
    out = m_values[m_next++];
    return true;
  }

 private:
  std::vector<Variant> m_values;
  size_t m_next = 0;
};

// The bytes of the files in a folder at any depth; links are not followed.
Result<uintmax_t> TreeSize(const fs::path& folder) {
  VBS_TRY_ASSIGN(auto entries, ListFolder(folder));
  uintmax_t total = 0;
  for (const FolderEntry& entry : entries) {
    if (entry.is_link) continue;
    if (entry.is_folder) {
      auto inside = TreeSize(entry.path);
      if (!inside) return inside;
      total += *inside;
    } else {
      std::error_code ec;
      const uintmax_t size = fs::file_size(entry.path, ec);
      if (!ec) total += size;
    }
  }
  return total;
}

Variant FolderValue(const Locale& locale, const fs::path& path, const FilePolicyRef& policy) {
  return Variant::Object(MakeRef<FolderObject>(locale, path, policy));
}

}  // namespace

// ---- File ----

FileObject::FileObject(const Locale& locale, fs::path path, FilePolicyRef policy)
    : HostObject(locale), m_path(std::move(path)), m_policy(std::move(policy)) {}

std::span<const FileObject::Member> FileObject::Members() {
  using F = FileObject;
  static const Member kMembers[] = {
      {"Path", 0, 0, &F::Path, nullptr, "the full path", true},
      {"Attributes", 0, 0, &F::Attributes, nullptr, "1 read-only, 2 hidden (a name starting with a dot), 32 archive"},
      {"DateCreated", 0, 0, &F::DateCreated, nullptr, "when the file was made, as far as Linux knows"},
      {"DateLastAccessed", 0, 0, &F::DateLastAccessed, nullptr, "when the file was last read"},
      {"DateLastModified", 0, 0, &F::DateLastModified, nullptr, "when the file was last written"},
      {"Drive", 0, 0, &F::Drive, nullptr, "the drive: the root"},
      {"Name", 0, 0, &F::GetName, &F::PutName, "the file's name; assigning renames the file"},
      {"ParentFolder", 0, 0, &F::ParentFolder, nullptr, "the folder holding the file"},
      {"ShortName", 0, 0, &F::GetName, nullptr, "the name (there are no short names)"},
      {"ShortPath", 0, 0, &F::Path, nullptr, "the path (there are no short names)"},
      {"Size", 0, 0, &F::Size, nullptr, "the size in bytes"},
      {"Type", 0, 0, &F::Type, nullptr, "a description: the extension and \"File\""},
      {"Copy", 1, 2, &F::Copy, nullptr, "Destination[, Overwrite = True]: copies the file"},
      {"Delete", 0, 1, &F::Delete, nullptr, "[Force = False]: deletes the file"},
      {"Move", 1, 1, &F::Move, nullptr, "Destination: moves the file"},
      {"OpenAsTextStream", 0, 2, &F::OpenAsTextStream, nullptr, "[IOMode = 1, Format = 0]: a TextStream on the file"},
  };
  return kMembers;
}

Result<Variant> FileObject::Attributes(CallArgs&) { return Variant::Long(AttributesOf(m_path, false)); }

Result<Variant> FileObject::DateCreated(CallArgs&) { return DateOf(m_path, Stamp::Created, err::kFileNotFound); }

Result<Variant> FileObject::DateLastAccessed(CallArgs&) { return DateOf(m_path, Stamp::Accessed, err::kFileNotFound); }

Result<Variant> FileObject::DateLastModified(CallArgs&) { return DateOf(m_path, Stamp::Modified, err::kFileNotFound); }

Result<Variant> FileObject::Drive(CallArgs&) { return Variant::Object(MakeRef<DriveObject>(locale(), m_policy)); }

Result<Variant> FileObject::GetName(CallArgs&) { return Variant::String(NameOf(m_path)); }

Result<Variant> FileObject::PutName(CallArgs&, Variant value) {
  VBS_TRY_ASSIGN(auto renamed, Rename(m_path, value, locale(), m_policy.get()));
  m_path = std::move(renamed);
  return Variant();
}

Result<Variant> FileObject::ParentFolder(CallArgs&) { return FolderValue(locale(), m_path.parent_path(), m_policy); }

Result<Variant> FileObject::Path(CallArgs&) { return Variant::String(ScriptPath(m_path)); }

Result<Variant> FileObject::Size(CallArgs&) {
  std::error_code ec;
  const uintmax_t size = fs::file_size(m_path, ec);
  if (ec) return FileError(ec, err::kFileNotFound);
  return SizeValue(size);
}

Result<Variant> FileObject::Type(CallArgs&) {
  std::u16string extension = text::Utf8ToUtf16(m_path.extension().string());
  if (extension.empty()) return Variant::String(u"File");
  extension.erase(0, 1);
  for (char16_t& c : extension) c = text::UpperAscii(c);
  return Variant::String(extension + u" File");
}

Result<Variant> FileObject::Copy(CallArgs& args) {
  VBS_TRY_ASSIGN(auto to, args.String(0));
  VBS_TRY_ASSIGN(auto overwrite, args.Boolean(1, true));
  fs::path target = NativePath(to);
  std::error_code ec;
  if (fs::is_directory(target, ec)) target /= m_path.filename();
  VBS_TRY(CheckAccess(m_policy.get(), FileAccess::Read, m_path, "Copy"));
  VBS_TRY(CheckAccess(m_policy.get(), FileAccess::Write, target, "Copy"));
  VBS_TRY(CopyOneFile(m_path, target, overwrite ? Overwrite::Yes : Overwrite::No));
  return Variant();
}

Result<Variant> FileObject::Delete(CallArgs& args) {
  VBS_TRY_ASSIGN(auto force, args.Boolean(0, false));
  VBS_TRY(CheckAccess(m_policy.get(), FileAccess::Delete, m_path, "Delete"));
  VBS_TRY(DeleteOneFile(m_path, force ? Force::Yes : Force::No));
  return Variant();
}

Result<Variant> FileObject::Move(CallArgs& args) {
  VBS_TRY_ASSIGN(auto to, args.String(0));
  fs::path target = NativePath(to);
  std::error_code ec;
  if (fs::is_directory(target, ec)) target /= m_path.filename();
  VBS_TRY(CheckAccess(m_policy.get(), FileAccess::Delete, m_path, "Move"));
  VBS_TRY(CheckAccess(m_policy.get(), FileAccess::Write, target, "Move"));
  VBS_TRY(MoveEntry(m_path, target));
  m_path = FullPath(target);
  return Variant();
}

Result<Variant> FileObject::OpenAsTextStream(CallArgs& args) {
  VBS_TRY_ASSIGN(auto mode, args.Long(0, 1));
  if (mode != 1 && mode != 2 && mode != 8) return MakeError(err::kInvalidCall);
  VBS_TRY_ASSIGN(auto format, FormatArgument(args, 1));
  VBS_TRY(CheckTextStreamAccess(m_policy.get(), m_path, static_cast<IoMode>(mode), false, "OpenAsTextStream"));
  VBS_TRY_ASSIGN(auto stream, TextStream::Open(locale(), m_path, static_cast<IoMode>(mode), false, format));
  return Variant::Object(stream);
}

// ---- Folder ----

FolderObject::FolderObject(const Locale& locale, fs::path path, FilePolicyRef policy)
    : HostObject(locale), m_path(std::move(path)), m_policy(std::move(policy)) {}

std::span<const FolderObject::Member> FolderObject::Members() {
  using F = FolderObject;
  static const Member kMembers[] = {
      {"Path", 0, 0, &F::Path, nullptr, "the full path", true},
      {"Attributes", 0, 0, &F::Attributes, nullptr, "16 folder, plus 1 read-only, 2 hidden"},
      {"DateCreated", 0, 0, &F::DateCreated, nullptr, "when the folder was made, as far as Linux knows"},
      {"DateLastAccessed", 0, 0, &F::DateLastAccessed, nullptr, "when the folder was last read"},
      {"DateLastModified", 0, 0, &F::DateLastModified, nullptr, "when the folder's list last changed"},
      {"Drive", 0, 0, &F::Drive, nullptr, "the drive: the root"},
      {"Files", 0, 0, &F::Files, nullptr, "the files in the folder"},
      {"IsRootFolder", 0, 0, &F::IsRootFolder, nullptr, "whether this is the root"},
      {"Name", 0, 0, &F::GetName, &F::PutName, "the folder's name; assigning renames the folder"},
      {"ParentFolder", 0, 0, &F::ParentFolder, nullptr, "the folder holding this one; Nothing for the root"},
      {"ShortName", 0, 0, &F::GetName, nullptr, "the name (there are no short names)"},
      {"ShortPath", 0, 0, &F::Path, nullptr, "the path (there are no short names)"},
      {"Size", 0, 0, &F::Size, nullptr, "the bytes of all the files inside, at any depth"},
      {"SubFolders", 0, 0, &F::SubFolders, nullptr, "the folders in the folder"},
      {"Type", 0, 0, &F::Type, nullptr, "\"File folder\""},
      {"Copy", 1, 2, &F::Copy, nullptr, "Destination[, Overwrite = True]: copies the folder with its content"},
      {"Delete", 0, 1, &F::Delete, nullptr, "[Force = False]: deletes the folder with its content"},
      {"Move", 1, 1, &F::Move, nullptr, "Destination: moves the folder"},
      {"CreateTextFile", 1, 3, &F::CreateTextFile, nullptr,
       "FileName[, Overwrite = True, Unicode = False]: a TextStream writing a new file in the folder"},
  };
  return kMembers;
}

Result<Variant> FolderObject::Attributes(CallArgs&) { return Variant::Long(AttributesOf(m_path, true)); }

Result<Variant> FolderObject::DateCreated(CallArgs&) { return DateOf(m_path, Stamp::Created, err::kPathNotFound); }

Result<Variant> FolderObject::DateLastAccessed(CallArgs&) {
  return DateOf(m_path, Stamp::Accessed, err::kPathNotFound);
}

Result<Variant> FolderObject::DateLastModified(CallArgs&) {
  return DateOf(m_path, Stamp::Modified, err::kPathNotFound);
}

Result<Variant> FolderObject::Drive(CallArgs&) { return Variant::Object(MakeRef<DriveObject>(locale(), m_policy)); }

Result<Variant> FolderObject::Files(CallArgs&) {
  return Variant::Object(MakeRef<FolderListing>(locale(), m_path, FolderListing::Kind::Files, m_policy));
}

Result<Variant> FolderObject::IsRootFolder(CallArgs&) { return Variant::Boolean(m_path == m_path.root_path()); }

Result<Variant> FolderObject::GetName(CallArgs&) { return Variant::String(NameOf(m_path)); }

Result<Variant> FolderObject::PutName(CallArgs&, Variant value) {
  VBS_TRY_ASSIGN(auto renamed, Rename(m_path, value, locale(), m_policy.get()));
  m_path = std::move(renamed);
  return Variant();
}

Result<Variant> FolderObject::ParentFolder(CallArgs&) {
  if (m_path == m_path.root_path()) return Variant::Nothing();
  return FolderValue(locale(), m_path.parent_path(), m_policy);
}

Result<Variant> FolderObject::Path(CallArgs&) { return Variant::String(ScriptPath(m_path)); }

Result<Variant> FolderObject::Size(CallArgs&) {
  VBS_TRY_ASSIGN(auto size, TreeSize(m_path));
  return SizeValue(size);
}

Result<Variant> FolderObject::SubFolders(CallArgs&) {
  return Variant::Object(MakeRef<FolderListing>(locale(), m_path, FolderListing::Kind::Folders, m_policy));
}

Result<Variant> FolderObject::Type(CallArgs&) { return Variant::String(u"File folder"); }

Result<Variant> FolderObject::Copy(CallArgs& args) {
  VBS_TRY_ASSIGN(auto to, args.String(0));
  VBS_TRY_ASSIGN(auto overwrite, args.Boolean(1, true));
  fs::path target = NativePath(to);
  if (!to.empty() && (to.back() == u'\\' || to.back() == u'/')) target /= m_path.filename();
  VBS_TRY(CheckAccess(m_policy.get(), FileAccess::Read, m_path, "Copy"));
  VBS_TRY(CheckAccess(m_policy.get(), FileAccess::Write, target, "Copy"));
  VBS_TRY(CopyTree(m_path, target, overwrite ? Overwrite::Yes : Overwrite::No));
  return Variant();
}

Result<Variant> FolderObject::Delete(CallArgs& args) {
  VBS_TRY_ASSIGN(auto force, args.Boolean(0, false));
  VBS_TRY(CheckAccess(m_policy.get(), FileAccess::Delete, m_path, "Delete"));
  VBS_TRY(DeleteTree(m_path, force ? Force::Yes : Force::No));
  return Variant();
}

Result<Variant> FolderObject::Move(CallArgs& args) {
  VBS_TRY_ASSIGN(auto to, args.String(0));
  fs::path target = NativePath(to);
  if (!to.empty() && (to.back() == u'\\' || to.back() == u'/')) target /= m_path.filename();
  VBS_TRY(CheckAccess(m_policy.get(), FileAccess::Delete, m_path, "Move"));
  VBS_TRY(CheckAccess(m_policy.get(), FileAccess::Write, target, "Move"));
  VBS_TRY(MoveEntry(m_path, target));
  m_path = FullPath(target);
  return Variant();
}

Result<Variant> FolderObject::CreateTextFile(CallArgs& args) {
  VBS_TRY_ASSIGN(auto name, args.String(0));
  VBS_TRY_ASSIGN(auto overwrite, args.Boolean(1, true));
  VBS_TRY_ASSIGN(auto unicode, args.Boolean(2, false));
  const bool rooted =
      !name.empty() && ((name)[0] == u'\\' || (name)[0] == u'/' || (name.size() >= 2 && (name)[1] == u':'));
  const fs::path file = NativePath(rooted ? name : ScriptPath(m_path) + u"/" + name);
  VBS_TRY(CheckAccess(m_policy.get(), FileAccess::Write, file, "CreateTextFile"));
  VBS_TRY_ASSIGN(auto stream,
                 TextStream::Create(locale(), file, overwrite, unicode ? TextFormat::Unicode : TextFormat::Ansi));
  return Variant::Object(stream);
}

// ---- Files and Folders ----

FolderListing::FolderListing(const Locale& locale, fs::path folder, Kind kind, FilePolicyRef policy)
    : HostObject(locale), m_folder(std::move(folder)), m_kind(kind), m_policy(std::move(policy)) {}

std::span<const FolderListing::Member> FolderListing::Members() {
  static const Member kMembers[] = {
      {"Item", 1, 1, &FolderListing::Item, nullptr, "Name: the file or folder of that name, in any case", true},
      {"Count", 0, 0, &FolderListing::Count, nullptr, "how many there are"},
      {"Add", 1, 1, &FolderListing::Add, nullptr, "Name: creates a subfolder (Folders only)"},
  };
  return kMembers;
}

Result<std::vector<Variant>> FolderListing::Entries() {
  VBS_TRY(CheckAccess(m_policy.get(), FileAccess::Read, m_folder, m_kind == Kind::Files ? "Files" : "SubFolders"));
  VBS_TRY_ASSIGN(auto entries, ListFolder(m_folder));
  std::vector<std::pair<std::u16string, fs::path>> found;
  for (const FolderEntry& entry : entries) {
    if (entry.is_folder != (m_kind == Kind::Folders)) continue;
    std::u16string key = NameOf(entry.path);
    for (char16_t& c : key) c = text::FoldCase(c);
    found.emplace_back(std::move(key), entry.path);
  }
  std::sort(found.begin(), found.end());
  std::vector<Variant> values;
  for (const auto& [key, path] : found) {
    if (m_kind == Kind::Files)
      values.push_back(Variant::Object(MakeRef<FileObject>(locale(), path, m_policy)));
    else
      values.push_back(FolderValue(locale(), path, m_policy));
  }
  return values;
}

Result<Ref<Enumerator>> FolderListing::Enumerate() {
  VBS_TRY_ASSIGN(auto values, Entries());
  return Ref<Enumerator>(MakeRef<SnapshotEnumerator>(std::move(values)));
}

Result<Variant> FolderListing::Count(CallArgs&) {
  VBS_TRY_ASSIGN(auto values, Entries());
  return Variant::Long(static_cast<int32_t>(values.size()));
}

Result<Variant> FolderListing::Item(CallArgs& args) {
  VBS_TRY_ASSIGN(auto name, args.String(0));
  VBS_TRY(CheckAccess(m_policy.get(), FileAccess::Read, m_folder, "Item"));
  VBS_TRY_ASSIGN(auto entries, ListFolder(m_folder));
  for (const FolderEntry& entry : entries) {
    if (entry.is_folder != (m_kind == Kind::Folders) || !text::EqualsIgnoringCase(NameOf(entry.path), name)) continue;
    if (m_kind == Kind::Files) return Variant::Object(MakeRef<FileObject>(locale(), entry.path, m_policy));
    return FolderValue(locale(), entry.path, m_policy);
  }
  return MakeError(m_kind == Kind::Files ? err::kFileNotFound : err::kPathNotFound);
}

Result<Variant> FolderListing::Add(CallArgs& args) {
  if (m_kind == Kind::Files) return MakeError(err::kNoMember);
  VBS_TRY_ASSIGN(auto name, args.String(0));
  if (name.empty() || name.find_first_of(u"\\/") != std::u16string::npos) return MakeError(err::kBadFileName);
  const fs::path folder = m_folder / fs::path(text::Utf16ToUtf8(name));
  VBS_TRY(CheckAccess(m_policy.get(), FileAccess::Write, folder, "Add"));
  std::error_code ec;
  if (fs::exists(fs::symlink_status(folder, ec))) return MakeError(err::kFileExists);
  fs::create_directory(folder, ec);
  if (ec) return FileError(ec, err::kPathNotFound);
  return FolderValue(locale(), folder, m_policy);
}

// ---- Drive ----

DriveObject::DriveObject(const Locale& locale, FilePolicyRef policy)
    : HostObject(locale), m_policy(std::move(policy)) {}

std::span<const DriveObject::Member> DriveObject::Members() {
  using F = DriveObject;
  static const Member kMembers[] = {
      {"Path", 0, 0, &F::Path, nullptr, "\"/\"", true},
      {"AvailableSpace", 0, 0, &F::AvailableSpace, nullptr, "bytes free for this user"},
      {"FreeSpace", 0, 0, &F::AvailableSpace, nullptr, "bytes free for this user"},
      {"TotalSize", 0, 0, &F::TotalSize, nullptr, "bytes in all"},
      {"DriveLetter", 0, 0, &F::DriveLetter, nullptr, "\"\": the root has no letter"},
      {"DriveType", 0, 0, &F::DriveType, nullptr, "2, a fixed disk"},
      {"FileSystem", 0, 0, &F::Empty, nullptr, "\"\""},
      {"IsReady", 0, 0, &F::IsReady, nullptr, "True"},
      {"RootFolder", 0, 0, &F::RootFolder, nullptr, "the root folder"},
      {"SerialNumber", 0, 0, &F::SerialNumber, nullptr, "0"},
      {"ShareName", 0, 0, &F::Empty, nullptr, "\"\""},
      {"VolumeName", 0, 0, &F::Empty, nullptr, "\"\""},
  };
  return kMembers;
}

Result<Variant> DriveObject::AvailableSpace(CallArgs&) {
  std::error_code ec;
  const fs::space_info space = fs::space("/", ec);
  if (ec) return FileError(ec, err::kPathNotFound);
  return Variant::Double(static_cast<double>(space.available));
}

Result<Variant> DriveObject::TotalSize(CallArgs&) {
  std::error_code ec;
  const fs::space_info space = fs::space("/", ec);
  if (ec) return FileError(ec, err::kPathNotFound);
  return Variant::Double(static_cast<double>(space.capacity));
}

Result<Variant> DriveObject::DriveLetter(CallArgs&) { return Variant::String(u""); }

Result<Variant> DriveObject::DriveType(CallArgs&) { return Variant::Long(2); }

Result<Variant> DriveObject::IsReady(CallArgs&) { return Variant::Boolean(true); }

Result<Variant> DriveObject::Path(CallArgs&) { return Variant::String(u"/"); }

Result<Variant> DriveObject::RootFolder(CallArgs&) { return FolderValue(locale(), "/", m_policy); }

Result<Variant> DriveObject::Empty(CallArgs&) { return Variant::String(u""); }

Result<Variant> DriveObject::SerialNumber(CallArgs&) { return Variant::Long(0); }

DriveList::DriveList(const Locale& locale, FilePolicyRef policy) : HostObject(locale), m_policy(std::move(policy)) {}

std::span<const DriveList::Member> DriveList::Members() {
  static const Member kMembers[] = {
      {"Item", 1, 1, &DriveList::Item, nullptr, "Key: the drive (any letter names the root)", true},
      {"Count", 0, 0, &DriveList::Count, nullptr, "1"},
  };
  return kMembers;
}

Result<Ref<Enumerator>> DriveList::Enumerate() {
  return Ref<Enumerator>(
      MakeRef<SnapshotEnumerator>(std::vector<Variant>{Variant::Object(MakeRef<DriveObject>(locale(), m_policy))}));
}

Result<Variant> DriveList::Count(CallArgs&) { return Variant::Long(1); }

Result<Variant> DriveList::Item(CallArgs&) { return Variant::Object(MakeRef<DriveObject>(locale(), m_policy)); }

}  // namespace vbs
