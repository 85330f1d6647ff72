#pragma once

#include <string>

namespace zelmat {

/// The two forms in which documents lie in files, told by their content.

/// Whether it is a regular file that begins as a document's does, whatever its name. What follows may be
/// broken, or a foreign program's. Never "-", which is standard input, also where a file has that name.
bool IsDocumentFile(const std::string& path);

/// Whether a path is a document's by its name, which ends in ".zeldoc". That counts only where nothing is
/// there yet, or nothing whole.
bool IsDocumentName(const std::string& path);

/// Whether a text has what a document in its text form cannot be without, and a card has not.
bool IsTextDocument(const std::string& text);

/// Whether it is a regular file that holds such a text. Never "-".
bool IsTextDocumentFile(const std::string& path);

}  // namespace zelmat
