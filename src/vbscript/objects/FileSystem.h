#pragma once

// Scripting.FileSystemObject and the objects it hands out: File, Folder, the Files and SubFolders
// collections, Drive and Drives (TextStream has its own header).
//
// Paths. Scripts written on Windows name files with backslashes and in any case
// ("Script\Funzioni\x.ls"). Every path a script passes goes through NativePath: backslashes become
// slashes; a drive prefix ("C:") is dropped and the rest taken from the root ("C:\Dati\x.txt" is
// "/Dati/x.txt"), since Linux has no drives to honour and the one root stands for all of them; and a
// name missing with its exact case is looked up ignoring case, folder by folder, so a script opens
// the same relative files as on Windows. Paths the objects return (File.Path,
// GetAbsolutePathName) are native, with slashes; a script that appends "\name" to one still works,
// since the result comes back through NativePath. The functions on names alone (GetFileName,
// GetParentFolderName, BuildPath, ...) work on the text, accept either separator and keep the one
// the script used, as on Windows, where they do not touch the disk either. Names on disk are UTF-8.
//
// Errors are Windows' numbers: 53 file not found, 76 path not found, 70 permission denied,
// 58 file already exists, 61 disk full, 75 any other failure of the file system.
//
// Every object carries the host's FileAccessPolicy (null: no rule) and asks it before it reads a
// file or lists a folder, writes, deletes, or renames; a refusal is the policy's error.

#include <filesystem>
#include <memory>
#include <random>
#include <system_error>
#include <vector>

#include "vbscript/FileAccessPolicy.h"
#include "vbscript/HostObject.h"

namespace vbs {

class Interpreter;

using FilePolicyRef = std::shared_ptr<const FileAccessPolicy>;

// The file a script's path names, as described above; a path that exists in no case comes back with
// its separators translated, for the caller to report.
std::filesystem::path NativePath(std::u16string_view script_path);
// A native path as the script sees it.
std::u16string ScriptPath(const std::filesystem::path& path);
// The absolute, normalised form of a native path, without a trailing separator.
std::filesystem::path FullPath(const std::filesystem::path& path);
// The script error for a failed operation; `missing` is the number for a path that does not exist
// (53 or 76).
ScriptError FileError(const std::error_code& error, int32_t missing);

// The operations File, Folder and FileSystemObject share. Without Overwrite::Yes an existing
// target is error 58; a read-only file is deleted only with Force::Yes (else 70), as on Windows.
enum class Overwrite { No, Yes };
enum class Force { No, Yes };
[[nodiscard]] Status CopyOneFile(const std::filesystem::path& from, const std::filesystem::path& to,
                                 Overwrite overwrite);
// Copies a folder with everything inside, merging into `to` when it exists.
[[nodiscard]] Status CopyTree(const std::filesystem::path& from, const std::filesystem::path& to, Overwrite overwrite);
// Renames a file or folder; moves across file systems by copying. An existing `to` is error 58.
[[nodiscard]] Status MoveEntry(const std::filesystem::path& from, const std::filesystem::path& to);
[[nodiscard]] Status DeleteOneFile(const std::filesystem::path& path, Force force);
[[nodiscard]] Status DeleteTree(const std::filesystem::path& path, Force force);

struct FolderEntry {
  std::filesystem::path path;
  bool is_folder = false;  // a link counts as what it points to
  bool is_link = false;
};
// The entries of a folder, in no particular order; error 76 when the folder is missing, another
// file error when it cannot be read.
Result<std::vector<FolderEntry>> ListFolder(const std::filesystem::path& folder);

class FileSystemObject final : public HostObject<FileSystemObject> {
 public:
  FileSystemObject(const Locale& locale, FilePolicyRef policy = nullptr);
  static std::span<const Member> Members();
  std::u16string ClassName() const override { return u"FileSystemObject"; }

 private:
  Result<Variant> BuildPath(CallArgs& args);
  Result<Variant> CopyFile(CallArgs& args);
  Result<Variant> CopyFolder(CallArgs& args);
  Result<Variant> CreateFolder(CallArgs& args);
  Result<Variant> CreateTextFile(CallArgs& args);
  Result<Variant> DeleteFile(CallArgs& args);
  Result<Variant> DeleteFolder(CallArgs& args);
  Result<Variant> DriveExists(CallArgs& args);
  Result<Variant> Drives(CallArgs& args);
  Result<Variant> FileExists(CallArgs& args);
  Result<Variant> FolderExists(CallArgs& args);
  Result<Variant> GetAbsolutePathName(CallArgs& args);
  Result<Variant> GetBaseName(CallArgs& args);
  Result<Variant> GetDrive(CallArgs& args);
  Result<Variant> GetDriveName(CallArgs& args);
  Result<Variant> GetExtensionName(CallArgs& args);
  Result<Variant> GetFile(CallArgs& args);
  Result<Variant> GetFileName(CallArgs& args);
  Result<Variant> GetFolder(CallArgs& args);
  Result<Variant> GetParentFolderName(CallArgs& args);
  Result<Variant> GetSpecialFolder(CallArgs& args);
  Result<Variant> GetTempName(CallArgs& args);
  Result<Variant> MoveFile(CallArgs& args);
  Result<Variant> MoveFolder(CallArgs& args);
  Result<Variant> OpenTextFile(CallArgs& args);

