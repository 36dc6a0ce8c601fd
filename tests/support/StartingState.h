#pragma once

#include <VORNELInfrastructure/Disk/PosixFileSystem.h>
#include <VORNELInfrastructure/Workspace/LocalWorkspaceService.h>

#include <filesystem>

namespace vornel {

/// What a save writes; "text" beside the roots holds it too.
extern const QString savedText;

/// Starts a service on the roots below `folder`: "workspace", "claude" and "codex".
std::unique_ptr<LocalWorkspaceService>
startService(const std::filesystem::path &folder,
             std::shared_ptr<FileSystem> files = std::make_shared<PosixFileSystem>(),
             FailureScope scope = FailureScope::Library);

/// Writes what the assistants hold before anything is imported: skills in one folder or in both, with equal
/// or different content, and folders that can't be imported.
void writeAssistantsFolders(const std::filesystem::path &folder);

/// Builds a library that makes it hard for an operation to leave everything whole: "demo" and "second" are
/// of one category, one with copies that differ, a file of which has a name elsewhere too, and without the
/// history of its revision, the other with a
/// copy missing; "gone" and "kept" are in the trash; "bystander" is not to be touched by any operation. The
/// assistants' own folders are there too.
void buildLibrary(const std::filesystem::path &folder);

/// The same, with so many revisions of each active skill that a history can be pruned.
void buildLongHistory(const std::filesystem::path &folder);

/// The same library, where both assistants have edited "demo": one file in ways that can't be joined.
void buildEditedLibrary(const std::filesystem::path &folder);

/// The same library, where a copy of "found" and one of "demo" are set aside, with a stranger's folder in the
/// place of "found", and what is of no skill.
void buildSetAsideLibrary(const std::filesystem::path &folder);
extern const QString setAsideFound;
extern const QString setAsideDemo;
extern const QString setAsideNotes;

/// The same library, beside which "offered" holds a skill "fresh", whose place is taken in an assistant's
/// folder, and other content for "demo".
void buildOfferedSkills(const std::filesystem::path &folder);

/// The same library as several killed programs left it: in the middle of a swap, at its end, in a permanent
/// deletion, and while writing a file.
void buildInterruptedLibrary(const std::filesystem::path &folder);

} // namespace vornel
