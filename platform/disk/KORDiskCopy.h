#pragma once

#include <string>

#include "platform/catalog/KORFileError.h"

/// Whole documents as files: written anew beside the place where they are to lie, made durable, and then
/// given their name. So there is the old file or the new one at any time. A killed copy leaves its unfinished
/// file behind (KORFileBeside); nothing ever reads it, and the next one to the same place takes it away.
namespace KORDiskCopy {

/// Writes a document anew without the room that removed features left in it. Others can read it meanwhile,
/// and whoever wants to change it waits. Refused where KORDiskDocument::OpenToChange is.
[[nodiscard]] bool Compact(const std::string& path, KORFileError& error);

/// Copies a document as it was saved last, its undo history included, to a file that is not there yet. Its
/// format stays what it is.
[[nodiscard]] bool To(const std::string& path, const std::string& newPath, KORFileError& error);

}  // namespace KORDiskCopy
