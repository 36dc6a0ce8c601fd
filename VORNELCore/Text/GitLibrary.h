#pragma once

#include <QtGlobal>

#include <git2.h>

namespace vornel {

/// libgit2 for as long as the program runs: `static const GitLibrary library;` stands before each use.
class GitLibrary
{
public:
    GitLibrary() { git_libgit2_init(); }
    ~GitLibrary() { git_libgit2_shutdown(); }
    Q_DISABLE_COPY_MOVE(GitLibrary)
};

} // namespace vornel