  std::mt19937 m_random;
  FilePolicyRef m_policy;
};

// A file: Path (the default member), Name (assigning renames), Size, dates, ParentFolder, and
// Copy, Move, Delete, OpenAsTextStream.
class FileObject final : public HostObject<FileObject> {
 public:
  FileObject(const Locale& locale, std::filesystem::path path, FilePolicyRef policy = nullptr);
  static std::span<const Member> Members();
  std::u16string ClassName() const override { return u"File"; }

 private:
  Result<Variant> Attributes(CallArgs& args);
  Result<Variant> DateCreated(CallArgs& args);
  Result<Variant> DateLastAccessed(CallArgs& args);
  Result<Variant> DateLastModified(CallArgs& args);
  Result<Variant> Drive(CallArgs& args);
  Result<Variant> GetName(CallArgs& args);
  Result<Variant> PutName(CallArgs& args, Variant value);
  Result<Variant> ParentFolder(CallArgs& args);
  Result<Variant> Path(CallArgs& args);
  Result<Variant> Size(CallArgs& args);
  Result<Variant> Type(CallArgs& args);
  Result<Variant> Copy(CallArgs& args);
  Result<Variant> Delete(CallArgs& args);
  Result<Variant> Move(CallArgs& args);
  Result<Variant> OpenAsTextStream(CallArgs& args);

  std::filesystem::path m_path;
  FilePolicyRef m_policy;
};

// A folder: Path (the default member), Name, Files, SubFolders, ParentFolder (Nothing at the root),
// Size (of everything inside), dates, and Copy, Move, Delete, CreateTextFile.
class FolderObject final : public HostObject<FolderObject> {
 public:
  FolderObject(const Locale& locale, std::filesystem::path path, FilePolicyRef policy = nullptr);
  static std::span<const Member> Members();
  std::u16string ClassName() const override { return u"Folder"; }

 private:
  Result<Variant> Attributes(CallArgs& args);
  Result<Variant> DateCreated(CallArgs& args);
  Result<Variant> DateLastAccessed(CallArgs& args);
  Result<Variant> DateLastModified(CallArgs& args);
  Result<Variant> Drive(CallArgs& args);
  Result<Variant> Files(CallArgs& args);
  Result<Variant> IsRootFolder(CallArgs& args);
  Result<Variant> GetName(CallArgs& args);
  Result<Variant> PutName(CallArgs& args, Variant value);
  Result<Variant> ParentFolder(CallArgs& args);
  Result<Variant> Path(CallArgs& args);
  Result<Variant> Size(CallArgs& args);
  Result<Variant> SubFolders(CallArgs& args);
  Result<Variant> Type(CallArgs& args);
  Result<Variant> Copy(CallArgs& args);
  Result<Variant> Delete(CallArgs& args);
  Result<Variant> Move(CallArgs& args);
  Result<Variant> CreateTextFile(CallArgs& args);

  std::filesystem::path m_path;
  FilePolicyRef m_policy;
};

// The files or the subfolders of a folder, read afresh at each use, sorted by name ignoring case
// as Windows lists them: Count, Item(name) (the default member), For Each; Folders also has Add.
class FolderListing final : public HostObject<FolderListing> {
 public:
  enum class Kind { Files, Folders };
  FolderListing(const Locale& locale, std::filesystem::path folder, Kind kind, FilePolicyRef policy = nullptr);
  static std::span<const Member> Members();
  std::u16string ClassName() const override { return m_kind == Kind::Files ? u"Files" : u"Folders"; }
  Result<Ref<Enumerator>> Enumerate() override;

 private:
  Result<std::vector<Variant>> Entries();
  Result<Variant> Count(CallArgs& args);
  Result<Variant> Item(CallArgs& args);
  Result<Variant> Add(CallArgs& args);

  std::filesystem::path m_folder;
  Kind m_kind;
  FilePolicyRef m_policy;
};

// The one drive: the root of the file system, which every drive letter stands for.
class DriveObject final : public HostObject<DriveObject> {
 public:
  explicit DriveObject(const Locale& locale, FilePolicyRef policy = nullptr);
  static std::span<const Member> Members();
  std::u16string ClassName() const override { return u"Drive"; }

 private:
  Result<Variant> AvailableSpace(CallArgs& args);
  Result<Variant> TotalSize(CallArgs& args);
  Result<Variant> DriveLetter(CallArgs& args);
  Result<Variant> DriveType(CallArgs& args);
  Result<Variant> IsReady(CallArgs& args);
  Result<Variant> Path(CallArgs& args);
  Result<Variant> RootFolder(CallArgs& args);
  Result<Variant> Empty(CallArgs& args);
  Result<Variant> SerialNumber(CallArgs& args);

  FilePolicyRef m_policy;
};

// FileSystemObject.Drives: Count, Item, For Each over the one drive.
class DriveList final : public HostObject<DriveList> {
 public:
  explicit DriveList(const Locale& locale, FilePolicyRef policy = nullptr);
  static std::span<const Member> Members();
  std::u16string ClassName() const override { return u"Drives"; }
  Result<Ref<Enumerator>> Enumerate() override;

 private:
  Result<Variant> Count(CallArgs& args);
  Result<Variant> Item(CallArgs& args);

  FilePolicyRef m_policy;
};

}  // namespace vbs
