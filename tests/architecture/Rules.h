// The rules of the architecture. Each takes the files of a source tree and gives its breaches as sentences.
#pragma once

#include <optional>

#include "tests/architecture/SourceTree.h"

namespace orx::test {

using Breaches = std::vector<std::string>;

/// The place in the house of a file under src/, counted from the ground; none when the table does not know its folder.
std::optional<int> FloorOf(const std::string& path);

/// Files include their own folder and the floors below them only; desktops include forms, text and numbers
/// alone, and the embedded host nothing above hostobjects but itself.
Breaches IncludesAgainstTheFloors(const std::vector<SourceFile>& sources);
/// No file includes itself by way of others.
Breaches IncludeCircles(const std::vector<SourceFile>& sources);
/// No folder includes itself by way of others; rooms of `desktops` and `maplibrary` count as folders.
Breaches FolderCircles(const std::vector<SourceFile>& sources);
/// Native types, headers and platform switches stand in the desktops and the component server only.
Breaches NativeNames(const std::vector<SourceFile>& sources);
/// In the component server each kind of resource has one owner: nothing else calls the function that gives it back.
Breaches FreesOutsideTheirOwner(const std::vector<SourceFile>& sources);
Breaches FilesLongerThan(std::size_t lines, const std::vector<SourceFile>& files);
Breaches FilesContaining(const std::string& word, const std::vector<SourceFile>& files);

}  // namespace orx::test
