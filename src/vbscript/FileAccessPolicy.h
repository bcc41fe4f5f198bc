#pragma once

// What a host lets scripts do with files. The engine knows no folder that matters to its host, so
// FileSystemObject, File, Folder and TextStream ask the policy the interpreter holds before they
// read, write, delete or hand a file to another program, and a refusal becomes the script error the
// policy returns (70, permission denied, with a description naming the function and the path), which
// On Error Resume Next traps as any other. Without a policy everything the user may do is allowed.
//
// The path asked about is the one the operation will use; the policy resolves it (links, "..")
// itself, since only the host knows which places it protects.

#include <filesystem>
#include <string_view>

#include "vbscript/value/Result.h"

namespace vbs {

enum class FileAccess {
  Read,    // a file's content or a folder's list of names
  Write,   // creating or changing a file or folder
  Delete,  // removing or renaming away a file or folder
  Launch,  // handing a file to another program
};

class FileAccessPolicy {
 public:
  virtual ~FileAccessPolicy() = default;
  // Ok, or the error refusing `access` to `path` for the script function `function`. Called on the
  // thread that runs the script.
  [[nodiscard]] virtual Status Check(FileAccess access, const std::filesystem::path& path,
                                     std::string_view function) const = 0;
};

// The policy's answer, or Ok when there is none.
[[nodiscard]] inline Status CheckAccess(const FileAccessPolicy* policy, FileAccess access,
                                        const std::filesystem::path& path, std::string_view function) {
  return policy ? policy->Check(access, path, function) : Ok();
}

}  // namespace vbs
